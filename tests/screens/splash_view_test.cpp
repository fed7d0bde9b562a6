#include "screens_phone.h"

using namespace orl;
using namespace std::chrono_literals;

namespace {

/// The splash of a shell that has just appeared. Ads load once consent is settled.
struct SplashTest : ScreensTest {
    SplashTest() {
        phone.bundle.infoValues[QStringLiteral("CFBundleDisplayName")] = QStringLiteral("Orl");
        answerConfiguration();
    }

    SplashView &splash() { return *content->splash(); }
    bool adsLoad() const { return content->appConfigVM().canLoadAd(); }
};

TEST_F(SplashTest, ShowsTheProgramsNameAndLeavesAfterTwoAndAHalfSeconds) {
    makeContent();
    EXPECT_EQ(splash().displayName(), QStringLiteral("Orl"));
    EXPECT_EQ(splash().subtitle(), QStringLiteral("Virtual Phone Numbers"));
    phone.advance(1499ms);
    EXPECT_EQ(consent.updates, 0);
    EXPECT_FALSE(splash().hideContent());
    phone.advance(1ms);
    EXPECT_EQ(consent.updates, 1);
    EXPECT_TRUE(splash().hideContent());
    phone.advance(999ms);
    EXPECT_TRUE(content->splashIsPresented());
    phone.advance(1ms);
    EXPECT_FALSE(content->splashIsPresented());
    EXPECT_TRUE(adsLoad());
    EXPECT_TRUE(push.fallbacks.empty()) << "only the first start asks";
}

TEST_F(SplashTest, SecondAppearingOfTheWindowStartsNothingAnew) {
    makeContent();
    phone.advance(1s);
    content->appear();
    phone.advance(1500ms);
    EXPECT_FALSE(content->splashIsPresented());
    phone.advance(10s);
    EXPECT_FALSE(content->splashIsPresented());
    EXPECT_EQ(consent.updates, 1);
}

TEST_F(SplashTest, KnownTrackingStatusNeverWaitsForTheConsentService) {
    for (const TrackingStatus known :
         {TrackingStatus::Restricted, TrackingStatus::Denied, TrackingStatus::Authorized}) {
        tracking.current = known;
        consent.holdUpdates = true;
        restartScreens();
        makeContent();
        phone.advance(2500ms);
        EXPECT_FALSE(content->splashIsPresented());
        EXPECT_FALSE(adsLoad());
        consent.answerUpdates();
        EXPECT_TRUE(adsLoad());
    }
}

TEST_F(SplashTest, FormThatIsLateComesUpOverTheMainScreen) {
    consent.form = ConsentFormStatus::Available;
    consent.consent = ConsentStatus::Required;
    consent.holdUpdates = true;
    makeContent();
    phone.advance(2500ms);
    EXPECT_FALSE(content->splashIsPresented());
    consent.answerUpdates();
    phone.settle();
    EXPECT_EQ(consent.formsPresented, 1);
    EXPECT_FALSE(adsLoad()) << "nothing loads before the user has answered";
    consent.agree();
    phone.settle();
    EXPECT_TRUE(adsLoad());
}

TEST_F(SplashTest, FirstStartWaitsForEachAnswerOfTheUser) {
    tracking.current = TrackingStatus::NotDetermined;
    consent.form = ConsentFormStatus::Available;
    consent.consent = ConsentStatus::Required;
    makeContent();
    phone.advance(1500ms);
    EXPECT_TRUE(splash().showIDFAAlert());
    phone.advance(1h);
    EXPECT_FALSE(tracking.asks());

    splash().continueTapped();
    EXPECT_FALSE(splash().showIDFAAlert());
    EXPECT_TRUE(tracking.asks());
    phone.advance(1h);
    EXPECT_EQ(consent.formsPresented, 0);

    tracking.answer(TrackingStatus::Authorized);
    phone.advance(1h);
    EXPECT_EQ(consent.formsPresented, 1);
    EXPECT_FALSE(adsLoad());
    EXPECT_TRUE(push.fallbacks.empty());

    consent.agree();
    phone.advance(1h);
    EXPECT_TRUE(adsLoad());
    EXPECT_EQ(push.fallbacks, std::vector{true});
    EXPECT_FALSE(splash().hideContent());

    push.answer(false);
    EXPECT_TRUE(splash().hideContent());
    phone.advance(999ms);
    EXPECT_TRUE(content->splashIsPresented());
    phone.advance(1ms);
    EXPECT_FALSE(content->splashIsPresented());
}

TEST_F(SplashTest, RefusedTrackingShowsNoForm) {
    tracking.current = TrackingStatus::NotDetermined;
    consent.form = ConsentFormStatus::Available;
    consent.consent = ConsentStatus::Required;
    makeContent();
    phone.advance(1500ms);
    splash().continueTapped();
    tracking.answer(TrackingStatus::Denied);
    phone.settle();
    EXPECT_EQ(consent.formsPresented, 0);
    push.answer(true);
    phone.advance(1s);
    EXPECT_FALSE(content->splashIsPresented());
}

/// Without a form at the first update a second one is made while the start goes on; ads load with either.
TEST_F(SplashTest, CompletionThatComesTwiceIsBorne) {
    tracking.current = TrackingStatus::NotDetermined;
    makeContent();
    phone.advance(1500ms);
    consent.holdUpdates = true;
    splash().continueTapped();
    tracking.answer(TrackingStatus::Authorized);
    phone.settle();
    push.answer(true);
    phone.advance(1s);
    EXPECT_FALSE(content->splashIsPresented());
    consent.answerUpdates();
    push.answer(true);
    phone.advance(10s);
    EXPECT_FALSE(content->splashIsPresented());
}

TEST_F(SplashTest, ContinueCountsOnlyWhileItIsShown) {
    makeContent();
    splash().continueTapped();
    EXPECT_FALSE(tracking.asks());
}

} // namespace
