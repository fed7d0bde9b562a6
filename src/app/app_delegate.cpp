#include "app/app_delegate.h"

#include "platform/clock.h"
#include "platform/console.h"

namespace orl {

namespace {

constexpr double refreshDelay = 120; // seconds
constexpr double fetchDelay = 60;    // seconds

/// The most talkative level of the push service.
constexpr int pushLogLevel = 6;

} // namespace

const QString AppDelegate::gcmMessageIDKey = QStringLiteral("gcm.message_id");
const QString AppDelegate::fetchingKey = QStringLiteral("com.tarvo.Orl.fetching");
const QString AppDelegate::cleaningKey = QStringLiteral("com.tarvo.Orl.cleaning");

AppDelegate::AppDelegate(Process &process, QObject *parent) : QObject(parent), process_(process) {
    connect(&process_.platform().scene, &Scene::phaseChanged, this, [this](ScenePhase phase) {
        if (phase == ScenePhase::Background) didEnterBackground();
    });
}

bool AppDelegate::didFinishLaunching() {
    const Platform &platform = process_.platform();
    platform.analytics.configure();
    platform.push.setLogLevel(pushLogLevel);
    platform.push.initialize(QStringLiteral(ORL_PUSH_APP_ID));
    registerBackgroundTasks();
    return true;
}

void AppDelegate::didEnterBackground() {
    scheduleAppRefresh();
    scheduleImageFetch();
}

void AppDelegate::registerBackgroundTasks() {
    BackgroundScheduler &background = process_.platform().background;
    background.registerTask(fetchingKey, [] {});
    background.registerTask(cleaningKey, [] {});
}

void AppDelegate::scheduleAppRefresh() {
    submit({.kind = BackgroundRequest::Kind::AppRefresh,
            .identifier = cleaningKey,
            .earliestBegin = process_.platform().clock.now() + refreshDelay},
           "Could not schedule app refresh: ");
}

void AppDelegate::scheduleImageFetch() {
    submit({.kind = BackgroundRequest::Kind::Processing,
            .identifier = fetchingKey,
            .earliestBegin = process_.platform().clock.now() + fetchDelay,
            .requiresNetworkConnectivity = false,
            .requiresExternalPower = false},
           "Could not schedule image fetch: ");
}

void AppDelegate::submit(const BackgroundRequest &request, const char *failure) {
    const auto error = process_.platform().background.submit(request);
    if (error) process_.platform().console.print(QLatin1String(failure) + error->description);
}

} // namespace orl
