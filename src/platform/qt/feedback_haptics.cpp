#include "platform/qt/feedback_haptics.h"

#include <QDBusMessage>
#include <QVariantMap>

namespace orl {

namespace {

const QString service = QStringLiteral("org.sigxcpu.Feedback");
const QString path = QStringLiteral("/org/sigxcpu/Feedback");
constexpr int eventsOwnLength = -1;

/// The daemon knows events, not strengths; its themes give these two a strong and a soft buzz.
QString eventFor(Impact style) {
    switch (style) {
    case Impact::Medium:
    case Impact::Heavy: return QStringLiteral("message-new-sms");
    case Impact::Light:
    case Impact::Soft:
    case Impact::Rigid: break;
    }
    return QStringLiteral("button-pressed");
}

} // namespace

FeedbackHaptics::FeedbackHaptics(QString desktopEntry, const QDBusConnection &bus)
    : desktopEntry_(std::move(desktopEntry)), bus_(bus) {}

void FeedbackHaptics::impact(Impact style) {
    auto call = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("TriggerFeedback"));
    call << desktopEntry_ << eventFor(style) << QVariantMap() << eventsOwnLength;
    call.setAutoStartService(false);
    bus_.send(call);
}

} // namespace orl
