#include "config/app_config_view_model.h"
#include "config/values_in_force.h"
#include "support/played_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orl {

namespace {

const QString configurationUrl = QStringLiteral("https://configuration.example/KeLo/iOS/orl_config.json");
const QString recipeUrl = QStringLiteral("https://configuration.example/KeLo/OnlineSMS/scraping_config.json");

QByteArray configurationDocument(const QByteArray &more = {}, bool ipadAds = true) {
    return "{" + more + R"("admob": {"ipad_ad_enabled": )" + (ipadAds ? "true" : "false") +
           R"(, "banner_ad_enabled": false, "open_ad_enabled": true,
        "reward_ad_enabled": true, "native_ad_enabled": true, "interstitial_ad_enabled": true,
        "show_full_ad_after": 9, "use_xmark_native": true},
        "black_banner": {"is_active": true, "on_number_card": false, "random_display": []}})";
}

QByteArray recipeWithSenderTag(const QString &tag) {
    ScrapingConfig recipe;
    recipe.messageSender = {QStringLiteral("tag"), tag};
    return recipe.encoded();
}

struct AppConfigTest : testing::Test {
    AppConfigTest() {
        phone.urls.answer(configurationUrl, Error{QStringLiteral("no network")});
        phone.urls.answer(recipeUrl, Error{QStringLiteral("no network")});
    }

    AppConfigViewModel &make() {
        calls.isTablet = [this] { return tablet; };
        calls.loadInterstitial = [this] { loaded.append(QStringLiteral("interstitial")); };
        calls.loadRewarded = [this] { loaded.append(QStringLiteral("rewarded")); };
        calls.loadOpenAd = [this] { loaded.append(QStringLiteral("open")); };
        made = std::make_unique<AppConfigViewModel>(process, calls);
        return *made;
    }

    AppConfiguration inForce() { return *process.shared<ValuesInForce>().currentConfiguration->get(); }
    ScrapingConfig recipeInForce() { return *process.shared<ValuesInForce>().currentScrapingConfig->get(); }

    const QStringList allAds{QStringLiteral("interstitial"), QStringLiteral("rewarded"),
                             QStringLiteral("open")};
    PlayedPlatform phone;
    Process process{phone.platform()};
    AdCalls calls;
    bool tablet = false;
    QStringList loaded;
    std::unique_ptr<AppConfigViewModel> made;
};

} // namespace

TEST_F(AppConfigTest, AsksForBothDocumentsPastAllCachesFromAWorker) {
    make();
    EXPECT_TRUE(phone.urls.requests.empty()) << "creation must return at once";
    phone.settle();
    ASSERT_EQ(phone.urls.urls(), (QStringList{configurationUrl, recipeUrl}));
    for (const PlayedRequest &request : phone.urls.requests) {
        EXPECT_TRUE(request.ignoreCache);
        EXPECT_TRUE(request.byWorker);
    }
    EXPECT_EQ(phone.urls.requests[1].timeout, std::chrono::seconds(60));
}

