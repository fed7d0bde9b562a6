#pragma once

#include "platform/ad_service.h"
#include "platform/consent_service.h"
#include "platform/device.h"
#include "platform/push_service.h"
#include "platform/random_source.h"
#include "platform/tracking_authorization.h"

#include <QList>

#include <deque>
#include <utility>
#include <vector>

namespace orl {

/// A full-screen ad whose end the test decides.
class PlayedFullScreenAd : public FullScreenAd {
public:
    FullScreenAdEvents events;
    int presented = 0;
    bool fails = false; ///< to be presented

    void setEvents(FullScreenAdEvents with) override { events = std::move(with); }
    void present(std::function<void()> rewardEarned) override {
        ++presented;
        if (fails) return events.failedToPresent(Error{QStringLiteral("no room")});
        events.willPresent();
        rewardEarned_ = std::move(rewardEarned);
    }

    void watchToTheEnd() { rewardEarned_(); }

    /// Run on a copy: whom it tells drops the ad.
    void dismiss() {
        const auto didDismiss = events.didDismiss;
        didDismiss();
    }

private:
    std::function<void()> rewardEarned_;
};

class PlayedNativeAd : public NativeAdContent {
public:
    explicit PlayedNativeAd(AdAssets with) : assets_(std::move(with)) {}

    int taps = 0;
    const AdAssets &assets() const override { return assets_; }
    void tap() override { ++taps; }

private:
    const AdAssets assets_;
};

/// An ad service that answers when the test says so. `requests` has every load as "KIND UNIT".
class PlayedAds : public AdService {
public:
    bool topScreen = true;
    int started = 0;
    QStringList testDevices;
    QStringList requests;

    /// Loads that wait for an answer, oldest first.
    std::deque<FullScreenLoaded> fullScreen;

    class PlayedBanner;
    QList<PlayedBanner *> banners; ///< those that live and were asked to load
    class PlayedNativeLoader;
    QList<PlayedNativeLoader *> natives;

    void start() override { ++started; }
    void setTestDevices(const QStringList &devices) override { testDevices = devices; }
    bool hasTopScreen() const override { return topScreen; }
    void loadRewardedInterstitial(const QString &unit, FullScreenLoaded completion) override {
        ask(QStringLiteral("interstitial "), unit, std::move(completion));
    }
    void loadRewarded(const QString &unit, FullScreenLoaded completion) override {
        ask(QStringLiteral("rewarded "), unit, std::move(completion));
    }
    void loadAppOpen(const QString &unit, FullScreenLoaded completion) override {
        ask(QStringLiteral("open "), unit, std::move(completion));
    }
    std::unique_ptr<Banner> makeBanner(const QString &unit, BannerSize size, BannerEvents events) override;
    std::unique_ptr<NativeAdLoader> makeNativeLoader(const QString &unit) override;

    /// The oldest load that waits ends with an ad, or with the error "no fill".
    std::shared_ptr<PlayedFullScreenAd> deliver() {
        auto ad = std::make_shared<PlayedFullScreenAd>();
        take()(std::shared_ptr<FullScreenAd>(ad));
        return ad;
    }
    void refuse() { take()(Error{QStringLiteral("no fill")}); }

    /// What was asked for since the last call.
    QStringList asked() { return std::exchange(requests, {}); }

private:
    void ask(const QString &kind, const QString &unit, FullScreenLoaded completion) {
        requests.append(kind + unit);
        fullScreen.push_back(std::move(completion));
    }
    FullScreenLoaded take() {
        FullScreenLoaded completion = std::move(fullScreen.front());
        fullScreen.pop_front();
        return completion;
    }
};

class PlayedAds::PlayedBanner : public Banner {
public:
    PlayedBanner(PlayedAds &ads, QString unit, BannerSize size, BannerEvents told)
        : events(std::move(told)), ads_(ads), unit_(std::move(unit)), size_(size) {}
    ~PlayedBanner() override { ads_.banners.removeOne(this); }

    void load() override {
        const bool anchored = size_ == BannerSize::AnchoredAdaptive;
        ads_.requests.append((anchored ? QStringLiteral("banner ") : QStringLiteral("inline ")) + unit_);
        ads_.banners.append(this);
    }
    const AdAssets *assets() const override { return received_ ? &assets_ : nullptr; }
    void tap() override { events.clicked(); }

    void receive(const AdAssets &assets = {.headline = QStringLiteral("banner")}) {
        assets_ = assets;
        received_ = true;
        events.received();
    }
    void refuse() { events.failed(Error{QStringLiteral("no fill")}); }

    const BannerEvents events;

private:
    PlayedAds &ads_;
    const QString unit_;
    const BannerSize size_;
    AdAssets assets_;
    bool received_ = false;
};

class PlayedAds::PlayedNativeLoader : public NativeAdLoader {
public:
    PlayedNativeLoader(PlayedAds &ads, QString unit) : ads_(ads), unit_(std::move(unit)) {}
    ~PlayedNativeLoader() override { ads_.natives.removeOne(this); }

