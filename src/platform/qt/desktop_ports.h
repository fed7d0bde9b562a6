#pragma once

#include "platform/browser.h"
#include "platform/pasteboard.h"

namespace orl {

/// The desktop's clipboard. Needs a QGuiApplication.
class DesktopPasteboard : public Pasteboard {
public:
    void setString(const QString &text) override;
};

/// Whatever the desktop opens links with. What names a file of the device, or no scheme, is not opened: links
/// come out of messages that anybody can send.
class DesktopBrowser : public Browser {
public:
    void open(const QUrl &url) override;
};

} // namespace orl
