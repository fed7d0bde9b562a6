#include "config/configuration.h"
#include "config/scraping_config.h"

#include <gtest/gtest.h>

namespace orl {

namespace {

const QByteArray configurationDocument = R"({
    "pending_version": "2.1",
    "admob": {"ipad_ad_enabled": false, "banner_ad_enabled": true, "open_ad_enabled": false,
              "reward_ad_enabled": true, "native_ad_enabled": false, "interstitial_ad_enabled": true,
              "show_full_ad_after": 7, "use_xmark_native": true, "unheard_of": [1]},
    "black_banner": {"is_active": true, "on_number_card": true, "random_display": [true, false, true]},
    "unheard_of": null})";

QByteArray replaced(QByteArray document, const char *before, const char *after) {
    EXPECT_TRUE(document.contains(before));
    return document.replace(before, after);
}

} // namespace

TEST(ConfigurationDocument, GivesEverySwitchItsOwnKey) {
    const Result<AppConfiguration> decoded = AppConfiguration::decode(configurationDocument);
    ASSERT_TRUE(decoded.ok()) << decoded.error().description.toStdString();
    AppConfiguration expected;
    expected.pendingVersion = QStringLiteral("2.1");
    expected.admob = {false, true, false, true, false, true, 7, true};
    expected.blackBanner = {true, true, {true, false, true}};
    EXPECT_EQ(decoded.value(), expected);
}

TEST(ConfigurationDocument, OneWrongKeyRejectsItAsAWhole) {
    struct Case {
        const char *name;
        const char *before;
        const char *after;
        bool accepted;
    };
    const Case cases[] = {
        {"switch missing", R"("open_ad_enabled": false,)", "", false},
        {"switch as a number", R"("open_ad_enabled": false)", R"("open_ad_enabled": 0)", false},
        {"switch null", R"("open_ad_enabled": false)", R"("open_ad_enabled": null)", false},
        {"count as a text", R"("show_full_ad_after": 7)", R"("show_full_ad_after": "7")", false},
        {"count with a fraction", R"("show_full_ad_after": 7)", R"("show_full_ad_after": 7.5)", false},
        {"key in another case", R"("is_active")", R"("isActive")", false},
        {"list with a text in it", "[true, false, true]", R"([true, "false"])", false},
        {"version as a number", R"("2.1")", "2.1", false},
        {"version null", R"("2.1")", "null", true},
        {"version missing", R"("pending_version": "2.1",)", "", true},
        {"empty list", "[true, false, true]", "[]", true},
    };
    for (const Case &row : cases) {
        const QByteArray document = replaced(configurationDocument, row.before, row.after);
        EXPECT_EQ(AppConfiguration::decode(document).ok(), row.accepted) << row.name;
    }
}

TEST(BuiltInConfigurations, DifferInTheirSwitches) {
    const AdmobConfig on = defaultConfiguration().admob;
    EXPECT_EQ(on, (AdmobConfig{true, true, true, true, true, true, 3, false}));
    EXPECT_EQ(disabledConfiguration().admob,
              (AdmobConfig{false, false, false, false, false, false, 2, false}));
    EXPECT_EQ(disabledConfiguration().blackBanner, (BlackBannerConfig{false, false, {false}}));
    EXPECT_FALSE(disabledConfiguration().pendingVersion.has_value());
}

TEST(RecipeDocument, EncodesTheCompiledRecipeInTheOrderOfItsFields) {
    const QByteArray expected =
        R"({"countries_main_content":{"type":"class","id":"container-fluid mt-3 p-0"},)"
        R"("country_element":{"type":"class","id":"col-sm-12 col-md-6 col-lg-4"},)"
        R"("country_name":{"type":"class","id":"placeholder h5"},)"
        R"("country_should_remove":[],)"
        R"("phone_number":{"type":"class","id":"fw-bold text-primary placeholder"},)"
        R"("phone_number_should_remove":[],)"
        R"("messages_element":{"type":"class","id":"shadow-sm bg-light rounded border-start border-info border-5"},)"
        R"("message_sender":{"type":"class","id":"mb-1"},)"
        R"("message_content":{"type":"class","id":"placeholder text-break"},)"
        R"("message_should_remove":["From: ","From:","From ","From","#> ","s2 < \" >"],)"
        R"("sender_should_remove":["From: ","From:","From ","From"],)"
        R"("message_times_element":{"type":"class","id":"mt-3"},)"
        R"("message_time_slice":{"from":"data-created=\"","to":"\">"},)"
        R"("time_should_remove":[]})";
    EXPECT_EQ(ScrapingConfig().encoded(), expected);
}

TEST(RecipeDocument, ComesBackAsItWasEncoded) {
    ScrapingConfig recipe;
    recipe.countryName = {QStringLiteral("tag"), QStringLiteral("h\"5\\ \n ü")};
    recipe.timeShouldRemove = {QStringLiteral("a"), QString(), QStringLiteral("{\"type\":1}")};
    recipe.messageTimeSlice = {QStringLiteral("<"), QStringLiteral(">")};
    const Result<ScrapingConfig> decoded = ScrapingConfig::decode(recipe.encoded());
    ASSERT_TRUE(decoded.ok()) << decoded.error().description.toStdString();
    EXPECT_EQ(decoded.value(), recipe);
}

TEST(RecipeDocument, IsRejectedWithoutAnyOneOfItsKeys) {
    const QByteArray whole = ScrapingConfig().encoded();
    const char *keys[] = {"countries_main_content",
                          "country_element",
                          "country_name",
                          "country_should_remove",
                          "phone_number_should_remove",
                          "messages_element",
                          "message_sender",
                          "message_content",
                          "message_should_remove",
                          "phone_number",
                          "from",
                          "sender_should_remove",
                          "message_times_element",
                          "type",
                          "to",
                          "message_time_slice",
                          "time_should_remove"};
    for (const char *key : keys) {
        const QByteArray quoted = '"' + QByteArray(key) + '"';
        const Result<ScrapingConfig> decoded = ScrapingConfig::decode(replaced(whole, quoted, "\"other\""));
        ASSERT_FALSE(decoded.ok()) << key;
        EXPECT_TRUE(decoded.error().description.contains(QLatin1String(key)))
            << decoded.error().description.toStdString();
    }
}

} // namespace orl
