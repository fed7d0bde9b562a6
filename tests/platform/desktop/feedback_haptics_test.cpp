#include "platform/qt/feedback_haptics.h"
#include "private_bus.h"
#include "support/wait_until.h"

#include <QObject>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace orl {

class FeedbackDaemon : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.sigxcpu.Feedback")
public:
    QStringList events;

public Q_SLOTS:
    uint TriggerFeedback(const QString &application, const QString &event, const QVariantMap &, int) {
        events << application + u' ' + event;
        return 1;
    }
};

namespace {

TEST(FeedbackHapticsTest, TellsTheDaemonAndGoesOnWithoutOne) {
    PrivateBus bus;
    FeedbackHaptics haptics(QStringLiteral("orl"), bus.connection(QStringLiteral("orl")));
    haptics.impact(Impact::Soft); // nobody is there

    FeedbackDaemon daemon;
    QDBusConnection server = bus.connection(QStringLiteral("daemon"));
    ASSERT_TRUE(server.registerObject(QStringLiteral("/org/sigxcpu/Feedback"), &daemon,
                                      QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(server.registerService(QStringLiteral("org.sigxcpu.Feedback")));
    haptics.impact(Impact::Medium);
    haptics.impact(Impact::Soft);
    ASSERT_TRUE(waitUntil([&] { return daemon.events.size() >= 2; }));
    EXPECT_EQ(daemon.events, (QStringList{"orl message-new-sms", "orl button-pressed"}));
}

} // namespace
} // namespace orl

#include "feedback_haptics_test.moc"
