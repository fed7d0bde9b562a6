#include "ads/banner_view.h"
#include "ads/black_banner.h"
#include "ads_phone.h"

namespace orl {

using namespace std::chrono_literals;

namespace {

struct BannerTest : AdsTest {
    const QStringList request{QStringLiteral("banner banner")};
    const QString unit = QStringLiteral("chat-inline");
    const QStringList inlineRequest{QStringLiteral("inline chat-inline")};
};

} // namespace

TEST_F(BannerTest, TakesRoomOnlyWhereTheConfigurationHasItOn) {
    struct Case {
        const char *name;
        AdmobConfig config;
        bool tablet;
        bool shown;
    };
    const Case cases[] = {{"on", {}, false, true},
                          {"off", {.bannerAdEnabled = false}, false, false},
                          {"tablet", {}, true, true},
                          {"tablet without ads", {.ipadAdEnabled = false}, true, false},
                          {"phone beside it", {.ipadAdEnabled = false}, false, true}};
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        device.tablet = row.tablet;
        restart();
        letAdsLoad(row.config);
        const BannerView anchored(*process, *appVM);
        const InlineBannerView inserted(*process, *appVM, unit, 240);
        EXPECT_EQ(anchored.isShown(), row.shown);
        EXPECT_EQ(inserted.isShown(), row.shown);
        EXPECT_EQ(ads.asked(), row.shown ? request + inlineRequest : QStringList());
    }
}

TEST_F(BannerTest, LoadsOnceConsentIsOverAndTheConfigurationIsThere) {
    makeAppVM();
    const BannerView view(*process, *appVM);
    int shown = 0;
    QObject::connect(&view, &BannerView::isShownChanged, [&] { ++shown; });
    appVM->loadAds();
    EXPECT_FALSE(view.isShown()) << "no document, no ad";
    EXPECT_TRUE(ads.asked().isEmpty());
    arrive({});
    EXPECT_TRUE(view.isShown());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(ads.asked().filter(QStringLiteral("banner")), request);
    arrive({});
    appVM->loadAds();
    EXPECT_TRUE(ads.asked().filter(QStringLiteral("banner")).isEmpty()) << "one load for each banner";
}

TEST_F(BannerTest, TheFrameStaysEmptyUntilConsentIsOver) {
    makeAppVM();
    arrive({});
    const BannerView view(*process, *appVM);
    EXPECT_TRUE(view.isShown());
    phone.advance(10s);
    EXPECT_TRUE(ads.asked().isEmpty());
    appVM->loadAds();
    EXPECT_EQ(ads.asked().filter(QStringLiteral("banner")), request);
}

TEST_F(BannerTest, OneLoadedBannerMakesAllCountAsLoadedAtTheirNextTick) {
    letAdsLoad();
    const BannerView first(*process, *appVM);
    const BannerView second(*process, *appVM, false, true);
    ads.banners[0]->receive();
    ads.banners[1]->refuse();
    EXPECT_FALSE(first.isLoaded());
    phone.advance(499ms);
    EXPECT_FALSE(first.isLoaded() || second.isLoaded());
    phone.advance(1ms);
    EXPECT_TRUE(first.isLoaded() && second.isLoaded());
    EXPECT_EQ(first.face().headline(), QStringLiteral("banner"));
    EXPECT_FALSE(second.hasFace());
    const BannerView third(*process, *appVM);
    EXPECT_EQ(third.status(), AdStatus::none);
    phone.advance(500ms);
    EXPECT_TRUE(third.isLoaded());
    EXPECT_FALSE(InlineBannerView(*process, *appVM, unit, 240).isLoaded());
    EXPECT_EQ(takeLines().size(), 1);
}

TEST_F(BannerTest, EachTapTurnsTheMarkOfATappedBannerOver) {
    letAdsLoad();
    BannerView view(*process, *appVM);
    view.tap();
    EXPECT_TRUE(appVM->bannerTapped());
    view.tap();
    EXPECT_FALSE(appVM->bannerTapped());
}

TEST_F(BannerTest, AnInlineBannerTellsWhatBecameOfIt) {
    letAdsLoad();
    QList<bool> told;
    const auto tell = [&](bool arrived) { told.append(arrived); };
    const InlineBannerView came(*process, *appVM, unit, 240, tell);
    ads.banners[0]->receive();
    EXPECT_TRUE(came.isLoaded());
    EXPECT_EQ(came.height(), 240);
    const InlineBannerView failed(*process, *appVM, unit, 400, tell);
    ads.banners[1]->refuse();
    phone.advance(1s);
    EXPECT_FALSE(failed.isLoaded()) << "no gap where no ad came";
    EXPECT_EQ(told, (QList{true, false}));
    const BannerView anchored(*process, *appVM);
    phone.advance(1s);
    EXPECT_FALSE(anchored.isLoaded()) << "the two kinds have each their own status";
    EXPECT_EQ(process->shared<InlineBannerAd>().status, AdStatus::loaded);
}

TEST_F(BannerTest, ABannerThatGoesTakesItsLoadAndItsTimerAlong) {
    makeAppVM();
    auto waiting = std::make_unique<BannerView>(*process, *appVM);
    waiting.reset();
    arrive({});
    appVM->loadAds();
    EXPECT_TRUE(ads.asked().filter(QStringLiteral("banner")).isEmpty());
    auto loading = std::make_unique<BannerView>(*process, *appVM);
    loading.reset();
    EXPECT_TRUE(ads.banners.isEmpty());
    phone.advance(1s);
}

TEST_F(BannerTest, ChancePutsTheBlackBannerOnACard) {
    struct Case {
        const char *name;
        BlackBannerConfig config;
        int draw;
        bool shown;
        std::vector<int> bounds;
    };
    const Case cases[] = {
        {"off", {.isActive = false, .onNumberCard = true, .randomDisplay = {true}}, 0, false, {}},
        {"not on this card",
         {.isActive = true, .onNumberCard = false, .randomDisplay = {true}},
         0,
         false,
         {}},
        {"draws no",
         {.isActive = true, .onNumberCard = true, .randomDisplay = {true, false, true}},
         1,
         false,
         {3}},
        {"draws yes",
         {.isActive = true, .onNumberCard = true, .randomDisplay = {false, false, true}},
         2,
         true,
         {3}},
        {"an empty list always shows",
         {.isActive = true, .onNumberCard = true, .randomDisplay = {}},
         0,
         true,
         {}},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        restart();
        random.draws = {row.draw};
        random.bounds.clear();
        letAdsLoad({}, row.config);
        const BlackBanner card(*process, *appVM);
        EXPECT_EQ(card.banner() != nullptr, row.shown);
        EXPECT_EQ(random.bounds, row.bounds);
        EXPECT_EQ(ads.asked(), row.shown ? request : QStringList());
        if (!row.shown) continue;
        EXPECT_FALSE(card.banner()->isAnchored);
        EXPECT_TRUE(card.banner()->enableSpacer);
    }
}

TEST_F(BannerTest, EachCardDrawsForItselfOnce) {
    makeAppVM();
    const BlackBanner early(*process, *appVM);
    EXPECT_EQ(early.banner(), nullptr);
    random.draws = {0, 1};
    const BlackBannerConfig config{.isActive = true, .onNumberCard = true, .randomDisplay = {true, false}};
    arrive({}, config);
    EXPECT_NE(early.banner(), nullptr);
    const BlackBanner next(*process, *appVM);
    EXPECT_EQ(next.banner(), nullptr);
    arrive({}, config);
    EXPECT_EQ(random.bounds.size(), 2U);
}

} // namespace orl
