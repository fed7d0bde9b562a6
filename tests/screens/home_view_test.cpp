#include "screens/avatar_face.h"
#include "screens/copy_view_model.h"
#include "screens/home_view.h"
#include "screens_phone.h"

#include <QSignalSpy>

using namespace orl;
using namespace std::chrono_literals;
using test::Sms;

namespace {

using State = HomeView::State;

const QString at = QStringLiteral("2025-12-31T23:50:00.000000Z");

struct HomeTest : ScreensTest {
    QStringList shown() { return test::texts(*content->home()->messages(), "content"); }
};

TEST_F(HomeTest, MessagesComeAtOnceAndThenEveryTenSeconds) {
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("one"), at}});
    EXPECT_EQ(home.state(), State::Messages);
    EXPECT_EQ(shown(), QStringList{QStringLiteral("one")});
    const qsizetype reads = phone.urls.count(messagesUrl);
    phone.advance(30s);
    EXPECT_EQ(phone.urls.count(messagesUrl), reads + 3);
}

TEST_F(HomeTest, RefreshKeepsTheRowsThatAreStillThere) {
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("one"), at}});
    const QPersistentModelIndex one = home.messages()->index(0);
    QSignalSpy inserted(home.messages(), &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(home.messages(), &QAbstractItemModel::rowsRemoved);
    answerMessages(
        {{QStringLiteral("B"), QStringLiteral("two"), at}, {QStringLiteral("A"), QStringLiteral("one"), at}});
    phone.advance(10s);
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("two"), QStringLiteral("one")}));
    EXPECT_TRUE(one.isValid());
    EXPECT_EQ(one.row(), 1);
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(removed.count(), 0);
}

TEST_F(HomeTest, NewListShowsTrueAgesAgain) {
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("one"), at}});
    EXPECT_EQ(home.messages()->value(0, "age"), QStringLiteral("10 minutes ago"));
    phone.advance(120s);
    EXPECT_EQ(home.messages()->value(0, "age"), QStringLiteral("16 minutes ago"));
    answerMessages(
        {{QStringLiteral("B"), QStringLiteral("two"), at}, {QStringLiteral("A"), QStringLiteral("one"), at}});
    phone.advance(10s);
    EXPECT_EQ(home.messages()->value(1, "age"), QStringLiteral("12 minutes ago"));
}

TEST_F(HomeTest, AdSlotsTakeNoRow) {
    makeHome();
    setAds(true);
    answerMessages(
        {{QStringLiteral("A"), QStringLiteral("one"), at}, {QStringLiteral("B"), QStringLiteral("two"), at}});
    phone.advance(10s);
    EXPECT_EQ(request().messages().size(), 3);
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    EXPECT_EQ(test::texts(*content->home()->senders(), "name"),
              (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
}

TEST_F(HomeTest, SendersShowTheirNewestMessageAndWhatIsUnread) {
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("new"), at},
                               {QStringLiteral("B"), QStringLiteral("other"), {}},
                               {QStringLiteral("A"), QStringLiteral("old"), at}});
    EXPECT_EQ(test::texts(*home.senders(), "content"),
              (QStringList{QStringLiteral("new"), QStringLiteral("other")}));
    EXPECT_EQ(test::texts(*home.senders(), "time"), (QStringList{QStringLiteral("23:50"), QString()}));
    EXPECT_EQ(test::texts(*home.senders(), "unseen"),
              (QStringList{QStringLiteral("2"), QStringLiteral("1")}));
}

TEST_F(HomeTest, SameSenderWearsTheSameColoursInBothLayouts) {
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("1"), at},
                               {QStringLiteral("B"), QStringLiteral("2"), at},
                               {QStringLiteral("A"), QStringLiteral("3"), at},
                               {QStringLiteral("C"), QStringLiteral("4"), at}});
    const auto face = [](const KeyedRows *model, int row) {
        return model->value(row, "face").value<AvatarFace>();
    };
    EXPECT_EQ(face(home.messages(), 3), face(home.senders(), 2));
    EXPECT_EQ(face(home.messages(), 2), face(home.messages(), 0));
    EXPECT_NE(face(home.messages(), 1), face(home.messages(), 0));
}

TEST_F(HomeTest, ChangedNumberStartsWithNoMessagesAndFetches) {
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("one"), at}});
    phone.urls.answer(QStringLiteral("https://first.example/en/numbers/15550199"), test::messagePage({}));
    request().chooseNumber(test::country(QStringLiteral("Norway")),
                           test::phoneNumber(QStringLiteral("+1 555 0199")), false);
    EXPECT_EQ(home.state(), State::Loading);
    EXPECT_EQ(home.number(), QStringLiteral("+1 5550199"));
    EXPECT_FALSE(home.nothingYet());
    phone.settle();
    EXPECT_TRUE(home.nothingYet());
}

