#include "platform/qt/desktop_notifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace orl {

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString defaultAction = QStringLiteral("default");
constexpr int serversOwnExpiry = -1;

QDBusMessage call(const char *method) {
    return QDBusMessage::createMethodCall(service, path, service, QLatin1String(method));
}

} // namespace

DesktopNotifications::DesktopNotifications(Setup setup, const Bundle &bundle, const QDBusConnection &bus)
    : setup_(std::move(setup)),
      bundle_(bundle),
      bus_(bus),
      watcher_(service, bus, QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this, &DesktopNotifications::forgetServer);
    bus_.connect(service, path, service, QStringLiteral("ActivationToken"), this,
                 SLOT(noteToken(uint, QString)));
    bus_.connect(service, path, service, QStringLiteral("ActionInvoked"), this,
                 SLOT(noteAction(uint, QString)));
    bus_.connect(service, path, service, QStringLiteral("NotificationClosed"), this,
                 SLOT(noteClosed(uint, uint)));
}

DesktopNotifications::~DesktopNotifications() = default;

void DesktopNotifications::requestPermission(std::function<void(bool)> completion) {
    if (!bus_.isConnected()) return completion(false);
    if (capabilities_) return completion(true);
    waiting_.push_back(std::move(completion));
    if (waiting_.size() > 1) return; // asked already
    auto *reply = new QDBusPendingCallWatcher(bus_.asyncCall(call("GetCapabilities")), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        const QDBusPendingReply<QStringList> answer = *reply;
        answerWaiting(answer.isValid() ? std::optional(answer.value()) : std::nullopt);
        reply->deleteLater();
    });
}

void DesktopNotifications::answerWaiting(const std::optional<QStringList> &capabilities) {
    capabilities_ = capabilities;
    for (const auto &completion : std::exchange(waiting_, {}))
        completion(capabilities.has_value());
}

void DesktopNotifications::add(const LocalNotification &notification) {
    if (!capabilities_) return; // nobody to show it
    Shown &shown = shown_[notification.identifier];
    shown.closing = false;
    if (shown.underWay)
        shown.next = notification;
    else
        show(notification);
}

void DesktopNotifications::show(const LocalNotification &notification) {
    Shown &shown = shown_[notification.identifier];
    shown.underWay = true;
    const bool markup = capabilities_->contains(QStringLiteral("body-markup"));
    QStringList actions;
    if (capabilities_->contains(QStringLiteral("actions")))
        actions << defaultAction << QStringLiteral("Open");
    QDBusMessage message = call("Notify");
    message << setup_.name << shown.id << setup_.desktopEntry << notification.title
            << (markup ? notification.body.toHtmlEscaped() : notification.body) << actions
            << hints(notification) << serversOwnExpiry;
    auto *reply = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, id = notification.identifier] {
        noteShown(id, *reply);
        reply->deleteLater();
    });
}

void DesktopNotifications::noteShown(const QString &identifier, const QDBusPendingCallWatcher &reply) {
    const auto entry = shown_.find(identifier);
    if (entry == shown_.end()) return; // the server has changed meanwhile
    Shown &shown = entry->second;
    const QDBusPendingReply<uint> answer = reply;
    shown.underWay = false;
    if (answer.isValid()) shown.id = answer.value();
    const auto next = std::exchange(shown.next, std::nullopt);
    if (!answer.isValid() || shown.closing) {
        if (answer.isValid()) sendClose(shown.id);
        shown_.erase(entry);
        if (!answer.isValid() && next && capabilities_) show(*next);
    } else if (next) {
        show(*next);
    }
}

void DesktopNotifications::removePending(const QString &identifier) {
    close(identifier);
}

void DesktopNotifications::removeAllDelivered() {
    QStringList identifiers;
    for (const auto &[identifier, shown] : shown_)
        identifiers << identifier;
    for (const QString &identifier : identifiers)
        close(identifier);
}

void DesktopNotifications::close(const QString &identifier) {
    const auto entry = shown_.find(identifier);
    if (entry == shown_.end()) return;
    if (entry->second.underWay) {
        entry->second.closing = true;
        entry->second.next.reset();
        return;
    }
    sendClose(entry->second.id);
    shown_.erase(entry);
}

void DesktopNotifications::sendClose(uint id) {
    QDBusMessage message = call("CloseNotification");
    message << id;
    message.setAutoStartService(false);
    bus_.send(message);
}

/// Docks that count listen to this signal; there is nobody to ask and nobody to answer.
void DesktopNotifications::setBadgeNumber(int number) {
    if (!bus_.isConnected()) return;
    auto update = QDBusMessage::createSignal(
        QStringLiteral("/"), QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << QStringLiteral("application://%1.desktop").arg(setup_.desktopEntry)
           << QVariantMap{{QStringLiteral("count"), qint64(number)},
                          {QStringLiteral("count-visible"), number > 0}};
    bus_.send(update);
}

void DesktopNotifications::noteToken(uint id, const QString &token) {
    if (isOurs(id)) tokens_[id] = token;
}

void DesktopNotifications::noteAction(uint id, const QString &action) {
    if (!isOurs(id) || action != defaultAction) return;
    const auto token = tokens_.extract(id);
    Q_EMIT chosen(token ? token.mapped() : QString());
}

void DesktopNotifications::noteClosed(uint id, uint) {
    tokens_.erase(id);
    std::erase_if(shown_,
                  [id](const auto &entry) { return entry.second.id == id && !entry.second.underWay; });
}

/// What a server has shown went with it.
void DesktopNotifications::forgetServer() {
    capabilities_.reset();
    shown_.clear();
    tokens_.clear();
}

bool DesktopNotifications::isOurs(uint id) const {
    return std::ranges::any_of(shown_, [id](const auto &entry) { return entry.second.id == id; });
}

QVariantMap DesktopNotifications::hints(const LocalNotification &notification) const {
    QVariantMap hints{{QStringLiteral("desktop-entry"), setup_.desktopEntry},
                      {QStringLiteral("category"), QStringLiteral("im.received")}};
    if (notification.sound.isEmpty()) return hints;
    hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    if (const QString file = soundPath(notification.sound); !file.isEmpty())
        hints.insert(QStringLiteral("sound-file"), file);
    return hints;
}

/// The server plays files only, so the sound is put down once; empty where that cannot be done.
QString DesktopNotifications::soundPath(const QString &sound) const {
    const auto bytes = bundle_.resource(sound);
    if (!bytes) return {};
    const QString file = QDir(setup_.soundFolder).filePath(sound);
    if (QFileInfo(file).size() == bytes->size()) return file;
    QDir().mkpath(setup_.soundFolder);
    QSaveFile copy(file);
    const bool written =
        copy.open(QIODevice::WriteOnly) && copy.write(*bytes) == bytes->size() && copy.commit();
    return written ? file : QString();
}

} // namespace orl
