#include "screens/review.h"

#include "platform/defaults_store.h"

namespace orl {

void Review::requestReviewIfNeeded() {
    const Platform &platform = process_.platform();
    const QString key = QStringLiteral("OPENED_TIME");
    const qint64 count = platform.store.integer(key);
    platform.store.setValue(key, count + 1);
    if (!platform.scene.hasWindow() || count < openingsBefore) return;
    platform.storeReview.requestReview();
    platform.store.setValue(key, qint64(0));
}

} // namespace orl
