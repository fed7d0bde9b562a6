#include "numbers/choice_allowance.h"
#include "numbers/notification_manager.h"
#include "numbers_phone.h"

#include <gtest/gtest.h>

namespace orl {

namespace {

struct NewMessagesTest : NumbersTest {
    NewMessagesTest() { makeWithNumber(); }

    static QString stamp(int second) {
        return QStringLiteral("2026-01-01T00:00:%1.000000Z").arg(second, 2, 10, QLatin1Char('0'));
    }

    static Message message(const std::optional<QString> &time) {
        Message made;
        made.sender.name = QStringLiteral("Bank");
        made.time = time;
        return made;
    }

    static QList<Message> messagesAt(const QList<int> &seconds) {
        QList<Message> list;
        for (const int second : seconds)
            list.append(message(stamp(second)));
        return list;
    }

    size_t announcedBy(const QList<Message> &list) {
        notifications.added.clear();
        numbers->checkNewMessages(list);
        phone.advance(std::chrono::seconds(1));
        return notifications.added.size();
    }

    MessageSound &sound() { return process->shared<MessageSound>(); }
};

} // namespace

TEST_F(NewMessagesTest, TheFirstCheckAfterAChoiceAnnouncesNothing) {
    EXPECT_EQ(announcedBy(messagesAt({9, 8, 7})), 0U);
    EXPECT_TRUE(numbers->allowNotifications());
    EXPECT_EQ(numbers->lastMessageChecked()->time, stamp(9));
    numbers->chooseNumber(test::country(QStringLiteral("Norway")), test::phoneNumber(QStringLiteral("1")),
                          false);
    EXPECT_FALSE(numbers->allowNotifications());
    EXPECT_EQ(announcedBy(messagesAt({30, 20})), 0U);
    EXPECT_EQ(announcedBy(messagesAt({31, 30, 20})), 1U);
}

TEST_F(NewMessagesTest, AnnouncesEachMessageThatIsLaterThanTheLastFirstOne) {
    struct Case {
        const char *name;
        QList<Message> list;
        size_t announced;
    };
    const Case cases[] = {
        {"two new ones", messagesAt({12, 11, 10, 9}), 2},
        {"the same first one", messagesAt({10, 55}), 0},
        {"later ones further down too", messagesAt({11, 9, 30}), 2},
        {"an earlier page", messagesAt({5, 4}), 0},
        {"nothing", {}, 0},
        {"unreadable times are passed over",
         {message(QStringLiteral("soon")), message(stamp(11)), message({})},
         1},
    };
    for (const Case &row : cases) {
        announcedBy(messagesAt({10}));
        EXPECT_EQ(announcedBy(row.list), row.announced) << row.name;
        EXPECT_EQ(numbers->lastMessageChecked(),
                  row.list.isEmpty() ? std::nullopt : std::optional(row.list.first()))
            << row.name;
    }
}

TEST_F(NewMessagesTest, WithoutAReadableLastTimeNothingIsAnnounced) {
    for (const QList<Message> &before :
         {QList<Message>(), QList{message({})}, QList{message(QStringLiteral("soon"))}}) {
        announcedBy(before);
        EXPECT_EQ(announcedBy(messagesAt({59})), 0U);
    }
}

TEST_F(NewMessagesTest, ANotificationComesWithAnImpactAndTheSendersName) {
    announcedBy(messagesAt({10}));
    EXPECT_EQ(announcedBy(messagesAt({12, 11})), 2U);
    EXPECT_EQ(haptics.impacts, (std::vector{Impact::Medium, Impact::Medium}));
    EXPECT_EQ(notifications.asked, 2);
    const LocalNotification &first = notifications.added[0];
    EXPECT_EQ(first.title, QStringLiteral("Bank"));
    EXPECT_EQ(first.body, QStringLiteral("New message...!"));
    EXPECT_EQ(first.sound, QStringLiteral("swiftsound.caf"));
    EXPECT_EQ(first.identifier.size(), 36);
    EXPECT_NE(first.identifier, notifications.added[1].identifier);
}

TEST_F(NewMessagesTest, WithTheSoundOffNothingHappensAndNothingIsRemembered) {
    announcedBy(messagesAt({10}));
    sound().setMessageSoundEnabled(false);
    EXPECT_EQ(announcedBy(messagesAt({20})), 0U);
    EXPECT_TRUE(haptics.impacts.empty());
    EXPECT_EQ(numbers->lastMessageChecked()->time, stamp(10));
    sound().setMessageSoundEnabled(true);
    EXPECT_EQ(announcedBy(messagesAt({20, 15})), 2U);
}

TEST_F(NewMessagesTest, TheSoundSettingIsStoredAsItsNegation) {
    EXPECT_TRUE(sound().messageSoundEnabled());
    sound().setMessageSoundEnabled(false);
    EXPECT_TRUE(phone.store.boolean(QStringLiteral("message_received_sound_disabled_key")));
    restart();
    EXPECT_FALSE(sound().messageSoundEnabled());
}

TEST_F(NewMessagesTest, AFetchChecksWhatItBrought) {
    answerMessages({{QStringLiteral("A"), QStringLiteral("1"), stamp(1)}});
    fetch();
    EXPECT_EQ(numbers->lastMessageChecked()->content, QStringLiteral("1"));
    answerMessages({{QStringLiteral("B"), QStringLiteral("2"), stamp(2)},
                    {QStringLiteral("A"), QStringLiteral("1"), stamp(1)}});
    fetch();
    phone.advance(std::chrono::seconds(1));
    ASSERT_EQ(notifications.added.size(), 1U);
    EXPECT_EQ(notifications.added[0].title, QStringLiteral("B"));
}

TEST_F(NewMessagesTest, RefusedPermissionChecksNothing) {
    notifications.granted = false;
    answerMessages({{QStringLiteral("A"), QStringLiteral("1"), stamp(1)}});
    fetch();
    EXPECT_EQ(notifications.asked, 1);
    EXPECT_FALSE(numbers->allowNotifications());
    EXPECT_EQ(numbers->lastMessageChecked(), std::nullopt);
}

TEST_F(NewMessagesTest, TheBoxIsEmptyWhileTheSecondPageIsUnderWay) {
    answerMessages(test::manySms(8));
    phone.urls.answer(secondPageUrl, test::messagePage(test::manySms(1)));
    phone.urls.hold(secondPageUrl);
    fetch();
    EXPECT_TRUE(numbers->allowNotifications());
    EXPECT_EQ(numbers->lastMessageChecked(), std::nullopt);
    phone.urls.release(secondPageUrl);
    phone.settle();
    EXPECT_EQ(numbers->messages().size(), 9);
    EXPECT_EQ(numbers->lastMessageChecked(), std::nullopt) << "one check a fetch";
}

TEST_F(NewMessagesTest, ALatePermissionSeesTheBoxAsItThenStands) {
    notifications.holdAnswers = true;
    answerMessages(test::manySms(8));
    phone.urls.answer(secondPageUrl, test::messagePage(test::manySms(1)));
    fetch();
    notifications.answer();
    phone.settle();
    ASSERT_TRUE(numbers->lastMessageChecked());
    EXPECT_EQ(numbers->lastMessageChecked()->content, QStringLiteral("text 1"));
}

TEST_F(NewMessagesTest, AFailedPageAsksForNothing) {
    phone.urls.answer(messagesUrl, Error{QStringLiteral("no route")});
    fetch();
    EXPECT_EQ(notifications.asked, 0);
    EXPECT_FALSE(numbers->allowNotifications());
}

TEST_F(NewMessagesTest, TheFirstNotificationSurvivesTheClearingOfOldOnes) {
    NotificationManager &manager = process->shared<NotificationManager>();
    manager.scheduleNotification(QStringLiteral("1"), QStringLiteral("t"), QStringLiteral("b"));
    manager.scheduleNotification(QStringLiteral("2"), QStringLiteral("t"), QStringLiteral("b"));
    phone.advance(std::chrono::milliseconds(299));
    EXPECT_TRUE(notifications.added.empty());
    phone.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(notifications.events.join(QLatin1Char('|')),
              QStringLiteral("remove pending 1|remove pending 2|clear|badge 0|add 1|add 2"));
}

} // namespace orl
