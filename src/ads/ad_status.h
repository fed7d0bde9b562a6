#pragma once

namespace orl {

class Process;

/// How far the banners of a kind have come. The status is shared: one that has loaded makes all count as
/// loaded.
enum class AdStatus { none, failed, loaded };

/// The anchored banners of the process. Main thread; shared.
struct BannerAd {
    static constexpr double height = 60; ///< points

    explicit BannerAd(Process &) {}
    AdStatus status = AdStatus::none;
};

/// The inline banners of the process. Main thread; shared.
struct InlineBannerAd {
    explicit InlineBannerAd(Process &) {}
    AdStatus status = AdStatus::none;
};

} // namespace orl
