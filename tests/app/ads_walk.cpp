// Advertising from the first launch on: the questions ahead of it, each place with its switch on and off.
#include "ads_walker.h"

#include <QTest>

namespace orl {
namespace {

class AdsWalk : public AdsWalker {
protected:
    AdsWalk() {
        values.bannerAdEnabled = values.openAdEnabled = values.rewardAdEnabled = values.nativeAdEnabled =
            values.interstitialAdEnabled = true;
        values.useXmarkNative = values.bannerIsActive = values.bannerOnNumberCard = true;
        values.bannerRandomDisplay = {true};
    }

    void SetUp() override {
        Walker::SetUp();
        serve();
    }
};

TEST_F(AdsWalk, FirstLaunchAsksThenEachPlaceHasItsAd) {
    launch(options());
    const Fits explanation = named(QStringLiteral("'Orl' wants to stay free for you"));
    ASSERT_TRUE(wait(explanation));
    lookAround(QStringLiteral("ads-01-explanation"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Continue")), "the explanation's button"));
    ASSERT_TRUE(wait(named(QStringLiteral("Allow"))));
    lookAround(QStringLiteral("ads-02-tracking"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Allow")), "the consent to tracking"));
    ASSERT_TRUE(wait(named(QStringLiteral("I consent")))) << "no form where the law wants one";
    lookAround(QStringLiteral("ads-03-consent"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("I consent")), "the consent to ads"));
    ASSERT_NO_FATAL_FAILURE(waitForTheSplash());

    ASSERT_TRUE(QTest::qWaitFor([this] { return adsInPlace() >= 3; }, 60000))
        << "banner, black banner and native row did not come";
    const Fits dismiss = named(QStringLiteral("Dismiss"));
    ASSERT_TRUE(wait(dismiss)) << "no card above the tabs";
    lookAround(QStringLiteral("ads-04-card"));
    ASSERT_NO_FATAL_FAILURE(press(dismiss, "the way out of the card"));
    ASSERT_TRUE(gone(dismiss));
    lookAround(QStringLiteral("ads-05-home"));

    // The third action of the user brings an ad; the count outlives a kill.
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Senders")), "the first action"));
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Recent")), "the second action"));
    QTest::qWait(500);
    EXPECT_TRUE(all(fullScreenAd()).isEmpty()) << "an ad ahead of its time";
    killProgram();
    launch(servedBy(host));
    ASSERT_NO_FATAL_FAILURE(waitForTheSplash());
    EXPECT_TRUE(all(explanation).isEmpty()) << "it asks again";
    ASSERT_TRUE(wait(dismiss));
    ASSERT_NO_FATAL_FAILURE(press(dismiss, "the way out of the card"));
    ASSERT_TRUE(gone(dismiss));
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Senders")), "the third action"));
    ASSERT_TRUE(wait(fullScreenAd())) << "no ad at the third action";
    lookAround(QStringLiteral("ads-06-full-screen"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Close")), "the way out of the ad"));
    ASSERT_TRUE(gone(fullScreenAd()));
    lookAround(QStringLiteral("ads-07-senders"));

    ASSERT_NO_FATAL_FAILURE(press(sender(), "a conversation"));
    ASSERT_TRUE(wait(named(QStringLiteral("Online"))));
    ASSERT_TRUE(QTest::qWaitFor([this] { return adsInPlace() >= 2; }, 60000)) << "no banners in the chat";
    QTest::qWait(4000); // both scroll moments pass
    lookAround(QStringLiteral("ads-08-conversation"));
    killProgram();

    launch(servedBy(host) << QStringLiteral("--reset-consent"));
    ASSERT_TRUE(wait(explanation)) << "it was told to ask again";
    killProgram();
}

TEST_F(AdsWalk, WhoRefusesTrackingSeesNoFormButTheAdsOfTheHostWithin) {
    launch({QStringLiteral("--choose"), QStringLiteral("United States"), QStringLiteral("13055550149")});
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Continue")), "the explanation's button"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Don't allow")), "the refusal"));
    ASSERT_NO_FATAL_FAILURE(waitForTheSplash());
    EXPECT_TRUE(all(named(QStringLiteral("I consent"))).isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([this] { return adsInPlace() >= 1; }, 60000)) << "house ads follow nobody";
    killProgram();
}

TEST_F(AdsWalk, NoFormWhereNoLawWantsOneAndNoAdWhereAllAreOff) {
    desk.setLocale(QStringLiteral("en_US.UTF-8"));
    host.setConfiguration({});
    launch(options());
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Continue")), "the explanation's button"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Allow")), "the consent"));
    ASSERT_NO_FATAL_FAILURE(waitForTheSplash());
    EXPECT_TRUE(all(named(QStringLiteral("I consent"))).isEmpty());
    ASSERT_TRUE(wait(message()));
    for (const char *layout : {"Senders", "Recent", "Senders", "Recent"}) {
        ASSERT_NO_FATAL_FAILURE(press(tab(QLatin1String(layout)), layout));
        EXPECT_EQ(adsInPlace(), 0);
        EXPECT_TRUE(all(fullScreenAd()).isEmpty());
    }
    killProgram();
    EXPECT_EQ(asked(), 0);
}

/// A host of ads that is dead, or sends garbage, or answers late, costs nobody anything.
TEST_F(AdsWalk, BrokenHostOfAdsIsNotNoticed) {
    for (const Fault fault : {Fault(Fault::Kind::Dead), Fault(Fault::Kind::Garbage), Fault(Fault::Kind::Huge),
                              Fault::slow(60000)}) {
        host.setFault(QStringLiteral("/ads"), fault);
        startProgram(options());
        ASSERT_TRUE(wait(message())) << "no messages";
        for (const char *layout : {"Senders", "Recent", "Senders", "Recent"})
            ASSERT_NO_FATAL_FAILURE(press(tab(QLatin1String(layout)), layout));
        EXPECT_EQ(adsInPlace(), 0);
        EXPECT_TRUE(all(fullScreenAd()).isEmpty());
        killProgram();
    }
}

} // namespace
} // namespace orl
