#include "screens/message_card_view.h"
#include "screens_phone.h"

using namespace orl;
using namespace std::chrono_literals;

namespace {

struct MessageCardTest : ScreensTest {
    MessageCardView &card(Message message) {
        view = std::make_unique<MessageCardView>(*process, message);
        return *view;
    }

    Message aged(double seconds) {
        Message message;
        message.timeDateForTPN = phone.clock.now() - seconds;
        return message;
    }

    std::unique_ptr<MessageCardView> view;
};

TEST_F(MessageCardTest, ExportsAreTheCodesAndThenTheLink) {
    Message message;
    message.content = QStringLiteral("123-456 or 777, see https://a.example/x.");
    EXPECT_EQ(card(message).messagesExports(), (QStringList{QStringLiteral("123456"), QStringLiteral("777"),
                                                            QStringLiteral("https://a.example/x")}));
    message.content = QStringLiteral("no code, 12");
    EXPECT_TRUE(card(message).messagesExports().isEmpty());
}

TEST_F(MessageCardTest, LineSeparatorsAreShownAsBlanks) {
    Message message;
    message.content = QStringLiteral("a\u2028b");
    EXPECT_EQ(card(message).content(), QStringLiteral("a b"));
}

TEST_F(MessageCardTest, AgeComesFromThePagesStampThenFromTheDate) {
    Message message = aged(3600);
    EXPECT_EQ(card(message).age(), QStringLiteral("1 hour ago"));
    message.time = QStringLiteral("2025-12-31T23:58:00.000000Z");
    EXPECT_EQ(card(message).age(), QStringLiteral("2 minutes ago"));
    message.time = QStringLiteral("yesterday"); // unreadable: 180000 s
    EXPECT_EQ(card(message).age(), QStringLiteral("2 days ago"));
    EXPECT_EQ(card(Message()).age(), QString());
}

TEST_F(MessageCardTest, EachTickTakesTwentySecondsOffTheMoment) {
    int told = 0;
    QObject::connect(&card(aged(60)), &MessageCardView::ageChanged, [&told] { ++told; });
    phone.advance(9999ms);
    EXPECT_EQ(told, 0);
    phone.advance(1ms);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(view->age(), QStringLiteral("1 minute ago")); // 60 + 10 + 20
    phone.advance(10s);
    EXPECT_EQ(view->age(), QStringLiteral("2 minutes ago")); // 60 + 20 + 40
}

} // namespace
