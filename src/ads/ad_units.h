#pragma once

#include <QString>

namespace orl {

/// The identifiers under which the ad service knows our places. Constants of the build
/// (ORL_AD_UNIT_INTERSTITIAL...); the defaults are those that the demo host serves.
struct AdUnits {
    QString interstitial;
    QString rewarded;
    QString appOpen;
    QString banner;
    QString chatInline;       ///< behind the last message of a conversation
    QString fullScreenInline; ///< in the place of the native card above the tabs
    QString messageList;
    QString home;
    QString identityHome;
    QString identityButton;
};

const AdUnits &adUnits();

} // namespace orl
