#pragma once

#include "ads/native_ad.h"

namespace orl {

/// Loads the ad of one slot and fills a card with it. An ad that the slot got a short while ago is used
/// again, so that a card that was scrolled away and comes back keeps it. Main thread.
class NativeAdController {
public:
    /// A held ad of so many whole seconds is used again; one second more and a new one is asked for.
    static constexpr qint64 keptSeconds = 99;

    NativeAdController(Process &process, NativeModel item);

    const NativeModel &item() const { return item_; }

    /// Lays the card out and fills it, at once or when a new ad arrives. Nothing happens where a tablet shows
    /// no ads.
    void viewDidLoad();

    double alpha() const { return alpha_; } ///< of the card: 0 while its load is under way
    NativeAdView *nativeAdView() const { return nativeAdView_.get(); } ///< null until laid out

private:
    void load();
    void arrived(const Result<std::shared_ptr<NativeAdContent>> &loaded);
    void fill(const std::shared_ptr<NativeAdContent> &ad);

    Process &process_;
    const NativeModel item_;
    double alpha_ = 1;
    std::shared_ptr<NativeAdView> nativeAdView_;
    std::unique_ptr<NativeAdLoader> adLoader_;
};

} // namespace orl
