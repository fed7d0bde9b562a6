#include "ads/pop_up_ad.h"

#include "ads/ad_units.h"
#include "ads/device_rule.h"
#include "ads/present_events.h"
#include "config/values_in_force.h"
#include "numbers/choice_allowance.h"
#include "platform/console.h"
#include "platform/defaults_store.h"
#include "platform/queues.h"

#include <QPointer>

namespace orl {

using namespace std::chrono_literals;

namespace {

const QString counterKey = QStringLiteral("SHOW_AD_AFTER");

/// From the end of an ad to the load of the next one.
constexpr auto reloadDelay = 2s;

/// Keeps the ad while it is being presented: its dismissal empties the slot.
void present(const Platform &platform, const std::shared_ptr<FullScreenAd> &held,
             std::function<void()> rewardEarned) {
    const std::shared_ptr<FullScreenAd> ad = held;
    if (platform.ads.hasTopScreen()) ad->present(std::move(rewardEarned));
}

} // namespace

PopUpAd::PopUpAd(Process &process)
    : process_(process),
      admobConfig_(process.shared<ValuesInForce>().currentConfiguration->get()->admob),
      interstitial_{.enabled = &AdmobConfig::interstitialAdEnabled,
                    .unit = adUnits().interstitial,
                    .failure = QStringLiteral("Failed to load interstitial ad with error: "),
                    .loader = &AdService::loadRewardedInterstitial},
      rewarded_{.enabled = &AdmobConfig::rewardAdEnabled,
                .unit = adUnits().rewarded,
                .failure = QStringLiteral("Failed to load rewarded ad with error: "),
                .loader = &AdService::loadRewarded} {}

void PopUpAd::loadInterstitial() {
    load(interstitial_);
}

void PopUpAd::loadRewarded() {
    load(rewarded_);
}

void PopUpAd::showInterstitial(int seconds) {
    if (!mayUse(interstitial_)) return;
    const Platform &platform = process_.platform();
    const qint64 next = platform.store.integer(counterKey) + 1;
    const bool due = next >= admobConfig_.showFullAdAfter && interstitial_.ad;
    if (due) {
        platform.mainQueue.postAfter(std::chrono::seconds(seconds),
                                     [platform, ad = interstitial_.ad] { present(platform, ad, [] {}); });
    }
    platform.store.setValue(counterKey, due ? 0 : next);
}

void PopUpAd::showRewarded() {
    if (!mayUse(rewarded_)) return;
    if (!rewarded_.ad) return process_.shared<ChoiceAllowance>().giveWay();
    present(process_.platform(), rewarded_.ad, [self = QPointer(this)] {
        if (self) self->process_.shared<ChoiceAllowance>().resetAllowance();
    });
}

bool PopUpAd::mayUse(const Slot &slot) const {
    return deviceRuleHolds(process_.platform(), admobConfig_) && admobConfig_.*slot.enabled;
}

void PopUpAd::load(Slot &slot) {
    if (!deviceRuleHolds(process_.platform(), admobConfig_)) return;
    slot.willDismiss = false;
    if (!mayUse(slot) || slot.ad) return;
    AdService &ads = process_.platform().ads;
    (ads.*slot.loader)(slot.unit,
                       [self = QPointer(this), &slot](const Result<std::shared_ptr<FullScreenAd>> &loaded) {
                           if (!self) return;
                           if (loaded) return self->hold(slot, loaded.value());
                           self->process_.platform().console.print(slot.failure + loaded.error().description);
                       });
}

void PopUpAd::hold(Slot &slot, std::shared_ptr<FullScreenAd> ad) {
    FullScreenAdEvents events = presentEvents(process_.platform().console);
    events.didDismiss = [self = QPointer(this), &slot] {
        if (self) self->dismissed(slot);
    };
    slot.ad = std::move(ad);
    slot.ad->setEvents(std::move(events));
}

void PopUpAd::dismissed(Slot &slot) {
    slot.willDismiss = true;
    slot.ad.reset();
    process_.platform().mainQueue.postAfter(reloadDelay, [self = QPointer(this), &slot] {
        if (self) self->load(slot);
    });
}

} // namespace orl
