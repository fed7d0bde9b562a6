#include "ads/native_ad_controller.h"

#include "ads/device_rule.h"
#include "config/values_in_force.h"
#include "platform/clock.h"
#include "platform/console.h"

namespace orl {

NativeAdController::NativeAdController(Process &process, NativeModel item)
    : process_(process), item_(std::move(item)) {}

void NativeAdController::viewDidLoad() {
    const auto configuration = process_.shared<ValuesInForce>().currentConfiguration->get();
    if (!deviceRuleHolds(process_.platform(), configuration->admob)) return;
    nativeAdView_ = std::make_shared<NativeAdView>(process_, item_.adType);
    const auto &held = process_.shared<NativeAd>().held;
    const auto kept = held.find(item_.id);
    if (kept == held.end()) return load();
    const auto seconds = static_cast<qint64>(process_.platform().clock.now() - kept->second.arrived);
    if (seconds > keptSeconds) return load();
    fill(kept->second.ad);
}

void NativeAdController::load() {
    alpha_ = 0;
    adLoader_ = process_.platform().ads.makeNativeLoader(adUnit(item_.adType));
    adLoader_->load([this](const Result<std::shared_ptr<NativeAdContent>> &loaded) { arrived(loaded); });
}

void NativeAdController::arrived(const Result<std::shared_ptr<NativeAdContent>> &loaded) {
    NativeAd &shared = process_.shared<NativeAd>();
    if (!loaded) {
        process_.platform().console.print(adLoader_->description() + QStringLiteral(" failed with error: ") +
                                          loaded.error().description);
        shared.states[item_.adType] = NativeAdState::failed;
        return;
    }
    shared.held[item_.id] = {loaded.value(), process_.platform().clock.now()};
    fill(loaded.value());
}

void NativeAdController::fill(const std::shared_ptr<NativeAdContent> &ad) {
    nativeAdView_->fill(ad);
    NativeAd &shared = process_.shared<NativeAd>();
    shared.views[item_.adType] = nativeAdView_;
    shared.states[item_.adType] = NativeAdState::loaded;
    alpha_ = 1;
}

} // namespace orl
