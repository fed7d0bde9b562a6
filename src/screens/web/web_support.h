#pragma once

#include <QFileInfo>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// Whether pages can be shown. The web engine ends a program that runs as root, unless it is told to do
/// without its sandbox: that is for whoever starts the program to say, as a mail is written by anybody.
class WebSupport : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool usable READ usable CONSTANT)
public:
    bool usable() const {
        const bool root = QFileInfo(QStringLiteral("/proc/self")).ownerId() == 0;
        return !root || qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX") ||
               qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").contains("--no-sandbox");
    }
};

} // namespace orl
