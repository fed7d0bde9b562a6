#include "app/app_delegate.h"
#include "platform/queued_background_scheduler.h"
#include "support/played_platform.h"

#include <chrono>
#include <gtest/gtest.h>

namespace orl {
namespace {

using namespace std::chrono_literals;

/// Writes down what the launch delegate starts, in order.
struct PlayedServices : AnalyticsService, PushService, BackgroundScheduler {
    QStringList events;
    QList<BackgroundRequest> submitted;
    bool refuses = false;

    void configure() override { events << QStringLiteral("analytics"); }
    void setLogLevel(int level) override { events << QStringLiteral("push level %1").arg(level); }
    void initialize(const QString &appId) override { events << QStringLiteral("push ") + appId; }
    void requestPermission(bool, std::function<void(bool)>) override {
        events << QStringLiteral("permission");
    }
    bool registerTask(const QString &identifier, Task) override {
        events << QStringLiteral("register ") + identifier;
        return true;
    }
    std::optional<Error> submit(const BackgroundRequest &request) override {
        submitted << request;
        return refuses ? std::optional(Error{QStringLiteral("switched off")}) : std::nullopt;
    }
};

class AppDelegateTest : public testing::Test {
protected:
    Platform with(BackgroundScheduler &background) {
        return phone.platform().with(background, services, scene);
    }

    void enterBackground() {
        scene.setPhase(ScenePhase::Active);
        scene.setPhase(ScenePhase::Background);
    }

    PlayedPlatform phone;
    PlayedServices services;
    Scene scene;
};

TEST_F(AppDelegateTest, StartsTheServicesInOrderAndRegistersBothTasks) {
    Process process(with(services));
    EXPECT_TRUE(AppDelegate(process).didFinishLaunching());
    EXPECT_EQ(services.events,
              (QStringList{"analytics", "push level 6", "push 00000000-1111-4222-8333-444444444444",
                           "register com.tarvo.Orl.fetching", "register com.tarvo.Orl.cleaning"}));
    EXPECT_TRUE(services.submitted.isEmpty());
}

TEST_F(AppDelegateTest, EnteringTheBackgroundSubmitsBothRequests) {
    Process process(with(services));
    const AppDelegate delegate(process);
    scene.setPhase(ScenePhase::Active);
    scene.setPhase(ScenePhase::Inactive);
    EXPECT_TRUE(services.submitted.isEmpty());
    scene.setPhase(ScenePhase::Background);
    const double now = phone.clock.now();
    EXPECT_EQ(services.submitted,
              (QList<BackgroundRequest>{
                  {BackgroundRequest::Kind::AppRefresh, "com.tarvo.Orl.cleaning", now + 120},
                  {BackgroundRequest::Kind::Processing, "com.tarvo.Orl.fetching", now + 60}}));
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(AppDelegateTest, OneRequestPerIdentifierStaysPendingAndRunsNothing) {
    QueuedBackgroundScheduler scheduler(phone.clock, phone.mainQueue, scene,
                                        {AppDelegate::fetchingKey, AppDelegate::cleaningKey});
    Process process(with(scheduler));
    AppDelegate delegate(process);
    delegate.didFinishLaunching();
    enterBackground();
    phone.advance(30s);
    enterBackground();
    ASSERT_EQ(scheduler.pending().size(), 2U);
    EXPECT_EQ(scheduler.pending().at(AppDelegate::fetchingKey).earliestBegin, phone.clock.now() + 60);
    phone.advance(5min);
    EXPECT_TRUE(scheduler.pending().empty()) << "both were launched";
    EXPECT_TRUE(phone.urls.requests.empty() && phone.store.writes.isEmpty() && phone.console.lines.isEmpty());
}

TEST_F(AppDelegateTest, ARefusedSubmissionIsOneLineEach) {
    services.refuses = true;
    Process process(with(services));
    const AppDelegate delegate(process);
    enterBackground();
    EXPECT_EQ(phone.console.lines, (QStringList{"Could not schedule app refresh: switched off",
                                                "Could not schedule image fetch: switched off"}));
}

} // namespace
} // namespace orl
