#pragma once

#include "platform/bundle.h"
#include "platform/notification_center.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

class QDBusPendingCallWatcher;

namespace orl {

/// The desktop's notifications, as freedesktop.org describes them for D-Bus. Main thread; waits for
/// no answer, so that a server that hangs holds up nothing.
///
/// Permission means that a server answers: the desktop itself lets the user silence a program. What an
/// earlier run of the program left on the screen cannot be told from other programs' notifications, so
/// removeAllDelivered closes those of this run.
class DesktopNotifications : public QObject, public NotificationCenter {
    Q_OBJECT
public:
    struct Setup {
        QString name;         ///< of the program, for people
        QString desktopEntry; ///< name of its desktop file, without ".desktop"
        QString soundFolder;  ///< where sounds out of the bundle are put down for the server to play
    };

    /// `bundle` holds the sounds that notifications name.
    DesktopNotifications(Setup setup, const Bundle &bundle, const QDBusConnection &bus);
    ~DesktopNotifications() override;

    void requestPermission(std::function<void(bool granted)> completion) override;
    void add(const LocalNotification &notification) override;
    void removePending(const QString &identifier) override;
    void removeAllDelivered() override;
    void setBadgeNumber(int number) override;

Q_SIGNALS:
    /// The user chose a notification; the token, which may be empty, lets a window come to the front.
    void chosen(const QString &activationToken);

private Q_SLOTS:
    void noteToken(uint id, const QString &token);
    void noteAction(uint id, const QString &action);
    void noteClosed(uint id, uint reason);

private:
    /// A notification on its way to the screen or on it.
    struct Shown {
        uint id = 0; ///< the server's; 0 until it has answered
        bool underWay = false;
        std::optional<LocalNotification> next; ///< takes its place once the server has answered
        bool closing = false;                  ///< is to go once the server has answered
    };

    void answerWaiting(const std::optional<QStringList> &capabilities);
    void show(const LocalNotification &notification);
    void noteShown(const QString &identifier, const QDBusPendingCallWatcher &reply);
    void close(const QString &identifier);
    void sendClose(uint id);
    void forgetServer();
    bool isOurs(uint id) const;
    QVariantMap hints(const LocalNotification &notification) const;
    QString soundPath(const QString &sound) const;

    const Setup setup_;
    const Bundle &bundle_;
    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    std::optional<QStringList> capabilities_; ///< of the server that answered last
    std::vector<std::function<void(bool)>> waiting_;
    std::map<QString, Shown> shown_;
    std::map<uint, QString> tokens_;
};

} // namespace orl
