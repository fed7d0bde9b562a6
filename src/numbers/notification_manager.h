#pragma once

#include "platform/process.h"

namespace orl {

/// Raises local notifications. Main thread; shared by the Process: its first use clears, once per run, what
/// earlier runs left on the phone.
class NotificationManager {
public:
    /// Posts the clearing of delivered notifications and of the badge to the main queue.
    explicit NotificationManager(Process &process);

    /// Replaces a pending request of the same identifier. The new one is added 0.3 s later, which keeps it
    /// behind the removal and behind the clearing of the first use.
    void scheduleNotification(const QString &identifier, const QString &title, const QString &body);

private:
    const Platform platform_;
};

} // namespace orl
