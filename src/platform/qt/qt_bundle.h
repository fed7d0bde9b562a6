#pragma once

#include "platform/bundle.h"

#include <map>

namespace orl {

/// Resource files below one folder, which may be one of those compiled into the program, and fixed info
/// values.
class QtBundle : public Bundle {
public:
    QtBundle(QString folder, std::map<QString, QString> infoValues);

    std::optional<QByteArray> resource(const QString &name) const override;
    std::optional<QString> infoValue(const QString &key) const override;

private:
    QString folder_;
    std::map<QString, QString> infoValues_;
};

} // namespace orl
