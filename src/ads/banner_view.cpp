#include "ads/banner_view.h"

#include "ads/ad_gate.h"
#include "ads/ad_units.h"
#include "ads/device_rule.h"
#include "platform/console.h"

namespace orl {

BannerBase::BannerBase(Process &process, AppConfigViewModel &appVM, QString unit, BannerSize size,
                       QObject *parent)
    : QObject(parent), process_(process), appVM_(appVM), unit_(std::move(unit)), size_(size) {}

void BannerBase::takeConfiguration() {
    configure();
    if (!admobConfig_)
        connect(&appVM_, &AppConfigViewModel::configurationChanged, this, [this] { configure(); });
    onceAdsMayLoad(appVM_, this, [this] { load(); });
}

void BannerBase::configure() {
    if (admobConfig_ || !appVM_.configuration()) return;
    admobConfig_ = appVM_.configuration()->admob;
    if (!isShown()) return;
    begin();
    Q_EMIT isShownChanged();
}

bool BannerBase::isShown() const {
    return admobConfig_ && admobConfig_->bannerAdEnabled &&
           deviceRuleHolds(process_.platform(), *admobConfig_);
}

void BannerBase::load() {
    configure();
    if (!isShown()) return;
    banner_ = process_.platform().ads.makeBanner(unit_, size_,
                                                 {.received = [this] { receive(); },
                                                  .failed = [this](const Error &error) { fail(error); },
                                                  .clicked = [this] { click(); }});
    banner_->load();
}

void BannerBase::receive() {
    if (const AdAssets *assets = banner_->assets()) face_.emplace(process_, *assets);
    Q_EMIT faceChanged();
    received();
}

void BannerBase::fail(const Error &error) {
    process_.platform().console.print(QStringLiteral("Failed to load banner ad with error: ") +
                                      error.description);
    failed();
}

void BannerBase::click() {
    appVM_.setBannerTapped(!appVM_.bannerTapped());
}

void BannerBase::tap() {
    if (banner_) banner_->tap();
}

void BannerBase::setStatus(AdStatus status) {
    if (status_ == status) return;
    status_ = status;
    Q_EMIT statusChanged();
}

BannerView::BannerView(Process &process, AppConfigViewModel &appVM, bool anchored, bool spacer,
                       QObject *parent)
    : BannerBase(process, appVM, adUnits().banner, BannerSize::AnchoredAdaptive, parent),
      isAnchored(anchored),
      enableSpacer(spacer) {
    takeConfiguration();
}

void BannerView::begin() {
    timer_ =
        process_.platform().mainQueue.every(tick, [this] { setStatus(process_.shared<BannerAd>().status); });
}

void BannerView::received() {
    process_.shared<BannerAd>().status = AdStatus::loaded;
}

InlineBannerView::InlineBannerView(Process &process, AppConfigViewModel &appVM, const QString &unit,
                                   double height, Callback callback, QObject *parent)
    : BannerBase(process, appVM, unit, BannerSize::Inline, parent),
      height_(height),
      callback_(std::move(callback)) {
    takeConfiguration();
}

// A banner that shared its status with the others would leave a gap where its own ad failed.
void InlineBannerView::received() {
    process_.shared<InlineBannerAd>().status = AdStatus::loaded;
    setStatus(AdStatus::loaded);
    if (callback_) callback_(true);
}

void InlineBannerView::failed() {
    if (callback_) callback_(false);
}

} // namespace orl
