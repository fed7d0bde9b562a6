#include "ads/native_ad_view_xmark.h"

#include "ads/ad_gate.h"
#include "ads/ad_units.h"
#include "platform/haptics.h"

#include <QPointer>

#include <algorithm>

namespace orl {

namespace {

constexpr double sideMargins = 40;
constexpr double mostWidth = 600;

} // namespace

NativeAdView_XMARK::NativeAdView_XMARK(Process &process, AppConfigViewModel &appVM, NativeModel item,
                                       QObject *parent)
    : QObject(parent), process_(process), appVM_(appVM), item_(std::move(item)) {
    onceAdsMayLoad(appVM_, this, [this] { begin(); });
}

NativeAdView_XMARK::~NativeAdView_XMARK() = default;

double NativeAdView_XMARK::cardWidth(double screenWidth) {
    return std::min(screenWidth - sideMargins, mostWidth);
}

void NativeAdView_XMARK::begin() {
    if (!appVM_.configuration()->admob.useXmarkNative) {
        banner_ = std::make_unique<InlineBannerView>(process_, appVM_, adUnits().fullScreenInline,
                                                     bannerHeight, [this](bool arrived) {
                                                         if (arrived) presentLater();
                                                     });
        Q_EMIT changed();
        return;
    }
    native_ = std::make_unique<NativeAdController>(process_, item_);
    native_->viewDidLoad();
    timer_ = process_.platform().mainQueue.every(tick, [this] { look(); });
}

void NativeAdView_XMARK::look() {
    const NativeAd &shared = process_.shared<NativeAd>();
    if (!shared.view(item_.adType) || shared.state(item_.adType) != NativeAdState::loaded) return;
    timer_.reset();
    presentLater();
}

void NativeAdView_XMARK::presentLater() {
    if (isSet_) return;
    isSet_ = true;
    process_.platform().mainQueue.postAfter(displayDelay, [self = QPointer(this)] {
        if (self) self->display();
    });
}

void NativeAdView_XMARK::display() {
    const NativeAd &shared = process_.shared<NativeAd>();
    nativeAdView_ = banner_ ? nullptr : shared.view(item_.adType);
    nativeAdState_ = banner_ ? NativeAdState::loaded : shared.state(item_.adType);
    hideNativeAd_ = false;
    displayNativeAd_ = true;
    Q_EMIT changed();
    process_.platform().mainQueue.postAfter(xMarkDelay, [self = QPointer(this)] {
        if (!self) return;
        self->showXMark_ = true;
        Q_EMIT self->changed();
    });
}

void NativeAdView_XMARK::close() {
    if (!showXMark_ || hideNativeAd_) return;
    process_.platform().haptics.impact(Impact::Soft);
    hideNativeAd_ = true;
    Q_EMIT changed();
}

} // namespace orl
