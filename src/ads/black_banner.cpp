#include "ads/black_banner.h"

#include "platform/random_source.h"

namespace orl {

bool drawsBlackBanner(const BlackBannerConfig &config, RandomSource &random) {
    if (!config.isActive || !config.onNumberCard) return false;
    const QList<bool> &display = config.randomDisplay;
    return display.isEmpty() || display.at(random.below(static_cast<int>(display.size())));
}

BlackBanner::BlackBanner(Process &process, AppConfigViewModel &appVM, QObject *parent)
    : QObject(parent), process_(process), appVM_(appVM) {
    connect(&appVM_, &AppConfigViewModel::configurationChanged, this, &BlackBanner::draw);
    draw();
}

/// A card that was built ahead of the configuration draws when it arrives.
void BlackBanner::draw() {
    if (drawn_ || !appVM_.configuration()) return;
    drawn_ = true;
    if (!drawsBlackBanner(appVM_.configuration()->blackBanner, process_.platform().random)) return;
    banner_ = std::make_unique<BannerView>(process_, appVM_, false, true);
    Q_EMIT bannerChanged();
}

} // namespace orl
