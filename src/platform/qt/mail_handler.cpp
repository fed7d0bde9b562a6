#include "platform/qt/mail_handler.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace orl {

namespace {

/// What the groups of one file name for a type, in their order.
QStringList namedIn(const QString &path, const QString &mimeType, const QStringList &groups) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QStringList named;
    bool within = false;
    const QByteArray key = mimeType.toUtf8() + '=';
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith('['))
            within = groups.contains(QString::fromUtf8(line));
        else if (within && line.startsWith(key))
            named << QString::fromUtf8(line.mid(key.size())).split(u';', Qt::SkipEmptyParts);
    }
    return named;
}

} // namespace

HandlerFolders HandlerFolders::ofTheDesktop() {
    const QStringList applications = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    return {QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation) + applications,
            applications};
}

bool hasHandler(const QString &mimeType, const HandlerFolders &folders) {
    QStringList named;
    QStringList removed;
    for (const QString &folder : folders.lists) {
        const QString list = QDir(folder).filePath(QStringLiteral("mimeapps.list"));
        named << namedIn(list, mimeType,
                         {QStringLiteral("[Default Applications]"), QStringLiteral("[Added Associations]")});
        removed << namedIn(list, mimeType, {QStringLiteral("[Removed Associations]")});
    }
    for (const QString &folder : folders.applications) {
        named << namedIn(QDir(folder).filePath(QStringLiteral("mimeinfo.cache")), mimeType,
                         {QStringLiteral("[MIME Cache]")});
    }
    const auto isInstalled = [&](const QString &desktopFile) {
        return !removed.contains(desktopFile) &&
               std::ranges::any_of(folders.applications, [&](const QString &folder) {
                   return QFile::exists(QDir(folder).filePath(desktopFile));
               });
    };
    return std::ranges::any_of(named, isInstalled);
}

} // namespace orl
