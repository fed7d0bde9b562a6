#pragma once

#include "ads/native_ad_view.h"

#include <map>
#include <memory>

namespace orl {

/// What all native cards of the process share: for each type the finished card and how its last load went,
/// for each slot the ad that it holds. Main thread; shared by the Process.
///
/// A state does not go back to none: a card that is built after a failure shows nothing until a later load
/// succeeds.
struct NativeAd {
    struct Held {
        std::shared_ptr<NativeAdContent> ad;
        double arrived = 0; ///< seconds since 1970
    };

    explicit NativeAd(Process &) {}

    std::shared_ptr<NativeAdView> view(NativeAdType type) const; ///< null without one
    NativeAdState state(NativeAdType type) const;                ///< none without one

    std::map<NativeAdType, std::shared_ptr<NativeAdView>> views;
    std::map<NativeAdType, NativeAdState> states;
    std::map<QString, Held> held; ///< by the id of the slot
};

} // namespace orl
