#include "screens/message_card_view.h"
#include "screens/message_cards.h"
#include "screens_phone.h"

#include <QSignalSpy>

using namespace orl;
using namespace std::chrono_literals;

namespace {

struct MessageCardTest : ScreensTest {
    Message aged(double seconds) {
        Message message;
        message.timeDateForTPN = phone.clock.now() - seconds;
        return message;
    }

    QString age(const Message &message) {
        return MessageCardView(message, phone.clock.now()).age(phone.clock.now());
    }

    MessageCards cards{*process, [](const SMSSender &sender) { return sender; }};
};

TEST_F(MessageCardTest, ExportsAreTheCodesAndThenTheLink) {
    Message message;
    message.content = QStringLiteral("123-456 or 777, see https://a.example/x.");
    EXPECT_EQ(MessageCardView(message, 0).messagesExports(),
              (QStringList{QStringLiteral("123456"), QStringLiteral("777"),
                           QStringLiteral("https://a.example/x")}));
    message.content = QStringLiteral("no code, 12");
    EXPECT_TRUE(MessageCardView(message, 0).messagesExports().isEmpty());
}

TEST_F(MessageCardTest, LineSeparatorsAreShownAsBlanks) {
    Message message;
    message.content = QStringLiteral("a\u2028b");
    EXPECT_EQ(MessageCardView(message, 0).content(), QStringLiteral("a b"));
}

TEST_F(MessageCardTest, AgeComesFromThePagesStampThenFromTheDate) {
    Message message = aged(3600);
    EXPECT_EQ(age(message), QStringLiteral("1 hour ago"));
    message.time = QStringLiteral("2025-12-31T23:58:00.000000Z");
    EXPECT_EQ(age(message), QStringLiteral("2 minutes ago"));
    message.time = QStringLiteral("yesterday"); // unreadable: 180000 s
    EXPECT_EQ(age(message), QStringLiteral("2 days ago"));
    EXPECT_EQ(age(Message()), QString());
}

TEST_F(MessageCardTest, EachTickTakesTwentySecondsOffTheMoment) {
    cards.show({aged(60), Message()}, false);
    QSignalSpy told(&cards, &QAbstractItemModel::dataChanged);
    phone.advance(9999ms);
    EXPECT_EQ(told.count(), 0);
    phone.advance(1ms);
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(cards.value(0, "age"), QStringLiteral("1 minute ago")); // 60 + 10 + 20
    phone.advance(10s);
    EXPECT_EQ(cards.value(0, "age"), QStringLiteral("2 minutes ago")); // 60 + 20 + 40
    EXPECT_EQ(cards.value(1, "age"), QString());
}

TEST_F(MessageCardTest, CardsThatAppearAnewTickFromThen) {
    cards.show({aged(60)}, false);
    phone.advance(9s);
    cards.show({aged(60)}, false);
    phone.advance(9s);
    EXPECT_EQ(cards.value(0, "age"), QStringLiteral("1 minute ago")); // 60 + 9
    phone.advance(42s);                                               // 60 + 51 + 5 * 20
    EXPECT_EQ(cards.value(0, "age"), QStringLiteral("3 minutes ago"));
}

} // namespace
