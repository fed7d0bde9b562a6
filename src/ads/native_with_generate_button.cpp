#include "ads/native_with_generate_button.h"

namespace orl {

NativeWithGenerateButton::NativeWithGenerateButton(Process &process, AppConfigViewModel &appVM,
                                                   QObject *parent)
    : QObject(parent), process_(process), appVM_(appVM) {}

void NativeWithGenerateButton::setShowNativeBeforeGenerate(bool show) {
    if (show == showNativeBeforeGenerate()) return;
    ticksLeft_ = ticksToWait;
    showGenerateBtn_ = false;
    card_.reset();
    timer_.reset();
    if (show) {
        card_ = std::make_unique<NativeAdCardView>(
            process_, appVM_,
            NativeModel{QStringLiteral("identity_after_button"), NativeAdType::IDENTITY_AFTER_BUTTON});
        timer_ = process_.platform().mainQueue.every(tick, [this] { countDown(); });
    }
    Q_EMIT secondsChanged();
    Q_EMIT showNativeBeforeGenerateChanged();
}

void NativeWithGenerateButton::countDown() {
    switch (card_->hasBegun() ? card_->nativeAdState() : NativeAdState::failed) {
    case NativeAdState::none: return;
    case NativeAdState::loaded: --ticksLeft_; break;
    case NativeAdState::failed: ticksLeft_ = 0; break;
    }
    if (ticksLeft_ == 0) {
        showGenerateBtn_ = true;
        timer_.reset();
    }
    Q_EMIT secondsChanged();
}

void NativeWithGenerateButton::tapGenerate() {
    if (!showGenerateBtn_) return;
    doGenerate_ = QUuid::createUuid();
    Q_EMIT doGenerateChanged();
}

} // namespace orl
