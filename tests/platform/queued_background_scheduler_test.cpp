#include "platform/queued_background_scheduler.h"
#include "support/played_platform.h"

#include <chrono>
#include <gtest/gtest.h>

namespace orl {
namespace {

using namespace std::chrono_literals;

const QString one = QStringLiteral("example.one");
const QString two = QStringLiteral("example.two");

class QueuedBackgroundSchedulerTest : public testing::Test {
protected:
    BackgroundRequest request(const QString &identifier, double delay) {
        return {.identifier = identifier, .earliestBegin = phone.clock.now() + delay};
    }

    PlayedPlatform phone;
    Scene scene;
    QueuedBackgroundScheduler scheduler{phone.clock, phone.mainQueue, scene, {one, two}};
    QStringList launched;

    void registerBoth() {
        for (const QString &identifier : {one, two})
            ASSERT_TRUE(scheduler.registerTask(identifier, [this, identifier] { launched << identifier; }));
    }
};

TEST_F(QueuedBackgroundSchedulerTest, LaunchesOnceWhenItsTimeHasComeInTheBackground) {
    registerBoth();
    EXPECT_EQ(scheduler.submit(request(one, 60)), std::nullopt);
    EXPECT_EQ(scheduler.submit(request(two, 120)), std::nullopt);
    phone.advance(59s);
    EXPECT_TRUE(launched.isEmpty());
    phone.advance(1s);
    EXPECT_EQ(launched, QStringList{one});
    phone.advance(1h);
    EXPECT_EQ(launched, (QStringList{one, two}));
    EXPECT_TRUE(scheduler.pending().empty());
}

TEST_F(QueuedBackgroundSchedulerTest, WaitsWhileTheProgramIsInFront) {
    registerBoth();
    scene.setPhase(ScenePhase::Inactive);
    EXPECT_EQ(scheduler.submit(request(one, 60)), std::nullopt);
    phone.advance(2min);
    EXPECT_TRUE(launched.isEmpty());
    scene.setPhase(ScenePhase::Background);
    EXPECT_EQ(launched, QStringList{one});
}

TEST_F(QueuedBackgroundSchedulerTest, ALaterRequestTakesThePlaceOfThePendingOne) {
    registerBoth();
    EXPECT_EQ(scheduler.submit(request(one, 60)), std::nullopt);
    const BackgroundRequest later = request(one, 90);
    EXPECT_EQ(scheduler.submit(later), std::nullopt);
    EXPECT_EQ(scheduler.pending(), (std::map<QString, BackgroundRequest>{{one, later}}));
    phone.advance(89s);
    EXPECT_TRUE(launched.isEmpty());
    phone.advance(1h);
    EXPECT_EQ(launched, QStringList{one});
}

TEST_F(QueuedBackgroundSchedulerTest, TakesNothingThatItCouldNotRun) {
    EXPECT_FALSE(scheduler.registerTask(QStringLiteral("example.other"), [] {}));
    EXPECT_TRUE(scheduler.submit(request(one, 0))) << "nothing is registered yet";
    registerBoth();
    EXPECT_FALSE(scheduler.registerTask(one, [] {})) << "a second handler";
    BackgroundRequest needsNetwork = request(one, 0);
    needsNetwork.requiresNetworkConnectivity = true;
    EXPECT_TRUE(scheduler.submit(needsNetwork));
    EXPECT_TRUE(scheduler.pending().empty());
}

} // namespace
} // namespace orl
