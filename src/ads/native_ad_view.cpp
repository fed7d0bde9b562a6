#include "ads/native_ad_view.h"

#include "platform/console.h"

namespace orl {

const AdAssets &NativeAdView::assets() const {
    static const AdAssets none;
    return ad_ ? ad_->assets() : none;
}

void NativeAdView::fill(std::shared_ptr<NativeAdContent> ad) {
    ad_ = std::move(ad);
    Q_EMIT filled();
}

void NativeAdView::tap() {
    if (ad_) ad_->tap();
}

void NativeAdView::videoDidEnd() {
    if (hasVideoContent()) process_.platform().console.print(QStringLiteral("Video playback has ended."));
}

} // namespace orl
