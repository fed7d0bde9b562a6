#pragma once

#include "platform/ad_service.h"

namespace orl {

/// An ad that nobody placed, for looking at layouts: it has everything that an ad can have.
inline AdAssets richAd(const QByteArray &icon, const AdMedia &media) {
    return {.headline = QStringLiteral("Your city by bicycle"),
            .body = QStringLiteral("Unlock one at any corner. The first half hour is on us."),
            .callToAction = QStringLiteral("Ride"),
            .advertiser = QStringLiteral("Harbour Bikes"),
            .store = QStringLiteral("Phone store"),
            .price = QStringLiteral("Free"),
            .starRating = 4.5,
            .icon = icon,
            .media = media};
}

/// One that has hardly anything.
inline AdAssets poorAd(const QByteArray &icon = {}) {
    return {.headline = QStringLiteral("Tomatoes on the ninth floor"), .icon = icon};
}

} // namespace orl
