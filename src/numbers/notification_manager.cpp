#include "numbers/notification_manager.h"

#include "platform/queues.h"

#include <chrono>

namespace orl {

namespace {

constexpr std::chrono::milliseconds addDelay{300};

} // namespace

NotificationManager::NotificationManager(Process &process) : platform_(process.platform()) {
    platform_.mainQueue.post([platform = platform_] {
        platform.notifications.removeAllDelivered();
        platform.notifications.setBadgeNumber(0);
    });
}

void NotificationManager::scheduleNotification(const QString &identifier, const QString &title,
                                               const QString &body) {
    platform_.notifications.removePending(identifier);
    const LocalNotification notification{identifier, title, body, QStringLiteral("swiftsound.caf")};
    platform_.mainQueue.postAfter(
        addDelay, [platform = platform_, notification] { platform.notifications.add(notification); });
}

} // namespace orl
