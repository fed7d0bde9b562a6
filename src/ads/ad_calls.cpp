#include "ads/ad_calls.h"

#include "ads/open_ad.h"
#include "ads/pop_up_ad.h"

namespace orl {

AdCalls adCalls(Process &process) {
    return {.isTablet = [&process] { return process.platform().device.isTablet(); },
            .loadInterstitial = [&process] { process.shared<PopUpAd>().loadInterstitial(); },
            .loadRewarded = [&process] { process.shared<PopUpAd>().loadRewarded(); },
            .loadOpenAd = [&process] { process.shared<OpenAd>().loadAd(); }};
}

} // namespace orl
