#include "notification_server.h"
#include "platform/qt/desktop_notifications.h"
#include "private_bus.h"
#include "support/played_platform.h"
#include "support/wait_until.h"

#include <QFile>
#include <QSignalSpy>

#include <gtest/gtest.h>
#include <memory>

namespace orl {
namespace {

class DesktopNotificationsTest : public testing::Test {
protected:
    DesktopNotificationsTest() {
        bundle.resources[QStringLiteral("swiftsound.caf")] = "a sound";
        startServer();
    }

    void startServer() {
        server = std::make_unique<NotificationServer>(bus.connection(QStringLiteral("server")));
    }

    bool permission() {
        std::optional<bool> answer;
        notifications.requestPermission([&](bool granted) { answer = granted; });
        EXPECT_TRUE(waitUntil([&] { return answer.has_value(); }));
        return answer.value_or(false);
    }

    LocalNotification notification(const QString &identifier, const QString &title = QStringLiteral("Bank")) {
        return {identifier, title, QStringLiteral("New message...!"), QStringLiteral("swiftsound.caf")};
    }

    void settle() { orl::settle(client, QStringLiteral("org.freedesktop.Notifications")); }

    bool shows(std::size_t count) {
        const bool reached = waitUntil([&] { return server->shown.size() >= count; });
        settle(); // the server's answer is here, too
        return reached;
    }