/// It asks for a review at the third opening; looking at the countries and coming back opens nothing.
TEST_F(HomeTest, GoingBackToItIsNoOpening) {
    scene.setHasWindow(true);
    HomeView &home = makeHome();
    for (int times = 0; times < 3; ++times) {
        home.openCountries();
        home.closeCountries();
    }
    EXPECT_EQ(phone.store.integer(QStringLiteral("OPENED_TIME")), 1);
    for (int times = 0; times < 2; ++times) {
        EXPECT_EQ(storeReview.requests, 0);
        content->main()->select(3);
        content->main()->select(0);
    }
    EXPECT_EQ(storeReview.requests, 1);
}

TEST_F(HomeTest, OfflineStartSaysSoAndRetryFetches) {
    makeHome();
    restartScreens();
    phone.reachability.setOnline(false);
    HomeView &home = *makeContent().home();
    home.appear();
    EXPECT_TRUE(home.isOffline());
    EXPECT_EQ(home.state(), State::Offline);
    home.dismissOffline();
    EXPECT_FALSE(home.isOffline());
    EXPECT_EQ(home.state(), State::Offline);

    const qsizetype reads = phone.urls.count(messagesUrl);
    home.retry();
    phone.advance(20s);
    EXPECT_EQ(phone.urls.count(messagesUrl), reads);
    phone.reachability.setOnline(true);
    home.retry();
    EXPECT_EQ(home.state(), State::Loading);
    phone.settle();
    EXPECT_EQ(phone.urls.count(messagesUrl), reads + 1);
}

TEST_F(HomeTest, MessagesStayWhenTheConnectionGoesAndTellTheirAge) {
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("one"), at}});
    EXPECT_EQ(home.fetchAge(), QString());
    phone.urls.answer(messagesUrl, Error{QStringLiteral("down")});
    phone.advance(60s);
    EXPECT_EQ(home.fetchAge(), QString());
    int told = 0;
    QObject::connect(&home, &HomeView::fetchAgeChanged, [&told] { ++told; });
    phone.advance(70s);
    EXPECT_GE(told, 7);
    EXPECT_EQ(home.fetchAge(), QStringLiteral("2 minutes ago"));
    EXPECT_EQ(home.state(), State::Messages);
    answerMessages({{QStringLiteral("A"), QStringLiteral("one"), at}});
    phone.advance(10s);
    EXPECT_EQ(home.fetchAge(), QString());
}

TEST_F(HomeTest, RestartShowsTheChosenNumberAndItsMessages) {
    makeHome({{QStringLiteral("A"), QStringLiteral("one"), at}});
    restartScreens();
    HomeView &home = *makeContent().home();
    EXPECT_EQ(home.number(), QStringLiteral("+1 5550100"));
    home.appear();
    phone.settle();
    EXPECT_EQ(shown(), QStringList{QStringLiteral("one")});
}

TEST_F(HomeTest, OtherNumbersOfTheCountryLeaveOutTheCurrentOne) {
    HomeView &home = makeHome();
    EXPECT_EQ(home.similar()->count(), 0);
    request().fetchNumbers(*request().currentCountry(), [](const auto &) {});
    phone.settle();
    EXPECT_EQ(test::texts(*home.similar(), "number"), QStringList{QStringLiteral("+1 5550199")});

    home.tapSimilar(0);
    EXPECT_TRUE(home.choice()->confirmationSheet());
    phone.urls.answer(QStringLiteral("https://first.example/en/numbers/15550199"), test::messagePage({}));
    home.choice()->confirm();
    EXPECT_EQ(home.number(), QStringLiteral("+1 5550199"));
    EXPECT_EQ(test::texts(*home.similar(), "number"), QStringList{QStringLiteral("+1 5550100")});
}

TEST_F(HomeTest, TapsCopyTheNumberAndCodesAndOpenLinks) {
    HomeView &home = makeHome();
    home.copyNumber();
    EXPECT_EQ(pasteboard.text, QStringLiteral("+1 555 0100"));
    home.tapExport(QStringLiteral("123456"));
    EXPECT_EQ(pasteboard.text, QStringLiteral("123456"));
    EXPECT_TRUE(content->copyVM()->copied());
    home.tapExport(QStringLiteral("https://a.example/x"));
    home.tapExport(QStringLiteral("http://[broken"));
    EXPECT_EQ(browser.opened, QStringList{QStringLiteral("https://a.example/x")});
    EXPECT_EQ(pasteboard.text, QStringLiteral("123456"));
}

