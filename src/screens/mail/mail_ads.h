#pragma once

#include "ads/native_ad_card_view.h"
#include "config/values_in_force.h"

namespace orl {

/// The native card of a slot of the mail screens; null where native ads are switched off.
inline std::unique_ptr<NativeAdCardView> mailAd(Process &process, AppConfigViewModel &appVM,
                                                const QString &id) {
    if (!process.shared<ValuesInForce>().currentConfiguration->get()->admob.nativeAdEnabled) return nullptr;
    return std::make_unique<NativeAdCardView>(process, appVM,
                                              NativeModel{.id = id, .adType = NativeAdType::INSIDE_MESSAGES});
}

} // namespace orl
