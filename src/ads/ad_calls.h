#pragma once

#include "config/app_config_view_model.h"

namespace orl {

/// What an AppConfigViewModel of this process calls once ads may be loaded: one interstitial, one rewarded
/// ad, then the ad at application opening.
AdCalls adCalls(Process &process);

} // namespace orl
