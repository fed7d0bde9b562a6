#include "numbers_phone.h"

#include <gtest/gtest.h>

namespace orl {

namespace {

using test::contents;
using test::manySms;
using test::names;

struct PipelineTest : NumbersTest {
    Message message(const QString &sender, const QString &content = QStringLiteral("text")) {
        Message made;
        made.id = freshUuidText();
        made.content = content;
        made.sender.name = sender;
        return made;
    }

    QList<Message> messagesOf(const QStringList &senders) {
        QList<Message> list;
        for (const QString &sender : senders)
            list.append(message(sender));
        return list;
    }

    static QStringList split(const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
};

struct SecondWebsiteTest : PipelineTest {
    const QString pageUrl = QStringLiteral("https://second.example/norway/47/page1");

    SecondWebsiteTest() {
        phone.urls.answer(tpnCountriesUrl, test::encodedCountries({test::country(QStringLiteral("Norway"),
                                                                                 QStringLiteral("norway"))}));
        answerChats({QStringLiteral("one"), QStringLiteral("two")});
    }

    void choose(std::optional<WebsiteService> website, const QString &country = QStringLiteral("Norway")) {
        make().chooseNumber(test::country(country), test::phoneNumber(QStringLiteral("+47"), website), false);
        phone.settle();
    }

