#pragma once

#include "platform/platform.h"
#include "platform/qt/ad_stage.h"
#include "platform/qt/house_ad.h"

#include <QHash>

namespace orl {

/// The ad service of Linux phones and desktops: house ads from the ad endpoint. Nothing is asked for before
/// `start`. Full-screen ads stand on the stage; banners and native ads are drawn where they belong. A tap
/// opens the ad's link in the browser.
///
/// Loads run on the global queue and end on the main queue. Outlives the Process.
class HouseAds final : public AdService {
public:
    /// Queues, reader, browser and the address of the ad endpoint are those of the platform.
    explicit HouseAds(const Platform &platform);

    AdStage &stage() { return stage_; }

    void start() override { started_ = true; }
    void setTestDevices(const QStringList &) override {} ///< there is nobody to tell real from test ads
    bool hasTopScreen() const override { return stage_.isReady(); }
    void loadRewardedInterstitial(const QString &unit, FullScreenLoaded completion) override;
    void loadRewarded(const QString &unit, FullScreenLoaded completion) override;
    void loadAppOpen(const QString &unit, FullScreenLoaded completion) override;
    std::unique_ptr<Banner> makeBanner(const QString &unit, BannerSize size, BannerEvents events) override;
    std::unique_ptr<NativeAdLoader> makeNativeLoader(const QString &unit) override;

private:
    class FullScreen;
    class HouseBanner;
    class HouseNative;
    class HouseNativeLoader;
    using Loaded = std::function<void(const Result<HouseAd> &)>;

    void load(const QString &unit, Loaded completion);
    void loadFullScreen(const QString &unit, bool rewarded, FullScreenLoaded completion);

    const Platform platform_;
    const HouseAdReader reader_;
    AdStage stage_;
    bool started_ = false;
    QHash<QString, int> asked_; ///< ads that this run has asked of each unit
};

} // namespace orl
