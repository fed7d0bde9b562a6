#include "screens/ad_places.h"

#include "ads/ad_units.h"
#include "config/app_config_view_model.h"

namespace orl {

namespace {

NativeAdType typeOf(const QString &id) {
    if (id == QLatin1String("fake_generator")) return NativeAdType::IDENTITY_HOME;
    if (id == QLatin1String("identity_after_button")) return NativeAdType::IDENTITY_AFTER_BUTTON;
    if (id.startsWith(QLatin1String("inside_chat_"))) return NativeAdType::INSIDE_CHAT;
    return NativeAdType::INSIDE_MESSAGES;
}

} // namespace

AdPlaces::AdPlaces(Process &process, AppConfigViewModel &appVM, QObject *parent)
    : QObject(parent), process_(process), appVM_(appVM) {
    connect(&appVM_, &AppConfigViewModel::configurationChanged, this, &AdPlaces::followConfiguration);
    followConfiguration();
}

void AdPlaces::followConfiguration() {
    const bool enabled = appVM_.configuration() && appVM_.configuration()->admob.nativeAdEnabled;
    if (enabled == nativeAdEnabled_) return;
    nativeAdEnabled_ = enabled;
    Q_EMIT nativeAdEnabledChanged();
}

BannerView *AdPlaces::anchoredBanner(QObject *place) {
    return new BannerView(process_, appVM_, true, false, place);
}

BlackBanner *AdPlaces::blackBanner(QObject *place) {
    return new BlackBanner(process_, appVM_, place);
}

InlineBannerView *AdPlaces::chatBanner(QObject *place) {
    return new InlineBannerView(process_, appVM_, adUnits().chatInline, chatBannerHeight, {}, place);
}

NativeAdCardView *AdPlaces::nativeCard(QObject *place, const QString &id) {
    return new NativeAdCardView(process_, appVM_, {id, typeOf(id)}, Qt::AlignCenter, place);
}

NativeAdView_XMARK *AdPlaces::homeCard(QObject *place) {
    return new NativeAdView_XMARK(process_, appVM_, {QStringLiteral("home"), NativeAdType::IN_HOME_SCREEN},
                                  place);
}

std::unique_ptr<NativeWithGenerateButton> AdPlaces::nativeWithGenerateButton() const {
    return std::make_unique<NativeWithGenerateButton>(process_, appVM_);
}

} // namespace orl