    PrivateBus bus;
    QDBusConnection client = bus.connection(QStringLiteral("orl"));
    PlayedBundle bundle;
    QTemporaryDir sounds;
    std::unique_ptr<NotificationServer> server;
    DesktopNotifications notifications{
        {QStringLiteral("Orl"), QStringLiteral("orl"), sounds.filePath("a/b")}, bundle, client};
};

TEST_F(DesktopNotificationsTest, PermissionIsThatAServerAnswers) {
    EXPECT_TRUE(permission());
    EXPECT_TRUE(permission());
    EXPECT_EQ(server->asked, 1) << "the answer holds as long as the server stays";
    server->leaveBus();
    settle();
    EXPECT_FALSE(permission());
    notifications.add(notification(QStringLiteral("a")));
    startServer();
    settle();
    EXPECT_TRUE(permission());
    EXPECT_TRUE(server->shown.empty());
}

TEST_F(DesktopNotificationsTest, WithoutABusNothingIsGranted) {
    DesktopNotifications alone({}, bundle, QDBusConnection(QStringLiteral("no bus")));
    std::optional<bool> answer;
    alone.requestPermission([&](bool granted) { answer = granted; });
    EXPECT_EQ(answer, false);
    alone.add(notification(QStringLiteral("a")));
    alone.setBadgeNumber(0);
}

TEST_F(DesktopNotificationsTest, AServerThatHangsHoldsUpNothing) {
    server->hangs = true;
    int answers = 0;
    for (int i = 0; i < 3; ++i)
        notifications.requestPermission([&](bool) { ++answers; });
    EXPECT_TRUE(waitUntil([&] { return server->asked > 0; }));
    settle();
    EXPECT_EQ(server->asked, 1);
    EXPECT_EQ(answers, 0);
}

TEST_F(DesktopNotificationsTest, ShowsTitleTextAndSound) {
    ASSERT_TRUE(permission());
    notifications.add({QStringLiteral("a"), QStringLiteral("Tom & <b>Jo</b>"),
                       QStringLiteral("1 < 2 & \"3\""), QStringLiteral("swiftsound.caf")});
    ASSERT_TRUE(shows(1));
    const auto &shown = server->shown.front();
    EXPECT_EQ(shown.application, "Orl");
    EXPECT_EQ(shown.icon, "orl");
    EXPECT_EQ(shown.summary, "Tom & <b>Jo</b>") << "a title is never markup";
    EXPECT_EQ(shown.body, "1 &lt; 2 &amp; &quot;3&quot;");
    EXPECT_EQ(shown.actions.value(0), "default");
    EXPECT_EQ(shown.hints.value("desktop-entry"), "orl");
    EXPECT_EQ(shown.hints.value("sound-name"), "message-new-instant");
    QFile sound(shown.hints.value("sound-file").toString());
    EXPECT_TRUE(sound.fileName().endsWith("/swiftsound.caf"));
    ASSERT_TRUE(sound.open(QIODevice::ReadOnly));
    EXPECT_EQ(sound.readAll(), "a sound");
}

TEST_F(DesktopNotificationsTest, APlainServerGetsPlainText) {
    server->capabilities = QStringList{"body"};
    ASSERT_TRUE(permission());
    notifications.add({QStringLiteral("a"), QStringLiteral("x"), QStringLiteral("1 < 2"), {}});
    ASSERT_TRUE(shows(1));
    EXPECT_EQ(server->shown.front().body, "1 < 2");
    EXPECT_TRUE(server->shown.front().actions.isEmpty());
    EXPECT_FALSE(server->shown.front().hints.contains("sound-file"));
}

TEST_F(DesktopNotificationsTest, TheSameIdentifierReplacesAndOthersStandBesideIt) {
    ASSERT_TRUE(permission());
    // The second and third come before the server has answered: only the last of them is shown.
    notifications.add(notification(QStringLiteral("a"), QStringLiteral("first")));
    notifications.add(notification(QStringLiteral("a"), QStringLiteral("second")));
    notifications.add(notification(QStringLiteral("a"), QStringLiteral("third")));
    ASSERT_TRUE(shows(2));
    EXPECT_EQ(server->shown[1].summary, "third");
    EXPECT_EQ(server->shown[1].replacesId, server->shown[0].id);
    notifications.add(notification(QStringLiteral("b")));
    ASSERT_TRUE(shows(3));
    EXPECT_EQ(server->shown[2].replacesId, 0U);
    EXPECT_TRUE(server->closed.isEmpty());
}

TEST_F(DesktopNotificationsTest, RemovingClosesWhatIsShownOrUnderWay) {
    ASSERT_TRUE(permission());
    notifications.add(notification(QStringLiteral("a")));
    notifications.add(notification(QStringLiteral("b")));
    ASSERT_TRUE(shows(2));
    notifications.removePending(QStringLiteral("a"));
    notifications.removePending(QStringLiteral("never shown"));
    ASSERT_TRUE(waitUntil([&] { return !server->closed.isEmpty(); }));
    EXPECT_EQ(server->closed, QList<uint>{server->shown[0].id});

    notifications.add(notification(QStringLiteral("c")));
    notifications.removeAllDelivered(); // "c" is not answered yet
    ASSERT_TRUE(waitUntil([&] { return server->closed.size() == 3; }));
    EXPECT_EQ(QSet<uint>(server->closed.begin(), server->closed.end()).size(), 3);
    settle();
    notifications.removeAllDelivered();
    settle();
    EXPECT_EQ(server->closed.size(), 3);
}

TEST_F(DesktopNotificationsTest, AClickHandsOnTheToken) {
    QSignalSpy chosen(&notifications, &DesktopNotifications::chosen);
    ASSERT_TRUE(permission());
    notifications.add(notification(QStringLiteral("a")));
    ASSERT_TRUE(shows(1));
    const uint id = server->shown.front().id;
    Q_EMIT server->ActivationToken(id + 1, QStringLiteral("another program's"));
    Q_EMIT server->ActionInvoked(id + 1, QStringLiteral("default"));
    Q_EMIT server->ActionInvoked(id, QStringLiteral("snooze"));
    Q_EMIT server->ActivationToken(id, QStringLiteral("token 7"));
    Q_EMIT server->ActionInvoked(id, QStringLiteral("default"));
    Q_EMIT server->ActionInvoked(id, QStringLiteral("default"));
    ASSERT_TRUE(waitUntil([&] { return chosen.size() == 2; }));
    EXPECT_EQ(chosen[0][0].toString(), "token 7");
    EXPECT_EQ(chosen[1][0].toString(), "") << "a token is good for once";
}

TEST_F(DesktopNotificationsTest, WhatTheUserDismissedIsNotReplaced) {
    ASSERT_TRUE(permission());
    notifications.add(notification(QStringLiteral("a")));
    ASSERT_TRUE(shows(1));
    Q_EMIT server->NotificationClosed(server->shown.front().id, 2);
    settle();
    notifications.add(notification(QStringLiteral("a")));
    ASSERT_TRUE(shows(2));
    EXPECT_EQ(server->shown[1].replacesId, 0U);
}

} // namespace
} // namespace orl
