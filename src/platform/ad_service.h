#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace orl {

/// The picture of an ad, or its video: the frames side by side in one picture, from left to right.
struct AdMedia {
    QByteArray picture = {}; ///< an encoded image; empty without media
    int frames = 1;          ///< more than one: a video
    std::chrono::milliseconds frameTime{0};

    bool hasVideoContent() const { return frames > 1; }
    bool operator==(const AdMedia &) const = default;
};

/// What an ad is made of. Texts and pictures that an ad does not have are empty.
struct AdAssets {
    QString headline = {};
    QString body = {};
    QString callToAction = {};
    QString advertiser = {};
    QString store = {};
    QString price = {};
    std::optional<double> starRating = {}; ///< of 5
    QByteArray icon = {};                  ///< an encoded image
    AdMedia media = {};

    bool operator==(const AdAssets &) const = default;
};

/// What happens to an ad that covers the whole screen. Any of them may be empty. Main thread.
struct FullScreenAdEvents {
    std::function<void()> willPresent;
    std::function<void(const Error &)> failedToPresent; ///< the ad is as good as before
    std::function<void()> didDismiss;
};

/// A loaded ad that covers the whole screen.
class FullScreenAd {
public:
    virtual ~FullScreenAd() = default;

    virtual void setEvents(FullScreenAdEvents events) = 0;

    /// Shows the ad over whatever is on top. `rewardEarned` runs when the user has watched it to its end;
    /// kinds without a reward never run it.
    virtual void present(std::function<void()> rewardEarned) = 0;
};

/// What happens to a banner. Any of them may be empty. Main thread.
struct BannerEvents {
    std::function<void()> received;
    std::function<void(const Error &)> failed;
    std::function<void()> clicked;
};

/// A strip of advertising within a screen. Going away it takes its load back: no event comes any more.
class Banner {
public:
    virtual ~Banner() = default;

    virtual void load() = 0;

    /// What is to be drawn; null until an ad was received.
    virtual const AdAssets *assets() const = 0;

    /// The user tapped it: opens the ad's link.
    virtual void tap() = 0;
};

enum class BannerSize {
    AnchoredAdaptive, ///< as wide as the screen, as high as that width suggests
    Inline,           ///< what its place leaves to it
};

/// A loaded ad that the application lays out itself.
class NativeAdContent {
public:
    virtual ~NativeAdContent() = default;

    virtual const AdAssets &assets() const = 0;

    /// The user tapped it: opens the ad's link.
    virtual void tap() = 0;
};

/// One load of a native ad. Going away it takes the load back.
class NativeAdLoader {
public:
    virtual ~NativeAdLoader() = default;

    virtual QString description() const = 0; ///< for the console
    virtual void load(std::function<void(Result<std::shared_ptr<NativeAdContent>>)> completion) = 0;
};

/// Loads and shows advertising. Units say which place an ad is for. Main thread; completions run there too,
/// at once or later.
class AdService {
public:
    using FullScreenLoaded = std::function<void(Result<std::shared_ptr<FullScreenAd>>)>;

    /// Stands for the simulator in a list of test devices.
    static constexpr char simulatorDevice[] = "SIMULATOR";

    virtual ~AdService() = default;

    /// Starts the service; started already it goes on.
    virtual void start() = 0;
    virtual void setTestDevices(const QStringList &devices) = 0;

    /// Whether there is a screen that an ad could be presented over.
    virtual bool hasTopScreen() const = 0;

    virtual void loadRewardedInterstitial(const QString &unit, FullScreenLoaded completion) = 0;
    virtual void loadRewarded(const QString &unit, FullScreenLoaded completion) = 0;
    virtual void loadAppOpen(const QString &unit, FullScreenLoaded completion) = 0; ///< upright
    [[nodiscard]] virtual std::unique_ptr<Banner> makeBanner(const QString &unit, BannerSize size,
                                                             BannerEvents events) = 0;
    [[nodiscard]] virtual std::unique_ptr<NativeAdLoader> makeNativeLoader(const QString &unit) = 0;
};

/// Stands where there is no advertising: no ad ever loads, and nobody is told that none did.
class NoAdService final : public AdService {
public:
    void start() override {}
    void setTestDevices(const QStringList &) override {}
    bool hasTopScreen() const override { return false; }
    void loadRewardedInterstitial(const QString &, FullScreenLoaded) override {}
    void loadRewarded(const QString &, FullScreenLoaded) override {}
    void loadAppOpen(const QString &, FullScreenLoaded) override {}
    std::unique_ptr<Banner> makeBanner(const QString &, BannerSize, BannerEvents) override {
        return std::make_unique<NoBanner>();
    }
    std::unique_ptr<NativeAdLoader> makeNativeLoader(const QString &) override {
        return std::make_unique<NoNativeLoader>();
    }

    static AdService &instance() {
        static NoAdService none;
        return none;
    }

private:
    class NoBanner final : public Banner {
    public:
        void load() override {}
        const AdAssets *assets() const override { return nullptr; }
        void tap() override {}
    };

    class NoNativeLoader final : public NativeAdLoader {
    public:
        QString description() const override { return QStringLiteral("no ad loader"); }
        void load(std::function<void(Result<std::shared_ptr<NativeAdContent>>)>) override {}
    };
};

} // namespace orl
