#pragma once

#include "config/configuration.h"
#include "config/scraping_config.h"
#include "platform/snapshot.h"

#include <memory>

namespace orl {

class Process;

/// The process-wide configuration and recipe, for code that does not know the AppConfigViewModel. Any thread
/// reads them, only the main thread replaces them. A reader asks anew for each field, so that pages parsed
/// while a recipe arrives may see a mix of both. Workers keep the pointer they read through, so that it
/// outlives the Process.
class ValuesInForce {
public:
    explicit ValuesInForce(Process &) {}

    const std::shared_ptr<Snapshot<AppConfiguration>> currentConfiguration =
        std::make_shared<Snapshot<AppConfiguration>>(defaultConfiguration());
    const std::shared_ptr<Snapshot<ScrapingConfig>> currentScrapingConfig =
        std::make_shared<Snapshot<ScrapingConfig>>();
};

} // namespace orl
