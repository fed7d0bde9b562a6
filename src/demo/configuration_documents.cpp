#include "configuration_documents.h"

#include "message_texts.h"
#include "sender_icon.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

Reply json(const QJsonDocument &document) {
    return {200, "application/json", document.toJson()};
}

QJsonObject item(const char16_t *type, const char16_t *id) {
    return {{u"type"_s, QString::fromUtf16(type)}, {u"id"_s, QString::fromUtf16(id)}};
}

QJsonObject advertising(const ConfigurationValues &values) {
    return {{u"ipad_ad_enabled"_s, values.ipadAdEnabled},
            {u"banner_ad_enabled"_s, values.bannerAdEnabled},
            {u"open_ad_enabled"_s, values.openAdEnabled},
            {u"reward_ad_enabled"_s, values.rewardAdEnabled},
            {u"native_ad_enabled"_s, values.nativeAdEnabled},
            {u"interstitial_ad_enabled"_s, values.interstitialAdEnabled},
            {u"show_full_ad_after"_s, values.showFullAdAfter},
            {u"use_xmark_native"_s, values.useXmarkNative}};
}

QJsonObject blackBanner(const ConfigurationValues &values) {
    QJsonArray display;
    for (const bool shown : values.bannerRandomDisplay)
        display.append(shown);
    return {{u"is_active"_s, values.bannerIsActive},
            {u"on_number_card"_s, values.bannerOnNumberCard},
            {u"random_display"_s, display}};
}

/// Says where things stand on the pages of first_website.cpp.
Reply recipe() {
    const QJsonArray senderPrefixes{u"From: "_s, u"From:"_s, u"From "_s, u"From"_s};
    QJsonArray messageRemovals = senderPrefixes;
    messageRemovals.append(u"#> "_s);
    messageRemovals.append(u"s2 < \" >"_s);
    return json(QJsonDocument(QJsonObject{
        {u"countries_main_content"_s, item(u"class", u"container-fluid mt-3 p-0")},
        {u"country_element"_s, item(u"class", u"col-sm-12 col-md-6 col-lg-4")},
        {u"country_name"_s, item(u"class", u"placeholder h5")},
        {u"country_should_remove"_s, QJsonArray()},
        {u"phone_number"_s, item(u"class", u"fw-bold text-primary placeholder")},
        {u"phone_number_should_remove"_s, QJsonArray()},
        {u"messages_element"_s,
         item(u"class", u"shadow-sm bg-light rounded border-start border-info border-5")},
        {u"message_sender"_s, item(u"class", u"mb-1")},
        {u"message_content"_s, item(u"class", u"placeholder text-break")},
        {u"message_should_remove"_s, messageRemovals},
        {u"sender_should_remove"_s, senderPrefixes},
        {u"message_times_element"_s, item(u"class", u"mt-3")},
        {u"message_time_slice"_s, QJsonObject{{u"from"_s, u"data-created=\""_s}, {u"to"_s, u"\">"_s}}},
        {u"time_should_remove"_s, QJsonArray()},
    }));
}

QStringList iconNames() {
    QStringList names;
    for (const ServiceName &service : serviceNames()) {
        if (service.hasIcon) names << QString::fromUtf8(service.name).toLower();
    }
    return names << u"parcel"_s << u"bank"_s;
}

Reply icon(const QString &fileName) {
    static const QString suffix = u".jpg"_s;
    if (!fileName.endsWith(suffix)) return notFoundPage();
    const QString name = fileName.chopped(suffix.size());
    if (!iconNames().contains(name)) return notFoundPage();
    return {200, "image/jpeg", senderIcon(name)};
}

} // namespace

ConfigurationValues livelyConfiguration() {
    ConfigurationValues values;
    values.bannerAdEnabled = values.openAdEnabled = values.rewardAdEnabled = values.nativeAdEnabled =
        values.interstitialAdEnabled = true;
    values.showFullAdAfter = 6;
    values.useXmarkNative = true;
    values.bannerIsActive = values.bannerOnNumberCard = true;
    values.bannerRandomDisplay = {true, false, false};
    return values;
}

Reply ConfigurationDocuments::answer(const Request &request) const {
    static const QString icons = u"/KeLo/OnlineSMS/SendersIcon/"_s;
    if (request.path == u"/KeLo/iOS/orl_config.json"_s) return configuration();
    if (request.path == u"/KeLo/OnlineSMS/scraping_config.json"_s) return recipe();
    if (request.path == u"/KeLo/OnlineSMS/icons.json"_s)
        return json(QJsonDocument(QJsonArray::fromStringList(iconNames())));
    if (request.path == u"/KeLo/Android/tpn_site_countries.json"_s) return secondWebsiteCountries();
    if (request.path.startsWith(icons)) return icon(request.path.mid(icons.size()));
    return notFoundPage();
}

void ConfigurationDocuments::setValues(const ConfigurationValues &values) {
    const std::scoped_lock lock(mutex_);
    values_ = values;
}

Reply ConfigurationDocuments::configuration() const {
    const std::scoped_lock lock(mutex_);
    QJsonObject document{{u"admob"_s, advertising(values_)}, {u"black_banner"_s, blackBanner(values_)}};
    if (values_.pendingVersion) document.insert(u"pending_version"_s, *values_.pendingVersion);
    return json(QJsonDocument(document));
}

Reply ConfigurationDocuments::secondWebsiteCountries() const {
    QJsonArray list;
    for (const DemoCountry &country : catalogue_.countries()) {
        if (country.secondPath.isEmpty()) continue;
        list.append(QJsonObject{{u"name"_s, country.name},
                                {u"domain"_s, country.secondPath},
                                {u"prefix"_s, country.prefix},
                                {u"continent"_s, country.continent},
                                {u"icon"_s, country.icon},
                                {u"format"_s, country.format}});
    }
    return json(QJsonDocument(list));
}

} // namespace orl::demo
