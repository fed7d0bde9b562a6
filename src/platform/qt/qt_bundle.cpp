#include "platform/qt/qt_bundle.h"

#include <QDir>
#include <QFile>

#include <utility>

namespace orl {

QtBundle::QtBundle(QString folder, std::map<QString, QString> infoValues)
    : folder_(std::move(folder)), infoValues_(std::move(infoValues)) {}

std::optional<QByteArray> QtBundle::resource(const QString &name) const {
    QFile file(QDir(folder_).filePath(name));
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    return file.readAll();
}

std::optional<QString> QtBundle::infoValue(const QString &key) const {
    const auto entry = infoValues_.find(key);
    if (entry == infoValues_.end()) return std::nullopt;
    return entry->second;
}

} // namespace orl
