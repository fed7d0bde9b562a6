#include "config/configuration.h"

namespace orl {

AdmobConfig AdmobConfig::decode(JsonDecoder &json) {
    return {
        .ipadAdEnabled = json.boolean("ipad_ad_enabled"),
        .bannerAdEnabled = json.boolean("banner_ad_enabled"),
        .openAdEnabled = json.boolean("open_ad_enabled"),
        .rewardAdEnabled = json.boolean("reward_ad_enabled"),
        .nativeAdEnabled = json.boolean("native_ad_enabled"),
        .interstitialAdEnabled = json.boolean("interstitial_ad_enabled"),
        .showFullAdAfter = json.integer("show_full_ad_after"),
        .useXmarkNative = json.boolean("use_xmark_native"),
    };
}

BlackBannerConfig BlackBannerConfig::decode(JsonDecoder &json) {
    return {
        .isActive = json.boolean("is_active"),
        .onNumberCard = json.boolean("on_number_card"),
        .randomDisplay = json.booleanList("random_display"),
    };
}

Result<AppConfiguration> AppConfiguration::decode(const QByteArray &document) {
    return decodeJson(document, [](JsonDecoder &json) {
        return AppConfiguration{
            .pendingVersion = json.optionalText("pending_version"),
            .admob = json.object("admob", AdmobConfig::decode),
            .blackBanner = json.object("black_banner", BlackBannerConfig::decode),
        };
    });
}

AppConfiguration defaultConfiguration() {
    return {};
}

AppConfiguration disabledConfiguration() {
    AppConfiguration disabled;
    disabled.admob = {
        .ipadAdEnabled = false,
        .bannerAdEnabled = false,
        .openAdEnabled = false,
        .rewardAdEnabled = false,
        .nativeAdEnabled = false,
        .interstitialAdEnabled = false,
        .showFullAdAfter = 2,
        .useXmarkNative = false,
    };
    return disabled;
}

} // namespace orl
