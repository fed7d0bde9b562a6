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

#include <type_traits>

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

    /// The same phone with these ports in the places of those that have their type. A port that is several of
    /// them takes each of their places; where two fit, the first one does.
    template<class... Ports>
    Platform with(Ports &...ports) const {
        return {pick(clock, ports...),         pick(mainQueue, ports...),
                pick(globalQueue, ports...),   pick(urlReader, ports...),
                pick(store, ports...),         pick(reachability, ports...),
                pick(bundle, ports...),        pick(console, ports...),
                pick(fatal, ports...),         endpoints,
                pick(notifications, ports...), pick(haptics, ports...),
                pick(pasteboard, ports...),    pick(browser, ports...),
                pick(ads, ports...),           pick(consent, ports...),
                pick(tracking, ports...),      pick(push, ports...),
                pick(device, ports...),        pick(random, ports...),
                pick(mailComposer, ports...),  pick(storeReview, ports...),
                pick(scene, ports...),         pick(background, ports...),
                pick(analytics, ports...)};
    }

private:
    template<class Port>
    static Port &pick(Port &current) {
        return current;
    }

    template<class Port, class First, class... Rest>
    static Port &pick(Port &current, First &first, Rest &...rest) {
        if constexpr (std::is_base_of_v<Port, First>)
            return first;
        else
            return pick(current, rest...);
    }
};

} // namespace orl
