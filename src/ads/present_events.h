#pragma once

#include "platform/ad_service.h"
#include "platform/console.h"

namespace orl {

/// Says on the console how the presenting of a full-screen ad goes; what follows its dismissal is left to
/// whom holds it.
inline FullScreenAdEvents presentEvents(Console &console) {
    return {
        .willPresent = [&console] { console.print(QStringLiteral("Ad did present full screen content.")); },
        .failedToPresent =
            [&console](const Error &error) {
                console.print(QStringLiteral("Ad failed to present full screen content with error ") +
                              error.description + QLatin1Char('.'));
            },
        .didDismiss = {}};
}

} // namespace orl
