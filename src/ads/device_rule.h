#pragma once

#include "config/configuration.h"
#include "platform/platform.h"

namespace orl {

/// Whether this device may load and show ads at all: tablets only where the configuration has them on.
bool deviceRuleHolds(const Platform &platform, const AdmobConfig &config);

} // namespace orl