    QString description() const override { return QStringLiteral("<loader ") + unit_ + QLatin1Char('>'); }
    void load(std::function<void(Result<std::shared_ptr<NativeAdContent>>)> completion) override {
        ads_.requests.append(QStringLiteral("native ") + unit_);
        ads_.natives.append(this);
        completion_ = std::move(completion);
    }

    std::shared_ptr<PlayedNativeAd> receive(const AdAssets &assets) {
        auto ad = std::make_shared<PlayedNativeAd>(assets);
        completion_(std::shared_ptr<NativeAdContent>(ad));
        return ad;
    }
    std::shared_ptr<PlayedNativeAd> receive(const char *headline) {
        return receive(AdAssets{.headline = QLatin1String(headline)});
    }
    void refuse() { completion_(Error{QStringLiteral("no fill")}); }

private:
    PlayedAds &ads_;
    const QString unit_;
    std::function<void(Result<std::shared_ptr<NativeAdContent>>)> completion_;
};

inline std::unique_ptr<Banner> PlayedAds::makeBanner(const QString &unit, BannerSize size,
                                                     BannerEvents events) {
    return std::make_unique<PlayedBanner>(*this, unit, size, std::move(events));
}

inline std::unique_ptr<NativeAdLoader> PlayedAds::makeNativeLoader(const QString &unit) {
    return std::make_unique<PlayedNativeLoader>(*this, unit);
}

/// A consent service whose form the test fills in. `events` has what happened to it, in order.
class PlayedConsent : public ConsentService {
public:
    ConsentFormStatus form = ConsentFormStatus::Unavailable;
    ConsentStatus status = ConsentStatus::NotRequired;
    bool updateFails = false;
    bool loadFails = false;
    bool presentFails = false;
    bool holdUpdates = false; ///< updates wait for answerUpdates()
    QStringList events;

    void requestUpdate(const ConsentParameters &parameters,
                       std::function<void(std::optional<Error>)> completion) override {
        events.append(parameters.debugGeography ? QStringLiteral("update in debug geography %1")
                                                      .arg(static_cast<int>(*parameters.debugGeography))
                                                : QStringLiteral("update"));
        updates_.push_back(std::move(completion));
        if (!holdUpdates) answerUpdates();
    }
    ConsentFormStatus formStatus() const override { return form; }
    ConsentStatus consentStatus() const override { return status; }
    void reset() override { events.append(QStringLiteral("reset")); }
    void loadForm(std::function<void(Result<std::shared_ptr<ConsentForm>>)> completion) override {
        events.append(QStringLiteral("load"));
        if (loadFails) return completion(Error{QStringLiteral("no form")});
        completion(std::shared_ptr<ConsentForm>(std::make_shared<Form>(*this)));
    }

    void answerUpdates() {
        for (const auto &completion : std::exchange(updates_, {}))
            completion(updateFails ? std::optional(Error{QStringLiteral("no service")}) : std::nullopt);
    }

    bool isPresented() const { return dismissed_ != nullptr; }

    /// The user is through with the form; the status is `becomes` from now on.
    void dismiss(ConsentStatus becomes = ConsentStatus::Obtained) {
        status = becomes;
        std::exchange(dismissed_, nullptr)(std::nullopt);
    }

private:
    class Form : public ConsentForm {
    public:
        explicit Form(PlayedConsent &consent) : consent_(consent) {}
        void present(std::function<void(std::optional<Error>)> dismissed) override {
            consent_.events.append(QStringLiteral("present"));
            if (consent_.presentFails) return dismissed(Error{QStringLiteral("no room")});
            consent_.dismissed_ = std::move(dismissed);
        }

    private:
        PlayedConsent &consent_;
    };

    std::vector<std::function<void(std::optional<Error>)>> updates_;
    std::function<void(std::optional<Error>)> dismissed_;
};

class PlayedTracking : public TrackingAuthorization {
public:
    TrackingStatus answer = TrackingStatus::NotDetermined;
    int asked = 0;

    TrackingStatus status() const override { return answer; }

    /// Waits for `decide`.
    void request(std::function<void(TrackingStatus)> completion) override {
        ++asked;
        completion_ = std::move(completion);
    }
    void decide(TrackingStatus with) {
        answer = with;
        std::exchange(completion_, nullptr)(with);
    }

private:
    std::function<void(TrackingStatus)> completion_;
};

class PlayedPush : public PushService {
public:
    QList<bool> asked; ///< fallbackToSettings of each request

    /// Waits for `decide`.
    void requestPermission(bool fallbackToSettings, std::function<void(bool)> completion) override {
        asked.append(fallbackToSettings);
        completion_ = std::move(completion);
    }
    void decide(bool granted) { std::exchange(completion_, nullptr)(granted); }

private:
    std::function<void(bool)> completion_;
};

class PlayedDevice : public Device {
public:
    bool tablet = false;
    bool isTablet() const override { return tablet; }
};

/// Draws what the test says, in turn, and then 0.
class PlayedRandom : public RandomSource {
public:
    std::deque<int> draws;
    std::vector<int> bounds; ///< of each draw

    int below(int bound) override {
        bounds.push_back(bound);
        if (draws.empty()) return 0;
        const int draw = draws.front();
        draws.pop_front();
        return draw;
    }
};

} // namespace orl
