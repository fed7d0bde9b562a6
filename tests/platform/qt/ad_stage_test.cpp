#include "platform/qt/ad_stage.h"
#include "support/played_platform.h"

#include <gtest/gtest.h>

namespace orl {

using namespace std::chrono_literals;

namespace {

struct AdStageTest : testing::Test {
    AdStageTest() { stage.setReady(true); }

    AdStage::Showing showing(std::chrono::seconds reward) {
        return {.assets = {.headline = QStringLiteral("Tea")},
                .reward = reward,
                .tapped = [this] { ++taps; },
                .rewardEarned = [this] { ++rewards; },
                .closed = [this] { ++closes; }};
    }

    PlayedPlatform phone;
    AdStage stage{phone.mainQueue};
    int taps = 0;
    int rewards = 0;
    int closes = 0;
};

} // namespace

TEST_F(AdStageTest, TheRewardIsEarnedOnceAtTheEndOfTheCountdown) {
    ASSERT_TRUE(stage.show(showing(15s)));
    EXPECT_TRUE(stage.isUp() && stage.isRewarded());
    phone.advance(14s);
    EXPECT_EQ(stage.secondsLeft(), 1);
    EXPECT_EQ(rewards, 0);
    phone.advance(1s);
    EXPECT_EQ(stage.secondsLeft(), 0);
    EXPECT_EQ(rewards, 1);
    phone.advance(1min);
    EXPECT_EQ(rewards, 1);
    EXPECT_TRUE(stage.isUp()) << "the user closes it";
    stage.close();
    stage.close();
    EXPECT_EQ(closes, 1);
    EXPECT_FALSE(stage.isUp());
}

TEST_F(AdStageTest, ClosedEarlyItEarnsNothing) {
    stage.show(showing(15s));
    phone.advance(14s);
    stage.close();
    phone.advance(1min);
    EXPECT_EQ(rewards, 0);
    EXPECT_EQ(closes, 1);
    EXPECT_EQ(stage.secondsLeft(), 0);
}

TEST_F(AdStageTest, AnAdWithoutARewardHasNoCountdown) {
    stage.show(showing(0s));
    EXPECT_FALSE(stage.isRewarded());
    phone.advance(1min);
    EXPECT_EQ(rewards, 0);
    stage.tap();
    stage.close();
    stage.tap();
    EXPECT_EQ(taps, 1);
}

TEST_F(AdStageTest, OneAdAtATimeAndOnlyWhereAScreenIs) {
    ASSERT_TRUE(stage.show(showing(15s)));
    EXPECT_FALSE(stage.show(showing(0s)));
    stage.setReady(false);
    EXPECT_EQ(closes, 1) << "a screen that goes closes the ad";
    EXPECT_FALSE(stage.show(showing(0s)));
    stage.setReady(true);
    EXPECT_TRUE(stage.show(showing(0s)));
}

TEST_F(AdStageTest, TheEndOfOneAdMayBringTheNext) {
    AdStage::Showing first = showing(0s);
    first.closed = [this] { stage.show(showing(3s)); };
    stage.show(std::move(first));
    stage.close();
    EXPECT_TRUE(stage.isRewarded());
    EXPECT_EQ(stage.secondsLeft(), 3);
}

} // namespace orl
