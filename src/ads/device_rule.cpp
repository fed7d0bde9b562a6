#include "ads/device_rule.h"

namespace orl {

bool deviceRuleHolds(const Platform &platform, const AdmobConfig &config) {
    return config.ipadAdEnabled || !platform.device.isTablet();
}

} // namespace orl
