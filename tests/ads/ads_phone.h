#pragma once

#include "ads/ad_calls.h"
#include "ads/open_ad.h"
#include "ads/pop_up_ad.h"
#include "config/values_in_force.h"
#include "support/played_ads.h"
#include "support/played_notifications.h"
#include "support/played_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace orl {

/// Advertising on a played phone. The remote documents do not arrive unless a test lets them.
struct AdsTest : testing::Test {
    AdsTest() {
        phone.urls.answer(configurationUrl, Error{QStringLiteral("no network")});
        phone.urls.answer(recipeUrl, Error{QStringLiteral("no network")});
        restart();
    }

    ~AdsTest() override {
        phone.endProcess();
        appVM.reset();
    }

    /// A new run of the program on the same store.
    void restart() {
        phone.endProcess();
        appVM.reset();
        process = std::make_unique<Process>(
            phone.platform().with(haptics, ads, consent, tracking, push, device, random));
    }

    /// Puts switches in force as a document does that arrived before anything asked.
    void putInForce(const AdmobConfig &admob) {
        AppConfiguration configuration;
        configuration.admob = admob;
        process->shared<ValuesInForce>().currentConfiguration->set(configuration);
    }

    AppConfigViewModel &makeAppVM() {
        appVM = std::make_unique<AppConfigViewModel>(*process, adCalls(*process));
        phone.settle();
        return *appVM;
    }

    /// The document arrives with these switches.
    void arrive(const AdmobConfig &admob, const BlackBannerConfig &black = {}) {
        const auto flag = [](bool on) { return on ? QByteArray("true") : QByteArray("false"); };
        QByteArrayList display;
        for (const bool shown : black.randomDisplay)
            display.append(flag(shown));
        phone.urls.answer(
            configurationUrl,
            R"({"admob": {"ipad_ad_enabled": )" + flag(admob.ipadAdEnabled) + R"(, "banner_ad_enabled": )" +
                flag(admob.bannerAdEnabled) + R"(, "open_ad_enabled": )" + flag(admob.openAdEnabled) +
                R"(, "reward_ad_enabled": )" + flag(admob.rewardAdEnabled) + R"(, "native_ad_enabled": )" +
                flag(admob.nativeAdEnabled) + R"(, "interstitial_ad_enabled": )" +
                flag(admob.interstitialAdEnabled) + R"(, "show_full_ad_after": )" +
                QByteArray::number(admob.showFullAdAfter) + R"(, "use_xmark_native": )" +
                flag(admob.useXmarkNative) + R"(}, "black_banner": {"is_active": )" + flag(black.isActive) +
                R"(, "on_number_card": )" + flag(black.onNumberCard) + R"(, "random_display": [)" +
                display.join(',') + "]}}");
        appVM->fetchConfiguration();
        phone.settle();
    }

    /// Consent is over and the document there; the full-screen ads that this asks for are forgotten.
    void letAdsLoad(const AdmobConfig &admob = {}, const BlackBannerConfig &black = {}) {
        makeAppVM();
        arrive(admob, black);
        appVM->loadAds();
        ads.asked();
    }

    QStringList takeLines() { return std::exchange(phone.console.lines, {}); }

    const QString configurationUrl = QStringLiteral("https://configuration.example/KeLo/iOS/orl_config.json");
    const QString recipeUrl =
        QStringLiteral("https://configuration.example/KeLo/OnlineSMS/scraping_config.json");
    PlayedPlatform phone;
    PlayedHaptics haptics;
    PlayedAds ads;
    PlayedConsent consent;
    PlayedTracking tracking;
    PlayedPush push;
    PlayedDevice device;
    PlayedRandom random;
    std::unique_ptr<Process> process;
    std::unique_ptr<AppConfigViewModel> appVM;
};

} // namespace orl
