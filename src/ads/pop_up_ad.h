#pragma once

#include "config/configuration.h"
#include "platform/ad_service.h"
#include "platform/process.h"

#include <QObject>

namespace orl {

/// The full-screen ads: interstitials, spaced by a count of user actions that survives restarts, and rewarded
/// videos, which refill the allowance of numbers. Main thread; shared by the Process.
///
/// Ask for the shared instance when an action is counted or a video wanted, not ahead of it: it keeps the
/// switches that are in force when it is made. Every operation stops silently where a tablet shows no ads.
class PopUpAd : public QObject {
    Q_OBJECT
public:
    explicit PopUpAd(Process &process);

    /// Loads one if it is switched on and none is held. A failure is a line on the console, and nothing is
    /// tried again until the next dismissal or start.
    void loadInterstitial();
    void loadRewarded();

    /// Counts one action of the user. Once as many as configured have been counted and an ad is held,
    /// presents it `seconds` later and counts anew; without a held ad the count goes on rising.
    void showInterstitial(int seconds);

    /// Presents the video; watched to its end it resets the allowance. Where none is held, the user is not
    /// held back for that: the count of chosen numbers goes down by one instead.
    void showRewarded();

    bool interstitialWillDismiss() const { return interstitial_.willDismiss; }
    bool rewardedAdWillDismiss() const { return rewarded_.willDismiss; }
    bool holdsInterstitial() const { return interstitial_.ad != nullptr; }
    bool holdsRewarded() const { return rewarded_.ad != nullptr; }

private:
    struct Slot {
        bool AdmobConfig::*const enabled;
        const QString unit;
        const QString failure;
        void (AdService::*const loader)(const QString &, AdService::FullScreenLoaded);
        bool willDismiss = false;
        std::shared_ptr<FullScreenAd> ad = nullptr;
    };

    bool mayUse(const Slot &slot) const;
    void load(Slot &slot);
    void hold(Slot &slot, std::shared_ptr<FullScreenAd> ad);
    void dismissed(Slot &slot);

    Process &process_;
    const AdmobConfig admobConfig_;
    Slot interstitial_;
    Slot rewarded_;
};

} // namespace orl
