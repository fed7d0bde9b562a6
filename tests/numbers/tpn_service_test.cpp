#include "numbers/tpn_service.h"
#include "numbers_phone.h"

#include <gtest/gtest.h>

namespace orl {

namespace {

using test::element;

QByteArray chat(const QByteArray &name, const QByteArray &time, const QByteArray &text) {
    return element("direct-chat-msg left", element("direct-chat-name", name) +
                                               element("timeago direct-chat-timestamp pull-left", time) +
                                               element("direct-chat-text", text));
}

struct TpnServiceTest : NumbersTest {
    const QString pageUrl = QStringLiteral("https://second.example/norway/47(55)-01/page1");
    const QString numbersUrl = QStringLiteral("https://second.example/norway/");
    TPNService &tpn = process->shared<TPNService>();
    QList<Message> messages;
    QList<PhoneNumber> found;
    int completions = 0;
    bool whole = false;

    void fetchMessages(const QByteArray &page) {
        phone.urls.answer(pageUrl, page);
        tpn.fetchMessages(QStringLiteral("norway"), test::phoneNumber(QStringLiteral("+47 (55)-01")),
                          [this](const QList<Message> &list, bool isWhole) {
                              messages = list;
                              whole = isWhole;
                              ++completions;
                          });
        phone.settle();
    }

    void fetchNumbers(const PlayedUrls::Answer &answer) {
        phone.urls.answer(numbersUrl, answer);
        tpn.fetchNumbers(QStringLiteral("norway"), [this](const QList<PhoneNumber> &list) {
            found = list;
            ++completions;
        });
        phone.settle();
    }
};

} // namespace

TEST_F(TpnServiceTest, ReadsTheNumbersInPageOrder) {
    const char *cell = "col-sm-6 col-md-4 col-lg-3 col-xs-12";
    fetchNumbers(element(cell, element("info-box-number", " +47 55  01 ")) + element(cell, "no number here") +
                 element("col-sm-6", element("info-box-number", "elsewhere")));
    ASSERT_EQ(completions, 1);
    ASSERT_EQ(found.size(), 2) << "an empty text stays in the list";
    EXPECT_EQ(found[0].number, QStringLiteral("+47 55 01"));
    EXPECT_EQ(found[0].website, WebsiteService::T_P_N);
    EXPECT_EQ(found[1].number, QString());
    EXPECT_NE(found[0].id, found[1].id);
}

TEST_F(TpnServiceTest, FailuresCompleteWithWhatIsThere) {
    fetchNumbers(Error{QStringLiteral("no route")});
    EXPECT_EQ(completions, 1);
    EXPECT_TRUE(found.isEmpty());
    fetchMessages("\xff\xfe");
    EXPECT_EQ(completions, 2);
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_FALSE(whole);
    ASSERT_EQ(phone.console.lines.size(), 2);
    EXPECT_EQ(phone.console.lines[0], QStringLiteral("Failed to fetch TPN numbers: no route"));
    EXPECT_TRUE(phone.console.lines[1].startsWith(QLatin1String("Failed to fetch TPN messages: ")));
}

TEST_F(TpnServiceTest, AnAddressThatIsNoUrlIsNeverCompleted) {
    Platform broken = playedWith(phone.platform(), notifications, haptics);
    broken.endpoints.secondWebsite = QStringLiteral("not a url/");
    Process other{broken};
    const auto complete = [this](const auto &, auto...) { ++completions; };
    other.shared<TPNService>().fetchNumbers(QStringLiteral("norway"), complete);
    other.shared<TPNService>().fetchMessages(QStringLiteral("norway"), test::phoneNumber(QStringLiteral("1")),
                                             complete);
    phone.settle();
    EXPECT_EQ(completions, 0);
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(TpnServiceTest, ReadsAMessage) {
    fetchMessages(chat("From: Bank", "2 hours ago", "#&gt; code 12"));
    EXPECT_TRUE(whole);
    ASSERT_EQ(messages.size(), 1);
    const Message &message = messages.first();
    EXPECT_EQ(message.content, QStringLiteral("code 12"));
    EXPECT_EQ(message.time, std::nullopt);
    EXPECT_EQ(message.seen, std::nullopt);
    EXPECT_EQ(message.timeDateForTPN, phone.clock.now() - 7200);
    EXPECT_EQ(message.sender.name, QStringLiteral("Bank"));
    EXPECT_EQ(message.sender.iconText, QStringLiteral("BA"));
    EXPECT_EQ(message.sender.light, gradientPairs[0].light);
    EXPECT_EQ(message.sender.dark, gradientPairs[0].dark);
    EXPECT_TRUE(message.sender.messages.isEmpty());
    EXPECT_EQ(message.id.size(), 36);
}

TEST_F(TpnServiceTest, ASecondPlaceForTheSenderCountsWhereTheFirstIsEmpty) {
    fetchMessages(element("direct-chat-msg left", element("direct-chat-name", "") +
                                                      element("pull-right", "Shop") +
                                                      element("direct-chat-text", "hello")));
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages.first().sender.name, QStringLiteral("Shop"));
}

TEST_F(TpnServiceTest, DropsMessagesThatAreEmptyAfterTheRemovals) {
    fetchMessages(chat("A", "", "From: ") + chat("B", "", "") + chat("C", "", "text"));
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages.first().sender.name, QStringLiteral("C"));
}

