#include "screens/full_screen_ad_view.h"

namespace orl {

FullScreenAdView::FullScreenAdView(Process &process, AdStage &stage, QObject *parent)
    : QObject(parent), process_(process), stage_(stage) {
    connect(&stage_, &AdStage::changed, this, &FullScreenAdView::follow);
}

void FullScreenAdView::follow() {
    if (up_ != stage_.isUp()) {
        up_ = stage_.isUp();
        face_ = up_ ? AdFace(process_, stage_.assets()) : AdFace();
    }
    Q_EMIT changed();
}

QString FullScreenAdView::reward() const {
    if (!stage_.isRewarded()) return {};
    const int left = stage_.secondsLeft();
    return left > 0 ? QStringLiteral("Reward in %1 s").arg(left) : QStringLiteral("Reward earned");
}

} // namespace orl
