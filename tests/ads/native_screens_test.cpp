#include "ads/native_ad_view_xmark.h"
#include "ads/native_with_generate_button.h"
#include "ads_phone.h"

namespace orl {

using namespace std::chrono_literals;

namespace {

struct NativeScreensTest : AdsTest {
    std::unique_ptr<NativeAdView_XMARK> xmark() {
        return std::make_unique<NativeAdView_XMARK>(
            *process, *appVM, NativeModel{QStringLiteral("home"), NativeAdType::IN_HOME_SCREEN});
    }
};

} // namespace

TEST_F(NativeScreensTest, TheCardComesThreeSecondsAfterItsAdIsSeenAndClosesFourLater) {
    letAdsLoad({.useXmarkNative = true});
    const auto view = xmark();
    EXPECT_EQ(ads.asked(), QStringList{QStringLiteral("native home")});
    EXPECT_EQ(view->banner(), nullptr);
    phone.advance(5500ms);
    EXPECT_FALSE(view->isSet());
    ads.natives[0]->receive("home ad");
    phone.advance(500ms); // the tick sees it
    EXPECT_TRUE(view->isSet());
    phone.advance(2999ms);
    EXPECT_FALSE(view->isPresented() || view->displayNativeAd());
    phone.advance(1ms);
    EXPECT_TRUE(view->isPresented() && view->displayNativeAd());
    EXPECT_EQ(view->nativeAdView()->face().headline(), QStringLiteral("home ad"));
    view->close();
    EXPECT_TRUE(view->isPresented()) << "there is nothing to tap yet";
    phone.advance(3999ms);
    EXPECT_FALSE(view->showXMark());
    phone.advance(1ms);
    EXPECT_TRUE(view->showXMark());
    view->close();
    EXPECT_EQ(haptics.impacts, std::vector{Impact::Soft});
    EXPECT_FALSE(view->isPresented());
    phone.advance(1min);
    EXPECT_FALSE(view->isPresented()) << "once";
}

TEST_F(NativeScreensTest, WithoutThisLookAnInlineBannerTakesTheSameSteps) {
    letAdsLoad({.useXmarkNative = false});
    const auto view = xmark();
    EXPECT_EQ(ads.asked(), QStringList{QStringLiteral("inline full-screen-inline")});
    phone.advance(10s);
    EXPECT_FALSE(view->isPresented());
    ads.banners[0]->receive();
    phone.advance(2999ms);
    EXPECT_FALSE(view->isPresented());
    phone.advance(1ms);
    EXPECT_TRUE(view->isPresented());
    EXPECT_EQ(view->nativeAdState(), NativeAdState::loaded);
    EXPECT_TRUE(view->banner()->isLoaded());
    phone.advance(4s);
    EXPECT_TRUE(view->showXMark());
    view->close();
    ads.banners[0]->receive(); // the next picture of the same banner
    phone.advance(1min);
    EXPECT_FALSE(view->isPresented());
}

TEST_F(NativeScreensTest, AFailedAdNeverCoversTheScreen) {
    for (const bool native : {true, false}) {
        restart();
        letAdsLoad({.useXmarkNative = native});
        const auto view = xmark();
        if (native)
            ads.natives[0]->refuse();
        else
            ads.banners[0]->refuse();
        phone.advance(1min);
        EXPECT_FALSE(view->isPresented() || view->isSet()) << native;
    }
}

TEST_F(NativeScreensTest, ItWaitsForConsent) {
    makeAppVM();
    arrive({.useXmarkNative = true});
    const auto view = xmark();
    phone.advance(10s);
    EXPECT_TRUE(ads.asked().isEmpty());
    appVM->loadAds();
    EXPECT_EQ(ads.asked().filter(QStringLiteral("native")), QStringList{QStringLiteral("native home")});
}

TEST_F(NativeScreensTest, StepsThatAreUnderWayDoNotOutliveTheScreen) {
    letAdsLoad({.useXmarkNative = true});
    auto view = xmark();
    ads.natives[0]->receive("home ad");
    phone.advance(2s);
    ASSERT_TRUE(view->isSet());
    view.reset();
    phone.advance(1min);
}

TEST_F(NativeScreensTest, TheCardIsNarrowerThanTheScreenAndNeverWide) {
    EXPECT_EQ(NativeAdView_XMARK::cardWidth(360), 320);
    EXPECT_EQ(NativeAdView_XMARK::cardWidth(640), 600);
    EXPECT_EQ(NativeAdView_XMARK::cardWidth(1280), 600);
}

TEST_F(NativeScreensTest, TheGenerateButtonComesAfterTheCardWasOnShow) {
    letAdsLoad();
    NativeWithGenerateButton view(*process, *appVM);
    phone.advance(10s);
    EXPECT_FALSE(view.showGenerateBtn());
    EXPECT_TRUE(ads.asked().isEmpty());
    view.setShowNativeBeforeGenerate(true);
    EXPECT_EQ(ads.asked(), QStringList{QStringLiteral("native identity-button")});
    phone.advance(10s);
    EXPECT_EQ(view.seconds(), 5) << "the card is not on show yet";
    ads.natives[0]->receive("wait");
    phone.advance(500ms); // the card sees it; ticks of the same moment run before
    ASSERT_TRUE(view.card()->isLoaded());
    const double left = view.seconds();
    phone.advance(1s);
    EXPECT_NEAR(view.seconds(), left - 1, 1e-9);
    view.tapGenerate();
    EXPECT_TRUE(view.doGenerate().isNull()) << "the button is not there yet";
    phone.advance(4s);
    EXPECT_TRUE(view.showGenerateBtn());
    EXPECT_EQ(view.seconds(), 0);
    view.tapGenerate();
    const QUuid first = view.doGenerate();
    EXPECT_FALSE(first.isNull());
    view.tapGenerate();
    EXPECT_NE(view.doGenerate(), first);
    view.setShowNativeBeforeGenerate(false);
    EXPECT_EQ(view.card(), nullptr);
}

TEST_F(NativeScreensTest, ACardThatCannotComeHoldsNobodyBack) {
    struct Case {
        const char *name;
        AdmobConfig config;
    };
    const Case cases[] = {{"fails", {}}, {"switched off", {.nativeAdEnabled = false}}};
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        restart();
        letAdsLoad(row.config);
        NativeWithGenerateButton view(*process, *appVM);
        view.setShowNativeBeforeGenerate(true);
        if (!ads.natives.isEmpty()) ads.natives[0]->refuse();
        phone.advance(1s);
        EXPECT_TRUE(view.showGenerateBtn());
    }
}

} // namespace orl
