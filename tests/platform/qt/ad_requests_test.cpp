// Listens on the wire: which ad requests leave the program, when, and where to.

#include "ads/ad_calls.h"
#include "ads/banner_view.h"
#include "ads/native_ad_card_view.h"
#include "ads/native_ad_view_xmark.h"
#include "ads/open_ad.h"
#include "ads/pop_up_ad.h"
#include "ads/ump_consent.h"
#include "loopback_server.h"
#include "platform/qt/house_ads.h"
#include "platform/qt/network_url_reader.h"
#include "platform/qt/stored_consent.h"
#include "support/played_platform.h"

#include <gtest/gtest.h>

namespace orl {

using namespace std::chrono_literals;

namespace {

/// A virtual clock, but real sockets: one host for the configuration, one for ads, and one that nobody has
/// any business with.
struct AdRequestsTest : testing::Test {
    AdRequestsTest() {
        configuration.page(QStringLiteral("/KeLo/iOS/orl_config.json"),
                           R"({"admob": {"ipad_ad_enabled": true, "banner_ad_enabled": true,
                               "open_ad_enabled": true, "reward_ad_enabled": true, "native_ad_enabled": true,
                               "interstitial_ad_enabled": true, "show_full_ad_after": 1,
                               "use_xmark_native": true},
                               "black_banner": {"is_active": false, "on_number_card": false,
                               "random_display": []}})");
        for (const char *unit : {"interstitial", "rewarded", "app-open", "banner", "home", "message-list"}) {
            adHost.page(QStringLiteral("/units/%1/0.json").arg(QLatin1String(unit)),
                        R"({"headline": "Tea", "link": "/landing/tea"})");
        }
        houseAds.stage().setReady(true);
        consent.question().setReady(true);
        tracking.question().setReady(true);
    }

    ~AdRequestsTest() override { phone.endProcess(); }

    Platform base() {
        Platform played = phone.platform().with(network);
        played.endpoints = {};
        played.endpoints.configurationHost = configuration.url({}).toString();
        played.endpoints.adHost = adHost.url({}).toString();
        return played;
    }

    Platform whole() { return base().with(houseAds, consent, tracking); }

    std::size_t asked() { return adHost.requests(0).size(); }

    PlayedPlatform phone;
    LoopbackServer configuration;
    LoopbackServer adHost;
    LoopbackServer elsewhere;
    NetworkUrlReader network;
    HouseAds houseAds{base()};
    StoredConsent consent{phone.mainQueue, phone.store, QStringLiteral("DE")};
    StoredTracking tracking{phone.store};
};

} // namespace

TEST_F(AdRequestsTest, NoneLeavesBeforeConsentAndAllGoToTheAdEndpoint) {
    Process process(whole());
    AppConfigViewModel appVM(process, adCalls(process));
    const BannerView banner(process, appVM);
    const NativeAdCardView card(process, appVM,
                                {QStringLiteral("inside_messages"), NativeAdType::INSIDE_MESSAGES});
    const NativeAdView_XMARK xmark(process, appVM, {QStringLiteral("home"), NativeAdType::IN_HOME_SCREEN});
    process.shared<OpenAd>().showAdIfAvailable();
    process.shared<PopUpAd>().showInterstitial(0);
    phone.advance(10s);
    ASSERT_TRUE(appVM.configuration());

    // The first launch: the explanation, the tracking question, then the form.
    auto &ump = process.shared<UMPConsent>();
    ump.updateConsent(false, false, [&] { appVM.loadAds(); });
    phone.advance(10s);
    tracking.request([&](TrackingStatus) { ump.presentFormIfAvailable([&] { appVM.loadAds(); }); });
    tracking.question().answer(true);
    phone.advance(1min);
    ASSERT_TRUE(consent.question().isAsked());
    EXPECT_EQ(asked(), 0) << "the user has not answered yet";

    consent.question().answer(true);
    phone.advance(10s);
    EXPECT_EQ(asked(), 6) << "one for each placement";
    for (const QByteArray &request : adHost.requests(6)) {
        EXPECT_TRUE(request.startsWith("GET /units/")) << request.toStdString();
        EXPECT_FALSE(request.toLower().contains("cookie")) << request.toStdString();
    }
    EXPECT_TRUE(card.isLoaded() && banner.isLoaded());
    EXPECT_EQ(configuration.requests(0).size(), 2) << "its two documents, and no more";
    EXPECT_TRUE(phone.urls.requests.empty());
}

TEST_F(AdRequestsTest, AnAdEndpointCannotSendTheProgramElsewhere) {
    const QByteArray target = elsewhere.url(QStringLiteral("/tracker")).toEncoded();
    elsewhere.page(QStringLiteral("/tracker"), R"({"headline": "Tea", "link": "/tea"})");
    adHost.answer(QStringLiteral("/units/banner/0.json"),
                  "HTTP/1.1 302 Found\r\nLocation: " + target + "\r\nContent-Length: 0\r\n\r\n");
    adHost.page(QStringLiteral("/units/home/0.json"),
                R"({"headline": "Tea", "link": ")" + target + R"(", "picture": ")" + target + "\"}");
    const HouseAdReader reader(network, adHost.url({}).toString());
    EXPECT_FALSE(reader.read(QStringLiteral("banner"), 0).ok());
    EXPECT_FALSE(reader.read(QStringLiteral("home"), 0).ok());
    EXPECT_TRUE(elsewhere.requests(0).empty());
}

} // namespace orl