TEST_F(AppConfigTest, VersionUnderReviewRunsWithoutAds) {
    struct Case {
        const char *name;
        const char *pending;
        const char *running;
        bool disabled;
    };
    const Case cases[] = {
        {"the running version", R"("pending_version": "2.1",)", "2.1", true},
        {"another version", R"("pending_version": "2.2",)", "2.1", false},
        {"no version pending", "", "2.1", false},
        {"no running version counts as 1.0", R"("pending_version": "1.0",)", nullptr, true},
        {"no running version, another pending", R"("pending_version": "",)", nullptr, false},
    };
    for (const Case &row : cases) {
        phone.bundle.infoValues.clear();
        if (row.running) {
            phone.bundle.infoValues[QStringLiteral("CFBundleShortVersionString")] =
                QLatin1String(row.running);
        }
        phone.urls.answer(configurationUrl, configurationDocument(row.pending));
        AppConfigViewModel &config = make();
        phone.settle();
        ASSERT_TRUE(config.configuration()) << row.name;
        EXPECT_EQ(*config.configuration() == disabledConfiguration(), row.disabled) << row.name;
        EXPECT_EQ(config.configuration()->admob.showFullAdAfter, row.disabled ? 2 : 9) << row.name;
        EXPECT_EQ(inForce(), *config.configuration()) << row.name;
    }
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(AppConfigTest, ADocumentThatCannotBeUsedLeavesTheBuiltInValues) {
    struct Case {
        const char *name;
        PlayedUrls::Answer answer;
        bool logs;
    };
    const Case cases[] = {
        {"no network", Error{QStringLiteral("no route")}, false},
        {"empty body", "", true},
        {"error page", UrlResponse{404, "<html>Not found</html>"}, true},
        {"list instead of an object", "[]", true},
        {"keys missing", "{}", true},
    };
    for (const Case &row : cases) {
        phone.console.lines.clear();
        phone.urls.answer(configurationUrl, row.answer);
        phone.urls.answer(recipeUrl, row.answer);
        AppConfigViewModel &config = make();
        config.loadAds();
        phone.settle();
        EXPECT_FALSE(config.configuration()) << row.name;
        EXPECT_FALSE(config.scrapingConfig()) << row.name;
        EXPECT_EQ(inForce(), defaultConfiguration()) << row.name;
        EXPECT_EQ(recipeInForce(), ScrapingConfig()) << row.name;
        EXPECT_TRUE(loaded.isEmpty()) << row.name;
        ASSERT_EQ(phone.console.lines.size(), row.logs ? 2 : 0) << row.name;
        if (!row.logs) continue;
        EXPECT_TRUE(phone.console.lines[0].startsWith(QLatin1String("Failed to fetch zenith banner: ")))
            << row.name;
        EXPECT_TRUE(phone.console.lines[1].startsWith(QLatin1String("Failed to fetch scraping config: ")))
            << row.name;
    }
}

TEST_F(AppConfigTest, ReadsADocumentWhateverItsStatus) {
    phone.urls.answer(configurationUrl, UrlResponse{500, configurationDocument()});
    EXPECT_FALSE(make().configuration());
    phone.settle();
    EXPECT_TRUE(made->configuration());
}

TEST_F(AppConfigTest, TheRecipeIsPublishedAndThenPutInForce) {
    phone.urls.answer(recipeUrl, recipeWithSenderTag(QStringLiteral("b")));
    AppConfigViewModel &config = make();
    QStringList inForceWhenPublished;
    QObject::connect(&config, &AppConfigViewModel::scrapingConfigChanged,
                     [&] { inForceWhenPublished.append(recipeInForce().messageSender.id); });
    phone.settle();
    EXPECT_EQ(inForceWhenPublished, QStringList{QStringLiteral("mb-1")});
    EXPECT_EQ(recipeInForce().messageSender.id, QStringLiteral("b"));
    EXPECT_EQ(*config.scrapingConfig(), recipeInForce());
}

TEST_F(AppConfigTest, AdsLoadOnceConsentAndConfigurationAreThere) {
    phone.urls.answer(configurationUrl, configurationDocument());
    phone.urls.hold(configurationUrl);
    AppConfigViewModel &config = make();
    phone.settle();
    EXPECT_FALSE(config.canLoadAd());
    config.loadAds();
    EXPECT_TRUE(config.canLoadAd());
    EXPECT_TRUE(loaded.isEmpty()) << "the configuration is still under way";
    phone.urls.release(configurationUrl);
    phone.settle();
    EXPECT_EQ(loaded, allAds);
}

TEST_F(AppConfigTest, AConfigurationAloneLoadsNoAds) {
    phone.urls.answer(configurationUrl, configurationDocument());
    AppConfigViewModel &config = make();
    phone.settle();
    EXPECT_TRUE(loaded.isEmpty());
    config.loadAds();
    EXPECT_EQ(loaded, allAds);
}

TEST_F(AppConfigTest, OnlyATabletIsHeldBackByTheTabletSwitch) {
    for (const bool onTablet : {false, true}) {
        for (const bool ipadAds : {false, true}) {
            tablet = onTablet;
            loaded.clear();
            phone.urls.answer(configurationUrl, configurationDocument({}, ipadAds));
            make().loadAds();
            phone.settle();
            EXPECT_EQ(loaded.isEmpty(), onTablet && !ipadAds) << onTablet << ipadAds;
        }
    }
}

TEST_F(AppConfigTest, LateDocumentsDoNotTouchADestroyedObject) {
    phone.urls.answer(configurationUrl, configurationDocument());
    phone.urls.answer(recipeUrl, recipeWithSenderTag(QStringLiteral("b")));
    make();
    made.reset();
    phone.settle();
    EXPECT_EQ(inForce(), defaultConfiguration());
    EXPECT_EQ(recipeInForce(), ScrapingConfig());
}

TEST_F(AppConfigTest, PublishesEachWrite) {
    AppConfigViewModel &config = make();
    int published = 0;
    QObject::connect(&config, &AppConfigViewModel::bannerTappedChanged, [&] { ++published; });
    config.setBannerTapped(false);
    config.setBannerTapped(true);
    EXPECT_EQ(published, 2);
    EXPECT_TRUE(config.bannerTapped());
}

} // namespace orl
