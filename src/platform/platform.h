#pragma once

#include "platform/ad_service.h"
#include "platform/analytics_service.h"
#include "platform/background_scheduler.h"
#include "platform/browser.h"
#include "platform/consent_service.h"
#include "platform/device.h"
#include "platform/endpoints.h"
#include "platform/haptics.h"
#include "platform/mail_composer.h"
#include "platform/notification_center.h"
#include "platform/pasteboard.h"
#include "platform/push_service.h"
#include "platform/random_source.h"
#include "platform/scene.h"
#include "platform/store_review.h"
#include "platform/tracking_authorization.h"

#include <QString>

namespace orl {

class Bundle;
class Clock;
class Console;
class DefaultsStore;
class GlobalQueue;
class MainQueue;
class Reachability;
class UrlReader;

/// Stops the program because of a fault of its own that the rules call fatal.
class FatalErrors {
public:
    virtual ~FatalErrors() = default;

    /// Prints the message and aborts; the played one throws, so that a test can watch it.
    [[noreturn]] virtual void fatalError(const QString &message) = 0;
};

/// The phone as the program sees it: one port per service. Outlives everything that uses it.
struct Platform {
    Clock &clock;
    MainQueue &mainQueue;
    GlobalQueue &globalQueue;
    UrlReader &urlReader;
    DefaultsStore &store;
    Reachability &reachability;
    Bundle &bundle;
    Console &console;
    FatalErrors &fatal;
    Endpoints endpoints;
    NotificationCenter &notifications = NoNotificationCenter::instance();
    Haptics &haptics = NoHaptics::instance();
    Pasteboard &pasteboard = NoPasteboard::instance();
    Browser &browser = NoBrowser::instance();
    AdService &ads = NoAdService::instance();
    ConsentService &consent = NoConsentService::instance();
    TrackingAuthorization &tracking = NoTrackingAuthorization::instance();
    PushService &push = NoPushService::instance();
    Device &device = PhoneDevice::instance();
    RandomSource &random = SystemRandom::instance();
    MailComposer &mailComposer = NoMailComposer::instance();
    StoreReview &storeReview = NoStoreReview::instance();
    Scene &scene = Scene::none();
    BackgroundScheduler &background = NoBackgroundScheduler::instance();
    AnalyticsService &analytics = NoAnalyticsService::instance();
};

} // namespace orl
