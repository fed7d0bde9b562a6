#pragma once

#include <QString>

#include <functional>

namespace orl {

/// What the user sees of one local notification.
struct LocalNotification {
    QString identifier; ///< names the request at the phone; adding the same one again replaces it
    QString title;
    QString body;
    QString sound; ///< a sound resource of the program; empty for none

    bool operator==(const LocalNotification &) const = default;
};

/// The phone's centre for notifications that the program raises itself.
class NotificationCenter {
public:
    virtual ~NotificationCenter() = default;

    /// Asks for alert, sound and badge; asks the user only where no answer is stored yet. The completion may
    /// run at once or later, on any thread.
    virtual void requestPermission(std::function<void(bool granted)> completion) = 0;

    /// Delivers at once; shows nothing and reports nothing where permission is missing.
    virtual void add(const LocalNotification &notification) = 0;

    virtual void removePending(const QString &identifier) = 0;
    virtual void removeAllDelivered() = 0;
    virtual void setBadgeNumber(int number) = 0;
};

/// Stands where there is no notification centre: permission is refused and nothing is shown.
class NoNotificationCenter final : public NotificationCenter {
public:
    void requestPermission(std::function<void(bool granted)> completion) override { completion(false); }
    void add(const LocalNotification &) override {}
    void removePending(const QString &) override {}
    void removeAllDelivered() override {}
    void setBadgeNumber(int) override {}

    static NotificationCenter &instance() {
        static NoNotificationCenter none;
        return none;
    }
};

} // namespace orl
