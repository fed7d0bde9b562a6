#include "ads/native_ad_card_view.h"

#include "ads/ad_gate.h"

namespace orl {

NativeAdCardView::NativeAdCardView(Process &process, AppConfigViewModel &appVM, NativeModel item,
                                   Qt::Alignment alignment, QObject *parent)
    : QObject(parent), process_(process), item_(std::move(item)), alignment_(alignment) {
    onceAdsMayLoad(appVM, this, [this, &appVM] {
        if (!appVM.configuration()->admob.nativeAdEnabled) return;
        native_.emplace(process_, item_).viewDidLoad();
        timer_ = process_.platform().mainQueue.every(tick, [this] { copyShared(); });
    });
}

// A failure is copied too, and looked past: a later success of the type replaces it.
void NativeAdCardView::copyShared() {
    const NativeAd &shared = process_.shared<NativeAd>();
    const NativeAdState state = shared.state(item_.adType);
    if (state == nativeAdState_) return;
    nativeAdView_ = shared.view(item_.adType);
    nativeAdState_ = state;
    if (isLoaded()) timer_.reset();
    Q_EMIT nativeAdStateChanged();
}

} // namespace orl
