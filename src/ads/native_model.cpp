#include "ads/native_model.h"

#include "ads/ad_units.h"

namespace orl {

QString rawValue(NativeAdType type) {
    switch (type) {
    case NativeAdType::INSIDE_MESSAGES: return QStringLiteral("INSIDE_MESSAGES");
    case NativeAdType::IN_HOME_SCREEN: return QStringLiteral("IN_HOME_SCREEN");
    case NativeAdType::IDENTITY_HOME: return QStringLiteral("IDENTITY_HOME");
    case NativeAdType::IDENTITY_AFTER_BUTTON: return QStringLiteral("IDENTITY_AFTER_BUTTON");
    case NativeAdType::INSIDE_CHAT: return QStringLiteral("INSIDE_CHAT");
    }
    return {};
}

QString layoutFile(NativeAdType type) {
    switch (type) {
    case NativeAdType::INSIDE_MESSAGES: return QStringLiteral("Messages_NativeAdView");
    case NativeAdType::IN_HOME_SCREEN: return QStringLiteral("Home_NativeAdView");
    case NativeAdType::IDENTITY_HOME: return QStringLiteral("FullWidth_NativeAdView");
    case NativeAdType::IDENTITY_AFTER_BUTTON: return QStringLiteral("FullWidth_NativeAdView");
    case NativeAdType::INSIDE_CHAT: return QStringLiteral("Chat_NativeAdView");
    }
    return {};
}

QString adUnit(NativeAdType type) {
    switch (type) {
    case NativeAdType::INSIDE_MESSAGES: return adUnits().messageList;
    case NativeAdType::IN_HOME_SCREEN: return adUnits().home;
    case NativeAdType::IDENTITY_HOME: return adUnits().identityHome;
    case NativeAdType::IDENTITY_AFTER_BUTTON: return adUnits().identityButton;
    case NativeAdType::INSIDE_CHAT: return adUnits().messageList;
    }
    return {};
}

QString starImage(std::optional<double> rating) {
    struct Step {
        double from;
        const char *image;
    };
    constexpr Step steps[] = {{5.0, "stars_5"}, {4.5, "stars_4_5"}, {4.0, "stars_4"}, {3.5, "stars_3_5"}};
    for (const Step &step : steps) {
        if (rating && *rating >= step.from) return QLatin1String(step.image);
    }
    return {};
}

} // namespace orl
