#include "platform/qt/house_ads.h"

#include <QPointer>

namespace orl {

/// Held by the rules; the stage is gone before it only at the very end of the program.
class HouseAds::FullScreen final : public FullScreenAd, public std::enable_shared_from_this<FullScreen> {
public:
    FullScreen(HouseAd ad, bool rewarded, AdStage &stage, Browser &browser)
        : ad_(std::move(ad)), rewarded_(rewarded), stage_(&stage), browser_(browser) {}

    void setEvents(FullScreenAdEvents events) override { events_ = std::move(events); }

    void present(std::function<void()> rewardEarned) override {
        AdStage::Showing showing{.assets = ad_.assets};
        showing.tapped = [&browser = browser_, link = ad_.link] { browser.open(link); };
        if (rewarded_) showing.reward = ad_.reward;
        showing.rewardEarned = std::move(rewardEarned);
        showing.closed = [self = shared_from_this()] {
            if (self->events_.didDismiss) self->events_.didDismiss();
        };
        if (!stage_ || !stage_->isReady()) return fail("no screen is there to show it");
        if (stage_->isUp()) return fail("another ad is on show");
        if (events_.willPresent) events_.willPresent();
        stage_->show(std::move(showing));
    }

private:
    void fail(const char *why) const {
        if (events_.failedToPresent) events_.failedToPresent(Error{QString::fromLatin1(why)});
    }

    const HouseAd ad_;
    const bool rewarded_;
    const QPointer<AdStage> stage_;
    Browser &browser_;
    FullScreenAdEvents events_;
};

class HouseAds::HouseBanner final : public Banner {
public:
    HouseBanner(HouseAds &ads, QString unit, BannerEvents events)
        : ads_(ads), unit_(std::move(unit)), events_(std::move(events)) {}

    void load() override {
        ads_.load(unit_, [this, alive = std::weak_ptr(alive_)](const Result<HouseAd> &loaded) {
            if (alive.expired()) return;
            if (!loaded) {
                if (events_.failed) events_.failed(loaded.error());
                return;
            }
            ad_ = loaded.value();
            if (events_.received) events_.received();
        });
    }
    const AdAssets *assets() const override { return ad_ ? &ad_->assets : nullptr; }
    void tap() override {
        if (!ad_) return;
        ads_.platform_.browser.open(ad_->link);
        if (events_.clicked) events_.clicked();
    }

private:
    HouseAds &ads_;
    const QString unit_;
    const BannerEvents events_;
    std::optional<HouseAd> ad_;
    const std::shared_ptr<int> alive_ = std::make_shared<int>();
};

class HouseAds::HouseNative final : public NativeAdContent {
public:
    HouseNative(HouseAd ad, Browser &browser) : ad_(std::move(ad)), browser_(browser) {}

    const AdAssets &assets() const override { return ad_.assets; }
    void tap() override { browser_.open(ad_.link); }

private:
    const HouseAd ad_;
    Browser &browser_;
};

class HouseAds::HouseNativeLoader final : public NativeAdLoader {
public:
    HouseNativeLoader(HouseAds &ads, QString unit) : ads_(ads), unit_(std::move(unit)) {}

    QString description() const override { return QStringLiteral("<native ad loader, unit %1>").arg(unit_); }
    void load(std::function<void(Result<std::shared_ptr<NativeAdContent>>)> completion) override {
        ads_.load(unit_, [&browser = ads_.platform_.browser, completion = std::move(completion),
                          alive = std::weak_ptr(alive_)](const Result<HouseAd> &loaded) {
            if (alive.expired()) return;
            if (!loaded) return completion(loaded.error());
            completion(
                std::shared_ptr<NativeAdContent>(std::make_shared<HouseNative>(loaded.value(), browser)));
        });
    }

private:
    HouseAds &ads_;
    const QString unit_;
    const std::shared_ptr<int> alive_ = std::make_shared<int>();
};

HouseAds::HouseAds(const Platform &platform)
    : platform_(platform),
      reader_(platform.urlReader, platform.endpoints.adHost),
      stage_(platform.mainQueue) {}

void HouseAds::loadRewardedInterstitial(const QString &unit, FullScreenLoaded completion) {
    loadFullScreen(unit, false, std::move(completion));
}

void HouseAds::loadRewarded(const QString &unit, FullScreenLoaded completion) {
    loadFullScreen(unit, true, std::move(completion));
}

void HouseAds::loadAppOpen(const QString &unit, FullScreenLoaded completion) {
    loadFullScreen(unit, false, std::move(completion));
}

std::unique_ptr<Banner> HouseAds::makeBanner(const QString &unit, BannerSize, BannerEvents events) {
    return std::make_unique<HouseBanner>(*this, unit, std::move(events));
}

std::unique_ptr<NativeAdLoader> HouseAds::makeNativeLoader(const QString &unit) {
    return std::make_unique<HouseNativeLoader>(*this, unit);
}

void HouseAds::load(const QString &unit, Loaded completion) {
    if (!started_) {
        platform_.mainQueue.post([completion = std::move(completion)] {
            completion(Error{QStringLiteral("the ad service has not been started")});
        });
        return;
    }
    const int number = asked_[unit]++;
    platform_.globalQueue.post(
        [platform = platform_, reader = reader_, unit, number, completion = std::move(completion)] {
            platform.mainQueue.post([completion, ad = reader.read(unit, number)] { completion(ad); });
        });
}

void HouseAds::loadFullScreen(const QString &unit, bool rewarded, FullScreenLoaded completion) {
    load(unit, [this, rewarded, completion = std::move(completion)](const Result<HouseAd> &loaded) {
        if (!loaded) return completion(loaded.error());
        completion(std::shared_ptr<FullScreenAd>(
            std::make_shared<FullScreen>(loaded.value(), rewarded, stage_, platform_.browser)));
    });
}

} // namespace orl