TEST_F(TpnServiceTest, AnotherSitesPageHasNoMessages) {
    fetchMessages(test::messagePage(test::manySms(3)));
    EXPECT_EQ(completions, 1);
    EXPECT_TRUE(whole);
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(TpnServiceTest, ColoursKeepRotatingFromFetchToFetch) {
    QByteArray page;
    for (int i = 0; i < 11; ++i)
        page += chat("S" + QByteArray::number(i), "", "text");
    fetchMessages(page + chat("last", "", "text"));
    ASSERT_EQ(messages.size(), 12);
    EXPECT_EQ(messages[10].sender.light, gradientPairs[10].light);
    EXPECT_EQ(messages[11].sender.light, gradientPairs[0].light);
    fetchMessages(chat("A", "", "text"));
    EXPECT_EQ(messages[0].sender.light, gradientPairs[1].light);
}

TEST_F(TpnServiceTest, ASenderWithAPictureKeepsItsGradientToo) {
    tpn.setIcons({QStringLiteral("other"), QStringLiteral("bank")});
    fetchMessages(chat("BaNK", "", "text") + chat("Banker", "", "text"));
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[0].sender.icon,
              QStringLiteral("https://configuration.example/KeLo/OnlineSMS/SendersIcon/bank.jpg"));
    EXPECT_TRUE(messages[0].sender.light);
    EXPECT_EQ(messages[1].sender.icon, std::nullopt);
}

TEST(DateFromRelativeTime, ReadsPhrases) {
    constexpr double now = 1767225600;
    struct Case {
        const char *phrase;
        double secondsAgo;
    };
    const Case cases[] = {
        {"2 hours ago", 7200},
        {"1 year ago", 31104000},
        {"5 sec", 5},
        {"59 Seconds Ago", 59},
        {"1 minute ago", 60},
        {"3 mins", 180},
        {"4 days ago", 345600},
        {"2 weeks ago", 1209600},
        {"1 month ago", 2592000},
        {"- 3 days", 259200},
        {"1 0 minutes", 600},
        {"2 hours 30 minutes ago", 120}, // the smaller word is tried first, the first number counts
        {"an hour ago", 0},
        {"just now", 0},
        {"12", 0},
        {"", 0},
        {"99999999999999999999 days", 0},
        {"9000000000000000000 years", 0},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(dateFromRelativeTime(QLatin1String(row.phrase), now), now - row.secondsAgo) << row.phrase;
    }
}

} // namespace orl
