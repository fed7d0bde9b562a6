#include "ads_phone.h"
#include "numbers/choice_allowance.h"

namespace orl {

using namespace std::chrono_literals;

namespace {

const QString counterKey = QStringLiteral("SHOW_AD_AFTER");
const QString countKey = QStringLiteral("chose_numbers_count_key");
const QString interstitialRequest = QStringLiteral("interstitial interstitial");
const QString rewardedRequest = QStringLiteral("rewarded rewarded");

struct FullScreenTest : AdsTest {
    PopUpAd &popUp() { return process->shared<PopUpAd>(); }
    qint64 counter() { return phone.store.integer(counterKey); }

    std::shared_ptr<PlayedFullScreenAd> heldInterstitial() {
        popUp().loadInterstitial();
        return ads.deliver();
    }
    std::shared_ptr<PlayedFullScreenAd> heldRewarded() {
        popUp().loadRewarded();
        return ads.deliver();
    }

    /// One action, and whatever it leads to at once.
    void act(int seconds = 0) {
        popUp().showInterstitial(seconds);
        phone.settle();
    }
};

} // namespace

TEST_F(FullScreenTest, TheAdComesAtTheConfiguredActionOnceItIsLoaded) {
    struct Case {
        const char *name;
        qint64 after;
        QList<bool> held; ///< whether an ad is held at each action
        QList<qint64> counters;
        int presented;
    };
    const Case cases[] = {
        {"the third of three", 3, {true, true, true, true}, {1, 2, 0, 1}, 1},
        {"every action at 1", 1, {true, true}, {0, 0}, 2},
        {"every action at 0", 0, {true, true}, {0, 0}, 2},
        {"a count past the threshold waits for an ad", 2, {false, false, false, true}, {1, 2, 3, 0}, 1},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        phone.store.values.clear();
        restart();
        putInForce({.showFullAdAfter = row.after});
        std::shared_ptr<PlayedFullScreenAd> ad;
        QList<qint64> counters;
        for (const bool held : row.held) {
            if (held && !ad) ad = heldInterstitial();
            act();
            counters.append(counter());
        }
        EXPECT_EQ(counters, row.counters);
        EXPECT_EQ(ad->presented, row.presented);
    }
}

TEST_F(FullScreenTest, TheCountSurvivesARestart) {
    act();
    act();
    restart();
    const auto ad = heldInterstitial();
    act();
    EXPECT_EQ(ad->presented, 1);
    EXPECT_EQ(counter(), 0);
}

TEST_F(FullScreenTest, TheAdIsPresentedAfterTheSecondsOfItsPlace) {
    putInForce({.showFullAdAfter = 1});
    const auto ad = heldInterstitial();
    act(2);
    EXPECT_EQ(counter(), 0) << "counted anew when it is queued, not when it is shown";
    phone.advance(1999ms);
    EXPECT_EQ(ad->presented, 0);
    phone.advance(1ms);
    EXPECT_EQ(ad->presented, 1);
    EXPECT_EQ(takeLines(), QStringList{QStringLiteral("Ad did present full screen content.")});
}

TEST_F(FullScreenTest, WithoutAScreenOnTopNothingIsPresentedAndNothingSaid) {
    putInForce({.showFullAdAfter = 1});
    const auto interstitial = heldInterstitial();
    const auto rewarded = heldRewarded();
    phone.store.setValue(countKey, qint64{3});
    ads.topScreen = false;
    act();
    popUp().showRewarded();
    EXPECT_EQ(interstitial->presented + rewarded->presented, 0);
    EXPECT_EQ(counter(), 0);
    EXPECT_EQ(phone.store.integer(countKey), 3);
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(FullScreenTest, AHeldAdIsNotLoadedAgainAndADismissedOneIsTwoSecondsLater) {
    putInForce({.showFullAdAfter = 1});
    const auto ad = heldInterstitial();
    popUp().loadInterstitial();
    EXPECT_EQ(ads.asked(), QStringList{interstitialRequest});
    act();
    ad->dismiss();
    EXPECT_TRUE(popUp().interstitialWillDismiss());
    EXPECT_FALSE(popUp().rewardedAdWillDismiss());
    EXPECT_FALSE(popUp().holdsInterstitial());
    phone.advance(1999ms);
    EXPECT_TRUE(ads.asked().isEmpty());
    phone.advance(1ms);
    EXPECT_EQ(ads.asked(), QStringList{interstitialRequest});
    EXPECT_FALSE(popUp().interstitialWillDismiss());
}

TEST_F(FullScreenTest, AFailedLoadIsALineAndIsNotRepeated) {
    popUp().loadInterstitial();
    popUp().loadRewarded();
    ads.asked();
    ads.refuse();
    ads.refuse();
    phone.advance(1h);
    EXPECT_EQ(takeLines(), (QStringList{QStringLiteral("Failed to load interstitial ad with error: no fill"),
                                        QStringLiteral("Failed to load rewarded ad with error: no fill")}));
    EXPECT_TRUE(ads.asked().isEmpty());
}

TEST_F(FullScreenTest, AnAdThatCouldNotBePresentedIsPresentedAtTheNextAttempt) {
    putInForce({.showFullAdAfter = 1});
    const auto ad = heldInterstitial();
    ad->fails = true;
    act();
    EXPECT_EQ(takeLines(),
              QStringList{QStringLiteral("Ad failed to present full screen content with error no room.")});
    ad->fails = false;
    act();
    EXPECT_EQ(ad->presented, 2);
}

TEST_F(FullScreenTest, SwitchesAndTabletsHoldEverythingBack) {
    struct Case {
        const char *name;
        AdmobConfig config;
        bool tablet;
        bool interstitial;
        bool rewarded;
    };
    const Case cases[] = {
        {"phone", {}, false, true, true},
        {"phone without tablet ads", {.ipadAdEnabled = false}, false, true, true},
        {"tablet", {}, true, true, true},
        {"tablet without tablet ads", {.ipadAdEnabled = false}, true, false, false},
        {"interstitials off", {.interstitialAdEnabled = false}, false, false, true},
        {"rewarded off", {.rewardAdEnabled = false}, false, true, false},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        phone.store.values.clear();
        phone.store.setValue(countKey, qint64{3});
        device.tablet = row.tablet;
        restart();
        putInForce(row.config);
        popUp().loadInterstitial();
        popUp().loadRewarded();
        QStringList expected;
        if (row.interstitial) expected.append(interstitialRequest);
        if (row.rewarded) expected.append(rewardedRequest);
        EXPECT_EQ(ads.asked(), expected);
        act();
        EXPECT_EQ(counter(), row.interstitial ? 1 : 0);
        popUp().showRewarded();
        EXPECT_EQ(phone.store.integer(countKey), row.rewarded ? 2 : 3);
    }
}

TEST_F(FullScreenTest, KeepsTheSwitchesOfTheMomentWhenItWasMade) {
    putInForce({.showFullAdAfter = 1});
    const auto ad = heldInterstitial();
    putInForce({.interstitialAdEnabled = false, .showFullAdAfter = 50});
    act();
    EXPECT_EQ(ad->presented, 1);
}

TEST_F(FullScreenTest, AVideoWatchedToItsEndRefillsTheAllowance) {
    phone.store.setValue(countKey, qint64{3});
    auto &allowance = process->shared<ChoiceAllowance>();
    int posted = 0;
    QObject::connect(&allowance, &ChoiceAllowance::rewardUser, [&] { ++posted; });
    ASSERT_FALSE(allowance.mayChoose());
    const auto ad = heldRewarded();
    popUp().showRewarded();
    EXPECT_EQ(allowance.chosenNumbersCount(), 3) << "nothing before the video has ended";
    ad->watchToTheEnd();
    EXPECT_EQ(allowance.chosenNumbersCount(), 0);
    EXPECT_EQ(phone.store.integer(countKey), 0);
    EXPECT_EQ(posted, 1);
    ads.asked();
    ad->dismiss();
    EXPECT_TRUE(popUp().rewardedAdWillDismiss());
    phone.advance(2s);
    EXPECT_EQ(ads.asked(), QStringList{rewardedRequest});
}

TEST_F(FullScreenTest, AVideoThatIsClosedEarlyRefillsNothing) {
    phone.store.setValue(countKey, qint64{3});
    const auto ad = heldRewarded();
    popUp().showRewarded();
    ad->dismiss();
    EXPECT_EQ(process->shared<ChoiceAllowance>().chosenNumbersCount(), 3);
}

TEST_F(FullScreenTest, WithoutAVideoEachTapGivesOneChoiceBack) {
    phone.store.setValue(countKey, qint64{5});
    auto &allowance = process->shared<ChoiceAllowance>();
    ASSERT_EQ(allowance.chosenNumbersCount(), 5);
    popUp().loadRewarded();
    ads.refuse();
    for (const qint64 left : {4, 3, 2}) {
        popUp().showRewarded();
        EXPECT_EQ(phone.store.integer(countKey), left);
        EXPECT_EQ(allowance.chosenNumbersCount(), left) << "the copy in memory goes with the store";
    }
    EXPECT_TRUE(allowance.mayChoose());
}

TEST_F(FullScreenTest, ConsentAndConfigurationLoadOneOfEach) {
    makeAppVM();
    appVM->loadAds();
    EXPECT_TRUE(ads.asked().isEmpty()) << "the configuration is missing";
    arrive({});
    EXPECT_EQ(ads.asked(),
              (QStringList{interstitialRequest, rewardedRequest, QStringLiteral("open app-open")}));
    ads.deliver();
    ads.deliver();
    ads.deliver();
    appVM->loadAds();
    EXPECT_TRUE(ads.asked().isEmpty()) << "the slots are filled";
}

TEST_F(FullScreenTest, LateAnswersDoNotReachAnEarlierRun) {
    popUp().loadInterstitial();
    restart();
    ads.refuse();
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

} // namespace orl
