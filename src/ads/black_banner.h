#pragma once

#include "ads/banner_view.h"

namespace orl {

/// The banner that chance puts on the number card and the mail card. Make one for each build of the card.
class BlackBanner : public QObject {
    Q_OBJECT
    Q_PROPERTY(orl::BannerView *banner READ banner NOTIFY bannerChanged)
public:
    BlackBanner(Process &process, AppConfigViewModel &appVM, QObject *parent = nullptr);

    BannerView *banner() const { return banner_.get(); } ///< null: none on this card

Q_SIGNALS:
    void bannerChanged();

private:
    void draw();

    Process &process_;
    AppConfigViewModel &appVM_;
    bool drawn_ = false;
    std::unique_ptr<BannerView> banner_;
};

/// Whether this display shows it: it is on, and one element of its list, drawn at random, says yes. An empty
/// list always does.
bool drawsBlackBanner(const BlackBannerConfig &config, RandomSource &random);

} // namespace orl
