#include "client.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

class DocumentsTest : public testing::Test {
protected:
    PlayedHost played;

    QJsonDocument json(const QString &path) const {
        const Answer answer = played.get(u"/config"_s + path);
        EXPECT_EQ(answer.status, 200);
        EXPECT_EQ(answer.headers.value("content-type"), "application/json");
        return QJsonDocument::fromJson(answer.body);
    }
};

TEST_F(DocumentsTest, ConfigurationHasEveryRequiredKeyAndNoAdvertising) {
    const QJsonObject document = json(u"/KeLo/iOS/orl_config.json"_s).object();
    const QJsonObject admob = document.value(u"admob"_s).toObject();
    for (const QString &key :
         {u"ipad_ad_enabled"_s, u"banner_ad_enabled"_s, u"open_ad_enabled"_s, u"reward_ad_enabled"_s,
          u"native_ad_enabled"_s, u"interstitial_ad_enabled"_s, u"use_xmark_native"_s}) {
        EXPECT_TRUE(admob.value(key).isBool()) << qPrintable(key);
        EXPECT_FALSE(admob.value(key).toBool()) << qPrintable(key);
    }
    EXPECT_EQ(admob.value(u"show_full_ad_after"_s).toInt(), 3);
    const QJsonObject banner = document.value(u"black_banner"_s).toObject();
    EXPECT_TRUE(banner.value(u"is_active"_s).isBool() && banner.value(u"on_number_card"_s).isBool());
    EXPECT_EQ(banner.value(u"random_display"_s).toArray(), QJsonArray{false});
    EXPECT_FALSE(document.contains(u"pending_version"_s));
}

TEST_F(DocumentsTest, ConfigurationFollowsTheValuesGiven) {
    ConfigurationValues values;
    values.pendingVersion = u"1.0"_s;
    values.nativeAdEnabled = true;
    played.host.setConfiguration(values);
    const QJsonObject document = json(u"/KeLo/iOS/orl_config.json"_s).object();
    EXPECT_EQ(document.value(u"pending_version"_s).toString(), u"1.0"_s);
    EXPECT_TRUE(document.value(u"admob"_s)[u"native_ad_enabled"_s].toBool());
}

TEST_F(DocumentsTest, RecipeNamesTheClassesOfTheFirstWebsite) {
    const QJsonObject recipe = json(u"/KeLo/OnlineSMS/scraping_config.json"_s).object();
    EXPECT_EQ(recipe.size(), 14);
    struct Case {
        const char16_t *key;
        const char16_t *path;
    };
    const QString number = Catalogue(1).countries().front().first.front().digits;
    for (const Case &item : {Case{u"countries_main_content", u"/en"}, Case{u"country_element", u"/en"},
                             Case{u"country_name", u"/en"}, Case{u"phone_number", u"/en/countries/canada"},
                             Case{u"messages_element", u""}, Case{u"message_sender", u""},
                             Case{u"message_content", u""}, Case{u"message_times_element", u""}}) {
        const QJsonObject object = recipe.value(QString::fromUtf16(item.key)).toObject();
        EXPECT_EQ(object.value(u"type"_s).toString(), u"class"_s);
        QString path = QString::fromUtf16(item.path);
        if (path.isEmpty()) path = u"/en/numbers/"_s + number;
        EXPECT_TRUE(played.text(u"/first"_s + path).contains(object.value(u"id"_s).toString()));
    }
    EXPECT_EQ(recipe.value(u"message_time_slice"_s),
              (QJsonObject{{u"from"_s, u"data-created=\""_s}, {u"to"_s, u"\">"_s}}));
    EXPECT_EQ(recipe.value(u"sender_should_remove"_s).toArray().first().toString(), u"From: "_s);
    EXPECT_EQ(recipe.value(u"message_should_remove"_s).toArray().last().toString(), u"s2 < \" >"_s);
}

TEST_F(DocumentsTest, EveryListedIconIsAPicture) {
    const QJsonArray icons = json(u"/KeLo/OnlineSMS/icons.json"_s).array();
    EXPECT_GT(icons.size(), 8);
    QByteArray previous;
    for (const auto &icon : icons) {
        const QString name = icon.toString();
        EXPECT_EQ(name, name.toLower());
        const Answer answer = played.get(u"/config/KeLo/OnlineSMS/SendersIcon/%1.jpg"_s.arg(name));
        EXPECT_EQ(answer.headers.value("content-type"), "image/jpeg");
        EXPECT_EQ(QImage::fromData(answer.body, "JPG").size(), QSize(128, 128)) << qPrintable(name);
        EXPECT_NE(answer.body, previous);
        previous = answer.body;
    }
    EXPECT_EQ(played.get(u"/config/KeLo/OnlineSMS/SendersIcon/nobody.jpg"_s).status, 404);
    EXPECT_EQ(played.get(u"/config/KeLo/OnlineSMS/SendersIcon/.jp"_s).status, 404);
}

TEST_F(DocumentsTest, SecondWebsiteCountriesLeadToPages) {
    const QJsonArray countries = json(u"/KeLo/Android/tpn_site_countries.json"_s).array();
    EXPECT_GE(countries.size(), 8);
    for (const auto &value : countries) {
        const QJsonObject country = value.toObject();
        EXPECT_EQ(country.keys(),
                  (QStringList{u"continent"_s, u"domain"_s, u"format"_s, u"icon"_s, u"name"_s, u"prefix"_s}));
        EXPECT_EQ(played.get(u"/second/%1/"_s.arg(country.value(u"domain"_s).toString())).status, 200);
    }
}

TEST_F(DocumentsTest, EndpointsFileNamesAPortThatAnswers) {
    const Endpoints endpoints = played.host.endpoints();
    EXPECT_TRUE(endpoints.secondWebsite.endsWith(u'/'));
    EXPECT_EQ(endpoints.connectivityProbe, u"http://127.0.0.1:%1/probe"_s.arg(played.host.port()));
    EXPECT_EQ(played.get(u"/probe"_s).status, 200);
    const QByteArray file = endpointsFile(endpoints);
    EXPECT_EQ(file.count('\n'), 9);
    EXPECT_TRUE(file.contains("\nfirstWebsite=" + endpoints.firstWebsite.toUtf8() + '\n'));
}

} // namespace
} // namespace orl::demo
