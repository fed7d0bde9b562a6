#pragma once

#include "platform/browser.h"
#include "platform/haptics.h"
#include "platform/pasteboard.h"

namespace orl {

/// The desktop's clipboard.
class DesktopPasteboard : public Pasteboard {
public:
    void setString(const QString &text) override;
};

/// Whatever the desktop opens links with.
class DesktopBrowser : public Browser {
public:
    void open(const QUrl &url) override;
};

/// The feedback daemon of Linux phones; where none runs, nothing happens.
class FeedbackHaptics : public Haptics {
public:
    void impact(Impact style) override;
};

} // namespace orl
