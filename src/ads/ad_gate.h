#pragma once

#include "config/app_config_view_model.h"

namespace orl {

/// Whether consent has been dealt with and the configuration is there. No ad of any kind is asked for before.
bool adsMayLoad(const AppConfigViewModel &appVM);

/// Runs the task once ads may load: at once where they may already, else when they first may. Not at all when
/// `context` goes before that.
void onceAdsMayLoad(AppConfigViewModel &appVM, QObject *context, std::function<void()> task);

} // namespace orl
