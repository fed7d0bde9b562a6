#pragma once

#include "platform/desktop/notification_server.h"
#include "played_network.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <memory>

namespace orl {

/// The part of a desktop that tells programs its settings; the walk flips between light and dark with it. It
/// answers on a thread of its own, as the walk itself waits for the program that asks.
class PlayedPortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    void setDark(bool dark);

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key);

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    std::atomic<bool> dark_ = false;
};

/// A desktop of the walk's own, gone when it is destroyed: an X server without a screen, a session bus with
/// the accessibility services and a notification server on it, and a home folder.
class Desk {
public:
    Desk();
    ~Desk();
    Desk(const Desk &) = delete;
    Desk &operator=(const Desk &) = delete;

    /// Empty while all is well.
    const QString &problem() const { return problem_; }

    /// What a program needs to run here.
    QProcessEnvironment environment() const { return environment_; }
    /// Of the programs that are started from now on.
    void setVariable(const QString &name, const QString &value) { environment_.insert(name, value); }
    void setLocale(const QString &locale) {
        setVariable(QStringLiteral("LC_ALL"), locale);
    } ///< "de_DE.UTF-8"

    QDBusConnection accessibilityBus() const;
    PlayedPortal &portal() { return *portal_; }
    /// What the machine knows of its network; programs ask it on the bus of the system, which is the same
    /// here.
    PlayedNetwork &network() { return *network_; }
    /// What programs have asked to be notified of so far.
    std::vector<NotificationServer::Notification> notifications() const;

    /// Runs a small program here to its end; what it printed.
    QString run(const QString &program, const QStringList &arguments) const;

    /// Starts a program here; it ends with the walk, however the walk ends.
    std::unique_ptr<QProcess> start(const QString &program, const QStringList &arguments) const;

private:
    QByteArray firstLineOf(QProcess &service);
    void connectBuses();

    QTemporaryDir home_;
    QProcessEnvironment environment_;
    QString problem_;
    std::unique_ptr<QProcess> display_, bus_;
    QThread services_;                              ///< what answers on the session bus runs here
    PlayedPortal *const portal_ = new PlayedPortal; ///< goes with its thread, like the next one
    NotificationServer *notificationServer_ = nullptr;
    PlayedNetwork *network_ = nullptr;
};

} // namespace orl