    void answerChats(const QStringList &texts) {
        QByteArray page;
        for (const QString &text : texts) {
            page +=
                test::element("direct-chat-msg left", test::element("direct-chat-name", "Shop") +
                                                          test::element("direct-chat-text", text.toUtf8()));
        }
        phone.urls.answer(pageUrl, page);
    }
};

} // namespace

TEST_F(PipelineTest, ReadsAMessageByTheCompiledRecipe) {
    answerMessages({{QStringLiteral("From: Bank"), QStringLiteral("s2 < \" > Code 1 & 2"),
                     QStringLiteral("2026-01-01T00:00:00.000000Z")}});
    makeWithNumber();
    fetch();
    ASSERT_EQ(numbers->messages().size(), 1);
    const Message &message = numbers->messages().first();
    EXPECT_EQ(message.sender.name, QStringLiteral("Bank"));
    EXPECT_EQ(message.content, QStringLiteral("Code 1 & 2"));
    EXPECT_EQ(message.time, QStringLiteral("2026-01-01T00:00:00.000000Z"));
    EXPECT_EQ(message.timeDateForTPN, std::nullopt);
    EXPECT_EQ(message.seen, std::nullopt);
    EXPECT_EQ(message.sender.iconText, QStringLiteral("BA"));
    EXPECT_TRUE(message.sender.messages.isEmpty());
    EXPECT_EQ(message.id.size(), 36);
}

TEST_F(PipelineTest, MessagesWithoutAPartStayInTheList) {
    const char *box = "shadow-sm bg-light rounded border-start border-info border-5";
    phone.urls.answer(messagesUrl,
                      test::element(box, test::element("mb-1", "A")) +
                          test::element(box, test::element("placeholder text-break", "no sender")) +
                          test::element("mt-3", "<b data-created=\"T\">now</b>"));
    makeWithNumber();
    fetch();
    ASSERT_EQ(contents(numbers->messages()), (QStringList{QString(), QStringLiteral("no sender")}));
    EXPECT_EQ(numbers->messages()[0].time, QStringLiteral("T"));
    EXPECT_EQ(numbers->messages()[1].time, std::nullopt) << "fewer time elements than messages";
    EXPECT_EQ(names(numbers->senders()), (QStringList{QStringLiteral("A"), QString()}));
}

TEST_F(PipelineTest, WithoutANumberNothingIsFetched) {
    make();
    phone.settle();
    phone.urls.requests.clear();
    fetch();
    EXPECT_TRUE(phone.urls.requests.empty());
}

TEST_F(PipelineTest, APageOfEightIsTheSignForASecondOne) {
    phone.urls.answer(secondPageUrl, test::messagePage(manySms(8, QStringLiteral("older"))));
    for (const auto &[onPage, shown] : {std::pair(7, 7), std::pair(8, 16), std::pair(10, 18)}) {
        answerMessages(manySms(onPage));
        makeWithNumber();
        phone.urls.requests.clear();
        fetch();
        EXPECT_EQ(phone.urls.requests.size(), shown == onPage ? 1U : 2U) << onPage;
        EXPECT_EQ(numbers->messages().size(), shown) << "never more than two pages";
        EXPECT_EQ(numbers->messages().first().content, QStringLiteral("text 1"));
    }
    EXPECT_EQ(numbers->messages().last().content, QStringLiteral("older 8"));
}

TEST_F(PipelineTest, AFailedSecondPageGivesNoMessagesAtAll) {
    answerMessages(manySms(8));
    phone.urls.answer(secondPageUrl, Error{QStringLiteral("no route")});
    makeWithNumber();
    fetch();
    EXPECT_TRUE(numbers->messages().isEmpty());
    EXPECT_TRUE(numbers->senders().isEmpty());
    EXPECT_EQ(phone.console.lines,
              QStringList{QStringLiteral("Failed to fetch messages for this number +1 555 0100: no route ") +
                          secondPageUrl});
}

TEST_F(PipelineTest, AFetchThatBringsNothingLeavesWhatIsShown) {
    struct Case {
        const char *name;
        PlayedUrls::Answer answer;
        bool logs;
    };
    const Case cases[] = {
        {"unreadable", Error{QStringLiteral("no route")}, true},
        {"invalid UTF-8", "\xc3\x28", true},
        {"404 page", UrlResponse{404, "<html>Not found</html>"}, false},
        {"empty page", "", false},
        {"another site", "<html><body><div class=\"mb-1\">x</div></body></html>", false},
    };
    answerMessages(manySms(2));
    makeWithNumber();
    fetch();
    const QList<Message> messages = numbers->messages();
    const QList<SMSSender> senders = numbers->senders();
    ASSERT_EQ(messages.size(), 2);
    for (const Case &row : cases) {
        phone.console.lines.clear();
        phone.urls.answer(messagesUrl, row.answer);
        fetch(true);
        EXPECT_EQ(numbers->messages(), messages) << row.name;
        EXPECT_EQ(numbers->senders(), senders) << row.name;
        ASSERT_EQ(phone.console.lines.size(), row.logs ? 1 : 0) << row.name;
        if (!row.logs) continue;
        const QString &line = phone.console.lines.first();
        EXPECT_TRUE(line.startsWith(QLatin1String("Failed to fetch messages for this number +1 555 0100: ")))
            << row.name;
        EXPECT_TRUE(line.endsWith(messagesUrl)) << row.name;
    }
}

TEST_F(PipelineTest, AnUnchangedFirstMessageReplacesOnlyTheSenders) {
    answerMessages({{QStringLiteral("A"), QStringLiteral("first"), {}}});
    makeWithNumber();
    fetch();
    const QList<Message> before = numbers->messages();
    answerMessages({{QStringLiteral("A"), QStringLiteral("first"), {}},
                    {QStringLiteral("B"), QStringLiteral("new"), {}}});
    fetch(false);
    EXPECT_EQ(numbers->messages(), before);
    EXPECT_EQ(names(numbers->senders()), split("A B"));
    EXPECT_EQ(numbers->gradientColorIndex(), 2);
    fetch(true);
    EXPECT_EQ(contents(numbers->messages()), split("first new"));
}

TEST_F(PipelineTest, ALateAnswerOfAnEarlierNumberIsApplied) {
    answerMessages(manySms(1, QStringLiteral("early")));
    phone.urls.hold(messagesUrl);
    makeWithNumber();
    fetch();
    const QString otherUrl = QStringLiteral("https://first.example/en/numbers/47");
    phone.urls.answer(otherUrl, test::messagePage(manySms(1, QStringLiteral("other"))));
    numbers->chooseNumber(test::country(QStringLiteral("Norway")), test::phoneNumber(QStringLiteral("+47")),
                          false);
    fetch();
    EXPECT_EQ(contents(numbers->messages()), QStringList{QStringLiteral("other 1")});
    phone.urls.release(messagesUrl);
    phone.settle();
    EXPECT_EQ(contents(numbers->messages()), QStringList{QStringLiteral("early 1")});
}

TEST_F(PipelineTest, TheOldMessagesStayUntilTheNewNumbersArrive) {
    answerMessages(manySms(1));
    makeWithNumber();
    fetch();
    numbers->chooseNumber(test::country(QStringLiteral("Norway")), test::phoneNumber(QStringLiteral("+47")),
                          false);
    phone.settle();
    EXPECT_EQ(contents(numbers->messages()), QStringList{QStringLiteral("text 1")});
}

TEST_F(PipelineTest, TellsWhenAPageWasLastRead) {
    answerMessages(manySms(1));
    makeWithNumber();
    EXPECT_EQ(numbers->lastFetchSucceededAt(), std::nullopt);
    fetch();
    const double first = phone.clock.now();
    EXPECT_EQ(numbers->lastFetchSucceededAt(), first);
    phone.advance(std::chrono::seconds(10));
    phone.urls.answer(messagesUrl, Error{QStringLiteral("no route")});
    fetch();
    EXPECT_EQ(numbers->lastFetchSucceededAt(), first);
    answerMessages(manySms(1));
    fetch();
    EXPECT_EQ(numbers->lastFetchSucceededAt(), first + 10);
}

TEST_F(PipelineTest, LateMessagesDoNotTouchADestroyedObject) {
    answerMessages(manySms(8));
    phone.urls.answer(secondPageUrl, test::messagePage(manySms(3)));
    phone.urls.hold(messagesUrl);
    notifications.holdAnswers = true;
    makeWithNumber();
    fetch();
    numbers.reset();
    process.reset();
    phone.urls.release(messagesUrl);
    phone.settle();
    notifications.answer();
    phone.settle();
    EXPECT_EQ(phone.urls.count(secondPageUrl), 0);
}

TEST_F(PipelineTest, AnAddressThatIsNoUrlCountsAsAPageWithoutMessages) {
    makeWithNumber(QStringLiteral("%zz"));
    phone.urls.requests.clear();
    fetch();
    EXPECT_TRUE(phone.urls.requests.empty());
    EXPECT_EQ(notifications.asked, 1);
    EXPECT_TRUE(phone.console.lines.isEmpty());
    EXPECT_EQ(numbers->lastFetchSucceededAt(), std::nullopt);
}

TEST_F(PipelineTest, ThePictureOfASenderTakesThePlaceOfItsGradient) {
    phone.urls.answer(iconsUrl, R"(["bank"])");
    answerMessages({{QStringLiteral("BANK"), QStringLiteral("1"), {}},
                    {QStringLiteral("Other"), QStringLiteral("2"), {}}});
    makeWithNumber();
    fetch();
    for (const SMSSender &sender : {numbers->senders()[0], numbers->messages()[0].sender}) {
        EXPECT_EQ(sender.icon,
                  QStringLiteral("https://configuration.example/KeLo/OnlineSMS/SendersIcon/bank.jpg"));
        EXPECT_EQ(sender.light, std::nullopt);
        EXPECT_EQ(sender.iconText, std::nullopt);
    }
    EXPECT_EQ(numbers->senders()[1].icon, std::nullopt);
    EXPECT_EQ(numbers->senders()[1].light, gradientPairs[0].light);
}

TEST_F(PipelineTest, AdsStandAtEveryFifthRowOfTheSenders) {
    struct Case {
        const char *name;
        bool ads;
        const char *senders;
        const char *rows;
    };
    const Case cases[] = {
        {"off", false, "A B", "A B"},
        {"three senders", true, "A B C", "native_ad A B C"},
        {"the count includes the ads", true, "A B C D E F G H I",
         "native_ad A B C D native_ad E F G H native_ad I"},
        {"messages of known senders make no row", true, "A B A A B", "native_ad A B"},
        {"names are compared exactly", false, "a A a", "a A"},
    };
    make();
    for (const Case &row : cases) {
        setAds(row.ads);
        numbers->groupMessages(messagesOf(split(row.senders)));
        EXPECT_EQ(names(numbers->senders()), split(row.rows)) << row.name;
    }
    setAds(true);
    numbers->groupMessages(messagesOf(split("A B C D E F")));
    EXPECT_EQ(numbers->senders()[0].id, QStringLiteral("inside_chat_0"));
    EXPECT_EQ(numbers->senders()[5].id, QStringLiteral("inside_chat_5"));
    EXPECT_EQ(numbers->senders()[5].iconText, std::nullopt);
}

TEST_F(PipelineTest, SendersHoldTheirMessagesInPageOrder) {
    QList<Message> list = messagesOf(split("A B A"));
    list[2].content = QStringLiteral("last");
    make().groupMessages(list);
    EXPECT_EQ(numbers->senders()[0].messages, (QList{list[0], list[2]}));
    const QList<SMSSender> before = numbers->senders();
    numbers->groupMessages({});
    EXPECT_EQ(numbers->senders(), before);
}

TEST_F(PipelineTest, EachSenderTakesOneGradientAndTheTwelfthTheFirst) {
    make();
    for (int round = 0; round < 2; ++round) {
        numbers->groupMessages(messagesOf(split("a a b c d e f g h i j k l")));
        ASSERT_EQ(numbers->senders().size(), 12);
        EXPECT_EQ(numbers->senders()[1].light, gradientPairs[1].light) << "a second message takes none";
        EXPECT_EQ(numbers->senders()[10].dark, gradientPairs[10].dark);
        EXPECT_EQ(numbers->senders()[11].light, gradientPairs[0].light);
        EXPECT_EQ(numbers->gradientColorIndex(), 1);
    }
}

TEST_F(PipelineTest, AnAdStandsBehindTheNewestMessage) {
    make();
    setAds(true);
    numbers->applyMessages(messagesOf(split("A B")));
    EXPECT_EQ(contents(numbers->messages()), split("text NativeAd text"));
    EXPECT_EQ(numbers->messages()[1].sender.id, QStringLiteral("NativeAd"));
    EXPECT_EQ(numbers->messages()[1].sender.name, QStringLiteral("NativeAd"));
    numbers->applyMessages(messagesOf(split("A")));
    EXPECT_EQ(contents(numbers->messages()), split("text NativeAd"));
    numbers->applyMessages({});
    EXPECT_TRUE(numbers->messages().isEmpty());
}

TEST_F(PipelineTest, SeenMarksSurviveARestart) {
    Message first = message(QStringLiteral("A"));
    Message second = first;
    first.time = QStringLiteral("T1");
    second.time = QStringLiteral("T2");
    make().groupMessages({first, second});
    EXPECT_EQ(numbers->unseenCount(numbers->senders()[0]), 2);
    numbers->markSeen({first});
    EXPECT_EQ(phone.store.boolean(QStringLiteral("A_T1")), true);
    EXPECT_EQ(numbers->unseenCount(numbers->senders()[0]), 1);
    restart();
    make().groupMessages({first, second});
    EXPECT_EQ(numbers->unseenCount(numbers->senders()[0]), 1);
    numbers->markSeen({second});
    EXPECT_EQ(numbers->unseenCount(numbers->senders()[0]), std::nullopt);
}

TEST_F(PipelineTest, MessagesWithoutATimeShareOneSeenMark) {
    make().groupMessages(messagesOf(split("A A B")));
    numbers->markSeen({message(QStringLiteral("A"))});
    EXPECT_EQ(numbers->unseenCount(numbers->senders()[0]), std::nullopt);
    EXPECT_EQ(numbers->unseenCount(numbers->senders()[1]), 1);
    EXPECT_TRUE(phone.store.boolean(QStringLiteral("A_")));
}

TEST_F(PipelineTest, TheSeenFieldGoesAheadOfTheStore) {
    make();
    SMSSender sender;
    EXPECT_EQ(numbers->unseenCount(sender), std::nullopt);
    sender.messages = messagesOf(split("A A A"));
    sender.messages[0].seen = true;
    sender.messages[1].seen = false;
    EXPECT_EQ(numbers->unseenCount(sender), 2);
    phone.store.setValue(QStringLiteral("A_"), true);
    EXPECT_EQ(numbers->unseenCount(sender), 1);
}

TEST_F(PipelineTest, MarkingSetsTheFirstMessageOfTheOpenConversation) {
    make().groupMessages(messagesOf(split("A B B")));
    numbers->setSelectedConversation(numbers->senders()[1]);
    numbers->groupMessages(messagesOf(split("A B B"))); // a refresh makes new records of the same senders
    const auto published = notified(&RequestViewModel::sendersChanged);
    numbers->markSeen(numbers->senders()[1].messages);
    EXPECT_EQ(numbers->senders()[1].messages[0].seen, true);
    EXPECT_EQ(numbers->senders()[1].messages[1].seen, std::nullopt);
    EXPECT_EQ(numbers->senders()[0].messages[0].seen, std::nullopt);
    EXPECT_EQ(*published, 1);
    SMSSender gone;
    gone.name = QStringLiteral("gone");
    numbers->setSelectedConversation(gone);
    numbers->markSeen({});
    EXPECT_EQ(*published, 1);
}

TEST_F(PipelineTest, AnOpenConversationWithoutMessagesIsAFaultOfTheProgram) {
    setAds(true);
    make().groupMessages(messagesOf(split("A")));
    numbers->setSelectedConversation(numbers->senders()[0]);
    EXPECT_THROW(numbers->markSeen({}), PlayedFatalError);
}

TEST_F(SecondWebsiteTest, ServesItsOwnNumbersAndThoseWithoutAWebsite) {
    for (const std::optional<WebsiteService> website :
         {std::optional(WebsiteService::T_P_N), std::optional<WebsiteService>()}) {
        choose(website);
        fetch();
        EXPECT_EQ(contents(numbers->messages()), split("one two"));
        EXPECT_EQ(names(numbers->senders()), split("Shop"));
        EXPECT_EQ(numbers->lastFetchSucceededAt(), phone.clock.now());
    }
    EXPECT_EQ(notifications.asked, 0) << "nothing is announced for it";
}

TEST_F(SecondWebsiteTest, AnUnknownCountryIsNotFetched) {
    choose(WebsiteService::T_P_N, QStringLiteral("norway"));
    phone.urls.requests.clear();
    fetch();
    EXPECT_TRUE(phone.urls.requests.empty());
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(SecondWebsiteTest, AnEmptyOrFailedPageClearsTheMessages) {
    for (const PlayedUrls::Answer &answer :
         {PlayedUrls::Answer(""), PlayedUrls::Answer(Error{QStringLiteral("x")})}) {
        answerChats({QStringLiteral("one")});
        choose(WebsiteService::T_P_N);
        fetch();
        ASSERT_EQ(numbers->messages().size(), 1);
        const auto lastRead = numbers->lastFetchSucceededAt();
        phone.advance(std::chrono::seconds(10));
        phone.urls.answer(pageUrl, answer);
        fetch();
        EXPECT_TRUE(numbers->messages().isEmpty());
        EXPECT_EQ(names(numbers->senders()), split("Shop")) << "the senders stay";
        EXPECT_EQ(numbers->lastFetchSucceededAt() == lastRead, !answer.ok());
        const auto published = notified(&RequestViewModel::messagesChanged);
        fetch();
        EXPECT_EQ(*published, 0) << "both lists are empty";
    }
}

TEST_F(SecondWebsiteTest, AnUnchangedFirstMessageReplacesOnlyTheSenders) {
    choose(WebsiteService::T_P_N);
    fetch();
    answerChats({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    fetch();
    EXPECT_EQ(numbers->messages().size(), 2);
    EXPECT_EQ(numbers->senders()[0].messages.size(), 3);
    fetch(true);
    EXPECT_EQ(numbers->messages().size(), 3);
}

} // namespace orl
