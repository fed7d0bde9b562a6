#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <vector>

namespace orl {

/// A desktop's notification server as a test sees it.
class NotificationServer : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Notification {
        uint id;
        uint replacesId;
        QString application, icon, summary, body;
        QStringList actions;
        QVariantMap hints;
    };

    explicit NotificationServer(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        bus_.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }

    QStringList capabilities{"body", "body-markup", "actions", "sound"};
    bool hangs = false; ///< takes calls in and does not answer
    int asked = 0;      ///< for its capabilities
    std::vector<Notification> shown;
    QList<uint> closed;

    void leaveBus() { bus_.unregisterService(QStringLiteral("org.freedesktop.Notifications")); }

public Q_SLOTS:
    QStringList GetCapabilities() {
        ++asked;
        if (hangs) setDelayedReply(true);
        return capabilities;
    }
    uint Notify(const QString &application, uint replacesId, const QString &icon, const QString &summary,
                const QString &body, const QStringList &actions, const QVariantMap &hints, int) {
        const uint id = replacesId ? replacesId : ++lastId_;
        shown.push_back({id, replacesId, application, icon, summary, body, actions, hints});
        return id;
    }
    void CloseNotification(uint id) {
        closed << id;
        Q_EMIT NotificationClosed(id, 3);
    }

Q_SIGNALS:
    void NotificationClosed(uint id, uint reason);
    void ActionInvoked(uint id, const QString &action);
    void ActivationToken(uint id, const QString &token);

private:
    QDBusConnection bus_;
    uint lastId_ = 40;
};

} // namespace orl
