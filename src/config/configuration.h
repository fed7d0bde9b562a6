#pragma once

#include "platform/json.h"
#include "platform/result.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace orl {

/// Which kinds of advertising are switched on. The defaults hold until the remote document has arrived.
struct AdmobConfig {
    Q_GADGET
    Q_PROPERTY(bool ipadAdEnabled MEMBER ipadAdEnabled CONSTANT)
    Q_PROPERTY(bool bannerAdEnabled MEMBER bannerAdEnabled CONSTANT)
    Q_PROPERTY(bool openAdEnabled MEMBER openAdEnabled CONSTANT)
    Q_PROPERTY(bool rewardAdEnabled MEMBER rewardAdEnabled CONSTANT)
    Q_PROPERTY(bool nativeAdEnabled MEMBER nativeAdEnabled CONSTANT)
    Q_PROPERTY(bool interstitialAdEnabled MEMBER interstitialAdEnabled CONSTANT)
    Q_PROPERTY(qint64 showFullAdAfter MEMBER showFullAdAfter CONSTANT)
    Q_PROPERTY(bool useXmarkNative MEMBER useXmarkNative CONSTANT)
public:
    bool ipadAdEnabled = true; ///< when false, a tablet neither loads nor shows an ad
    bool bannerAdEnabled = true;
    bool openAdEnabled = true;
    bool rewardAdEnabled = true; ///< rewarded videos, and with them the limit on chosen numbers
    bool nativeAdEnabled = true; ///< native cards, and with them the ad rows among messages and senders
    bool interstitialAdEnabled = true;
    qint64 showFullAdAfter = 3; ///< count of actions between two full-screen ads
    bool useXmarkNative = false;

    static AdmobConfig decode(JsonDecoder &json);
    bool operator==(const AdmobConfig &) const = default;
};

struct BlackBannerConfig {
    Q_GADGET
    Q_PROPERTY(bool isActive MEMBER isActive CONSTANT)
    Q_PROPERTY(bool onNumberCard MEMBER onNumberCard CONSTANT)
    Q_PROPERTY(QList<bool> randomDisplay MEMBER randomDisplay CONSTANT)
public:
    bool isActive = false;
    bool onNumberCard = false; ///< it may stand on the number card of the home screen
    QList<bool> randomDisplay = {
        false}; ///< one is drawn for each display, true shows it; an empty list always does

    static BlackBannerConfig decode(JsonDecoder &json);
    bool operator==(const BlackBannerConfig &) const = default;
};

/// The document "orl_config.json".
struct AppConfiguration {
    Q_GADGET
    Q_PROPERTY(orl::AdmobConfig admob MEMBER admob CONSTANT)
    Q_PROPERTY(orl::BlackBannerConfig blackBanner MEMBER blackBanner CONSTANT)
public:
    std::optional<QString>
        pendingVersion; ///< a version that the store still reviews; it runs without advertising
    AdmobConfig admob;
    BlackBannerConfig blackBanner;

    /// One missing or mistyped required key rejects the whole document; unknown keys are passed over.
    static Result<AppConfiguration> decode(const QByteArray &document);
    bool operator==(const AppConfiguration &) const = default;
};

/// In force until the document arrives.
AppConfiguration defaultConfiguration();

/// In force while the running version is under review: everything off.
AppConfiguration disabledConfiguration();

} // namespace orl
