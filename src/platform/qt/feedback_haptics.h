#pragma once

#include "platform/haptics.h"

#include <QDBusConnection>
#include <QString>

namespace orl {

/// The feedback daemon of Linux phones. Where none runs, nothing happens and none is started; no answer is
/// waited for.
class FeedbackHaptics : public Haptics {
public:
    /// `desktopEntry`: name of the program's desktop file, by which the user may silence it.
    FeedbackHaptics(QString desktopEntry, const QDBusConnection &bus);

    void impact(Impact style) override;

private:
    const QString desktopEntry_;
    const QDBusConnection bus_;
};

} // namespace orl
