#include "ads/native_ad.h"

namespace orl {

std::shared_ptr<NativeAdView> NativeAd::view(NativeAdType type) const {
    const auto entry = views.find(type);
    return entry == views.end() ? nullptr : entry->second;
}

NativeAdState NativeAd::state(NativeAdType type) const {
    const auto entry = states.find(type);
    return entry == states.end() ? NativeAdState::none : entry->second;
}

} // namespace orl
