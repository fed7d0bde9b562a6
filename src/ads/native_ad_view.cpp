#include "ads/native_ad_view.h"

#include "platform/console.h"

namespace orl {

void NativeAdView::fill(std::shared_ptr<NativeAdContent> ad) {
    ad_ = std::move(ad);
    face_ = AdFace(process_, ad_->assets());
    Q_EMIT filled();
}

void NativeAdView::tap() {
    if (ad_) ad_->tap();
}

void NativeAdView::videoDidEnd() {
    if (face_.hasVideoContent())
        process_.platform().console.print(QStringLiteral("Video playback has ended."));
}

} // namespace orl
