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
    EXPECT_EQ(consent.events.count(QStringLiteral("update")), 0);
    EXPECT_FALSE(splash().hideContent());
    phone.advance(1ms);
    EXPECT_EQ(consent.events.count(QStringLiteral("update")), 1);
    EXPECT_TRUE(splash().hideContent());
    phone.advance(999ms);
    EXPECT_TRUE(content->splashIsPresented());
    phone.advance(1ms);
    EXPECT_FALSE(content->splashIsPresented());
    EXPECT_TRUE(adsLoad());
    EXPECT_TRUE(push.asked.isEmpty()) << "only the first start asks";
}

TEST_F(SplashTest, SecondAppearingOfTheWindowStartsNothingAnew) {
    makeContent();
    phone.advance(1s);
    content->appear();
    phone.advance(1500ms);
    EXPECT_FALSE(content->splashIsPresented());
    phone.advance(10s);
    EXPECT_FALSE(content->splashIsPresented());
    EXPECT_EQ(consent.events.count(QStringLiteral("update")), 1);
}

TEST_F(SplashTest, KnownTrackingStatusNeverWaitsForTheConsentService) {
    for (const TrackingStatus known :
         {TrackingStatus::Restricted, TrackingStatus::Denied, TrackingStatus::Authorized}) {
        tracking.answer = known;
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
    consent.status = ConsentStatus::Required;
    consent.holdUpdates = true;
    makeContent();
    phone.advance(2500ms);
    EXPECT_FALSE(content->splashIsPresented());
    consent.answerUpdates();
    phone.settle();
    EXPECT_TRUE(consent.isPresented());
    EXPECT_FALSE(adsLoad()) << "nothing loads before the user has answered";
    consent.dismiss();
    phone.settle();
    EXPECT_TRUE(adsLoad());
}

TEST_F(SplashTest, FirstStartWaitsForEachAnswerOfTheUser) {
    tracking.answer = TrackingStatus::NotDetermined;
    consent.form = ConsentFormStatus::Available;
    consent.status = ConsentStatus::Required;
    makeContent();
    phone.advance(1500ms);
    EXPECT_TRUE(splash().showIDFAAlert());
    phone.advance(1h);
    EXPECT_EQ(tracking.asked, 0);

    splash().continueTapped();
    EXPECT_FALSE(splash().showIDFAAlert());
    EXPECT_EQ(tracking.asked, 1);
    phone.advance(1h);
    EXPECT_FALSE(consent.isPresented());

    tracking.decide(TrackingStatus::Authorized);
    phone.advance(1h);
    EXPECT_TRUE(consent.isPresented());
    EXPECT_FALSE(adsLoad());
    EXPECT_TRUE(push.asked.isEmpty());

    consent.dismiss();
    phone.advance(1h);
    EXPECT_TRUE(adsLoad());
    EXPECT_EQ(push.asked, QList<bool>{true});
    EXPECT_FALSE(splash().hideContent());

    push.decide(false);
    EXPECT_TRUE(splash().hideContent());
    phone.advance(999ms);
    EXPECT_TRUE(content->splashIsPresented());
    phone.advance(1ms);
    EXPECT_FALSE(content->splashIsPresented());
}

TEST_F(SplashTest, RefusedTrackingShowsNoForm) {
    tracking.answer = TrackingStatus::NotDetermined;
    consent.form = ConsentFormStatus::Available;
    consent.status = ConsentStatus::Required;
    makeContent();
    phone.advance(1500ms);
    splash().continueTapped();
    tracking.decide(TrackingStatus::Denied);
    phone.settle();
    EXPECT_FALSE(consent.isPresented());
    push.decide(true);
    phone.advance(1s);
    EXPECT_FALSE(content->splashIsPresented());
}

/// Without a form at the first update a second one is made while the start goes on; ads load with either.
TEST_F(SplashTest, CompletionThatComesTwiceIsBorne) {
    tracking.answer = TrackingStatus::NotDetermined;
    makeContent();
    phone.advance(1500ms);
    consent.holdUpdates = true;
    splash().continueTapped();
    tracking.decide(TrackingStatus::Authorized);
    phone.settle();
    push.decide(true);
    phone.advance(1s);
    EXPECT_FALSE(content->splashIsPresented());
    consent.answerUpdates();
    push.decide(true);
    phone.advance(10s);
    EXPECT_FALSE(content->splashIsPresented());
}

TEST_F(SplashTest, ContinueCountsOnlyWhileItIsShown) {
    makeContent();
    splash().continueTapped();
    EXPECT_EQ(tracking.asked, 0);
}

} // namespace