TEST_F(HomeTest, InlineBannerMayStandThreeSecondsAfterTheScreenAppeared) {
    HomeView &home = makeHome();
    phone.advance(2999ms);
    EXPECT_FALSE(home.showINBaner());
    phone.advance(1ms);
    EXPECT_TRUE(home.showINBaner());
}

TEST_F(HomeTest, OldMessagesMayBeAskedForByHand) {
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("one"), at}});
    EXPECT_FALSE(home.allowManualRefresh());
    phone.urls.answer(messagesUrl, Error{QStringLiteral("down")});
    phone.advance(70s);
    EXPECT_TRUE(home.allowManualRefresh());
    answerMessages({{QStringLiteral("B"), QStringLiteral("two"), at}});
    home.retry();
    phone.settle();
    EXPECT_FALSE(home.allowManualRefresh());
    EXPECT_EQ(shown(), QStringList{QStringLiteral("two")});
}

TEST_F(HomeTest, UnchangedPageTouchesNoRow) {
    HomeView &home = makeHome(
        {{QStringLiteral("A"), QStringLiteral("one"), at}, {QStringLiteral("B"), QStringLiteral("two"), at}});
    for (const QAbstractItemModel *model : {static_cast<QAbstractItemModel *>(home.messages()),
                                            static_cast<QAbstractItemModel *>(home.senders())}) {
        QObject::connect(model, &QAbstractItemModel::rowsInserted, [] { ADD_FAILURE() << "inserted"; });
        QObject::connect(model, &QAbstractItemModel::rowsRemoved, [] { ADD_FAILURE() << "removed"; });
        QObject::connect(model, &QAbstractItemModel::rowsMoved, [] { ADD_FAILURE() << "moved"; });
        QObject::connect(model, &QAbstractItemModel::modelReset, [] { ADD_FAILURE() << "reset"; });
    }
    const AvatarFace before = home.senders()->value(1, "face").value<AvatarFace>();
    phone.advance(50s);
    EXPECT_EQ(home.senders()->value(1, "face").value<AvatarFace>(), before);
}

TEST_F(HomeTest, SlotsTakeNoRoomInAPageOfManySenders) {
    makeHome();
    setAds(true);
    answerMessages(test::manySms(7));
    phone.advance(10s);
    EXPECT_EQ(request().senders().size(), 9); // slots at 0 and 5
    EXPECT_EQ(content->home()->senders()->count(), 7);
    content->home()->tapSender(4);
    EXPECT_EQ(request().selectedConversation()->name, QStringLiteral("Sender 5"));
}

/// Actions that bring the next full-screen ad nearer.
TEST_F(HomeTest, ActionsCountTowardsTheNextInterstitial) {
    const auto counted = [this] { return phone.store.integer(QStringLiteral("SHOW_AD_AFTER")); };
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("one"), at}});
    request().fetchNumbers(*request().currentCountry(), [](const auto &) {});
    phone.settle();
    EXPECT_EQ(counted(), 0) << "the first choice counts nothing";
    home.showSenders();
    EXPECT_EQ(counted(), 1);
    home.showSenders();
    EXPECT_EQ(counted(), 2) << "the layout that is chosen already";
    home.tapSender(0);
    EXPECT_EQ(counted(), 3);
    home.openCountries();
    EXPECT_EQ(counted(), 3);
    home.countries()->tap(1);
    EXPECT_EQ(counted(), 4);
    phone.settle();
    home.countries()->numbers()->tap(1);
    EXPECT_EQ(counted(), 4);
    phone.urls.answer(QStringLiteral("https://first.example/en/numbers/15550199"), test::messagePage({}));
    home.countries()->numbers()->choice()->confirm();
    EXPECT_EQ(counted(), 5);
    home.tapSimilar(0);
    home.choice()->confirm();
    EXPECT_EQ(counted(), 6);
}

TEST_F(HomeTest, FirstRunCountsNoAction) {
    makeContent();
    phone.settle();
    content->chooser()->tap(1);
    phone.settle();
    content->chooser()->numbers()->tap(0);
    EXPECT_EQ(phone.store.integer(QStringLiteral("SHOW_AD_AFTER")), 0);
}

} // namespace
