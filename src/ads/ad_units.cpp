#include "ads/ad_units.h"

namespace orl {

const AdUnits &adUnits() {
    static const AdUnits units{.interstitial = QStringLiteral(ORL_AD_UNIT_INTERSTITIAL),
                               .rewarded = QStringLiteral(ORL_AD_UNIT_REWARDED),
                               .appOpen = QStringLiteral(ORL_AD_UNIT_APP_OPEN),
                               .banner = QStringLiteral(ORL_AD_UNIT_BANNER),
                               .chatInline = QStringLiteral(ORL_AD_UNIT_CHAT_INLINE),
                               .fullScreenInline = QStringLiteral(ORL_AD_UNIT_FULL_SCREEN_INLINE),
                               .messageList = QStringLiteral(ORL_AD_UNIT_MESSAGE_LIST),
                               .home = QStringLiteral(ORL_AD_UNIT_HOME),
                               .identityHome = QStringLiteral(ORL_AD_UNIT_IDENTITY_HOME),
                               .identityButton = QStringLiteral(ORL_AD_UNIT_IDENTITY_BUTTON)};
    return units;
}

} // namespace orl
