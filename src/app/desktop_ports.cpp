#include "app/desktop_ports.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QGuiApplication>

namespace orl {

void DesktopPasteboard::setString(const QString &text) {
    QGuiApplication::clipboard()->setText(text);
}

void DesktopBrowser::open(const QUrl &url) {
    QDesktopServices::openUrl(url);
}

void FeedbackHaptics::impact(Impact style) {
    const bool strong = style == Impact::Medium || style == Impact::Heavy;
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.sigxcpu.Feedback"), QStringLiteral("/org/sigxcpu/Feedback"),
        QStringLiteral("org.sigxcpu.Feedback"), QStringLiteral("TriggerFeedback"));
    call << QGuiApplication::desktopFileName()
         << (strong ? QStringLiteral("message-new-sms") : QStringLiteral("button-pressed")) << QVariantMap()
         << -1;
    call.setAutoStartService(false);
    QDBusConnection::sessionBus().send(call);
}

} // namespace orl
