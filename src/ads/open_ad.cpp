#include "ads/open_ad.h"

#include "ads/ad_units.h"
#include "ads/device_rule.h"
#include "ads/present_events.h"
#include "config/values_in_force.h"
#include "platform/clock.h"
#include "platform/console.h"

#include <QPointer>

namespace orl {

namespace {

constexpr double secondsPerHour = 3600;

} // namespace

OpenAd::OpenAd(Process &process) : process_(process), loadTime_(process.platform().clock.now()) {}

void OpenAd::loadAd() {
    if (!mayUse() || ad_) return;
    process_.platform().ads.loadAppOpen(
        adUnits().appOpen, [self = QPointer(this)](const Result<std::shared_ptr<FullScreenAd>> &loaded) {
            if (!self) return;
            if (loaded) return self->hold(loaded.value());
            self->process_.platform().console.print(
                QStringLiteral("Failed to load app open ad with error: ") + loaded.error().description);
        });
}

void OpenAd::showAdIfAvailable() {
    if (!mayUse() || !ad_ || !process_.platform().ads.hasTopScreen()) return;
    const double hours = (process_.platform().clock.now() - loadTime_) / secondsPerHour;
    if (hours >= staleAfter) return;
    adWasShown_ = true;
    // Held here too: it may be dismissed, and thereby dropped, while it is being presented.
    const std::shared_ptr<FullScreenAd> ad = ad_;
    ad->present([] {});
}

bool OpenAd::mayUse() const {
    const AdmobConfig config = process_.shared<ValuesInForce>().currentConfiguration->get()->admob;
    return deviceRuleHolds(process_.platform(), config) && config.openAdEnabled;
}

void OpenAd::hold(std::shared_ptr<FullScreenAd> ad) {
    FullScreenAdEvents events = presentEvents(process_.platform().console);
    events.failedToPresent = [self = QPointer(this), tell = events.failedToPresent](const Error &error) {
        tell(error);
        if (self) self->loadAd();
    };
    events.didDismiss = [self = QPointer(this)] {
        if (!self) return;
        self->ad_.reset();
        self->loadAd();
    };
    ad_ = std::move(ad);
    loadTime_ = process_.platform().clock.now();
    ad_->setEvents(std::move(events));
}

} // namespace orl
