#include "app/desktop_appearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QPalette>

namespace orl {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString desktopGroup = QStringLiteral("org.gnome.desktop.interface");

/// What the portal calls 1; 0 is no preference and 2 is light.
constexpr uint preferDark = 1;

bool paletteIsDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// The portal wraps a value into a variant of a variant.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopAppearance::DesktopAppearance(Appearance &appearance, QObject *parent)
    : QObject(parent), appearance_(appearance) {
    appearance_.setDark(paletteIsDark());
    appearance_.watchInput(qGuiApp);
    appearance_.setRightToLeft(QGuiApplication::isRightToLeft());
    if (!QDBusConnection::sessionBus().isConnected()) return;
    // A new connection to the bus sometimes loses what it is asked to watch; after its first answer it does
    // not.
    read(appearanceGroup, QStringLiteral("color-scheme"), [this] { follow(); });
    read(desktopGroup, QStringLiteral("text-scaling-factor"));
    read(desktopGroup, QStringLiteral("enable-animations"));
}

void DesktopAppearance::follow() {
    QDBusConnection::sessionBus().connect(service, path, settings, QStringLiteral("SettingChanged"), this,
                                          SLOT(apply(QString, QString, QDBusVariant)));
    read(appearanceGroup, QStringLiteral("color-scheme")); // it may have changed before it was watched
}

void DesktopAppearance::read(const QString &group, const QString &key, const std::function<void()> &then) {
    auto call = QDBusMessage::createMethodCall(service, path, settings, QStringLiteral("Read"));
    call << group << key;
    auto *reply = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, group, key, then] {
        const QDBusPendingReply<QDBusVariant> answer = *reply;
        if (answer.isValid()) apply(group, key, answer.value());
        reply->deleteLater();
        if (then) then();
    });
}

void DesktopAppearance::apply(const QString &group, const QString &key, const QDBusVariant &value) {
    const QVariant setting = unwrapped(QVariant::fromValue(value));
    if (group == appearanceGroup && key == QStringLiteral("color-scheme")) {
        appearance_.setDark(setting.toUInt() == preferDark);
    } else if (group == desktopGroup && key == QStringLiteral("text-scaling-factor")) {
        appearance_.setTextScale(setting.toDouble());
    } else if (group == desktopGroup && key == QStringLiteral("enable-animations")) {
        appearance_.setReducedMotion(!setting.toBool());
    }
}

} // namespace orl
