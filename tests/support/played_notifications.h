#pragma once

#include "platform/haptics.h"
#include "platform/notification_center.h"
#include "platform/platform.h"

#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

namespace orl {

/// The phone's notification centre as a test sees it.
class PlayedNotifications : public NotificationCenter {
public:
    bool granted = true;
    bool holdAnswers = false; ///< permission requests wait for answer()
    int asked = 0;
    std::vector<LocalNotification> added;
    QStringList events; ///< "remove pending ID", "clear", "badge N", "add ID", in order

    void requestPermission(std::function<void(bool)> completion) override {
        ++asked;
        if (holdAnswers) return waiting_.push_back(std::move(completion));
        completion(granted);
    }
    void add(const LocalNotification &notification) override {
        events.append(QStringLiteral("add ") + notification.identifier);
        added.push_back(notification);
    }
    void removePending(const QString &identifier) override {
        events.append(QStringLiteral("remove pending ") + identifier);
    }
    void removeAllDelivered() override { events.append(QStringLiteral("clear")); }
    void setBadgeNumber(int number) override { events.append(QStringLiteral("badge %1").arg(number)); }

    /// The user answers all requests that wait.
    void answer() {
        for (const auto &completion : std::exchange(waiting_, {}))
            completion(granted);
    }

private:
    std::vector<std::function<void(bool)>> waiting_;
};

class PlayedHaptics : public Haptics {
public:
    std::vector<Impact> impacts;
    void impact(Impact style) override { impacts.push_back(style); }
};

/// The phone with these two in place of those that do nothing.
inline Platform playedWith(const Platform &phone, NotificationCenter &notifications, Haptics &haptics) {
    return {phone.clock, phone.mainQueue,    phone.globalQueue, phone.urlReader,
            phone.store, phone.reachability, phone.bundle,      phone.console,
            phone.fatal, phone.endpoints,    notifications,     haptics};
}

} // namespace orl
