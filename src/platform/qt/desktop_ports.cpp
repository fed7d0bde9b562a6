#include "platform/qt/desktop_ports.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

namespace orl {

void DesktopPasteboard::setString(const QString &text) {
    QGuiApplication::clipboard()->setText(text);
}

void DesktopBrowser::open(const QUrl &url) {
    if (!url.isRelative() && !url.isLocalFile()) QDesktopServices::openUrl(url);
}

} // namespace orl
