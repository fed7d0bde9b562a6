#include "advertising.h"

#include "ad_picture.h"
#include "random.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

/// An ad of the stock. Texts that it does not have are null, and so is a rating of 0.
struct Ad {
    const char *name;
    const char *headline;
    const char *body;
    const char *callToAction;
    const char *advertiser;
    const char *store;
    const char *price;
    double rating;
    bool hasIcon;
    bool hasVideo;
};

constexpr Ad stock[] = {
    {"kettle", "Tea that waits for you", "Forty leaves from small gardens, posted to your door every month.",
     "Taste", "Kettle & Leaf", nullptr, "4.90 a box", 4.7, true, false},
    {"harbour", "Your city by bicycle", "Unlock one at any corner. The first half hour is on us.", "Ride",
     "Harbour Bikes", "Phone store", "Free", 4.2, true, true},
    {"atlas", "Maps that work in the cellar", "Whole countries offline, footpaths included.", "Get the map",
     "Cellar Atlas", "Phone store", "2.99", 5.0, true, false},
    {"paper", "Fold something today", nullptr, "Start", "Paperfold", nullptr, nullptr, 3.6, true, false},
    {"choir", "Sing with strangers on Thursdays",
     "A choir for people who think that they cannot. Bring a friend, bring your voice, bring nothing at all: "
     "there is tea, there is a piano that is nearly in tune, and nobody listens.",
     "Find a choir near you", "Thursday Voices", nullptr, nullptr, 0, false, true},
    {"garden", "Tomatoes on the ninth floor", "Seeds and soil for balconies.", "Grow", nullptr, nullptr,
     "from 7.50", 3.1, false, false},
    {"library", "Every book, one card", nullptr, "Join", "Borough Libraries", nullptr, "Free", 4.5, true,
     false},
};

constexpr const char *fullScreenUnits[] = {"interstitial", "rewarded", "app-open"};
constexpr const char *wideUnits[] = {"chat-inline", "full-screen-inline", "message-list",
                                     "home",        "identity-home",      "identity-button"};

template<class List>
bool contains(const List &list, const QString &unit) {
    return std::ranges::any_of(list, [&](const char *known) { return unit == QLatin1String(known); });
}

const Ad *adNamed(const QString &name) {
    const auto *ad = std::ranges::find_if(stock, [&](const Ad &a) { return name == QLatin1String(a.name); });
    return ad == std::end(stock) ? nullptr : ad;
}

QString picturePath(const Ad &ad, const char *shape) {
    return u"/pictures/%1-%2.jpg"_s.arg(QLatin1String(ad.name), QLatin1String(shape));
}

Reply document(const QString &unit, const Ad &ad) {
    QJsonObject json{{u"headline"_s, QString::fromUtf8(ad.headline)},
                     {u"link"_s, u"/landing/"_s + QLatin1String(ad.name)}};
    const auto put = [&](const char *key, const char *text) {
        if (text) json.insert(QLatin1String(key), QString::fromUtf8(text));
    };
    put("body", ad.body);
    put("call_to_action", ad.callToAction);
    put("advertiser", ad.advertiser);
    put("store", ad.store);
    put("price", ad.price);
    if (ad.rating > 0) json.insert(u"star_rating"_s, ad.rating);
    if (ad.hasIcon) json.insert(u"icon"_s, picturePath(ad, "icon"));
    if (contains(fullScreenUnits, unit)) json.insert(u"picture"_s, picturePath(ad, "tall"));
    if (contains(wideUnits, unit)) {
        json.insert(u"picture"_s, picturePath(ad, ad.hasVideo ? "film" : "wide"));
        if (ad.hasVideo)
            json.insert(u"video"_s, QJsonObject{{u"frames"_s, filmFrames}, {u"frame_ms"_s, 100}});
    }
    if (unit == u"rewarded"_s) json.insert(u"reward_seconds"_s, 15);
    return {200, "application/json", QJsonDocument(json).toJson()};
}

Reply unit(const QString &name, quint64 number) {
    const bool known = name == u"banner"_s || contains(fullScreenUnits, name) || contains(wideUnits, name);
    if (!known) return notFoundPage();
    // Each unit goes through the stock from a place of its own.
    const quint64 first = mix(7, name) % std::size(stock);
    return document(name, stock[(first + number % std::size(stock)) % std::size(stock)]);
}

Reply picture(const QString &name, const QString &shape) {
    const Ad *ad = adNamed(name);
    const QByteArray bytes = ad ? adPicture(name, shape) : QByteArray();
    return bytes.isEmpty() ? notFoundPage() : Reply{200, "image/jpeg", bytes};
}

Reply landing(const QString &name) {
    const Ad *ad = adNamed(name);
    if (!ad) return notFoundPage();
    const QByteArray title = QByteArray(ad->headline).replace('&', "&amp;");
    return {200, "text/html; charset=utf-8",
            "<!DOCTYPE html>\n<html lang=en><head><meta charset=utf-8><title>" + title +
                "</title></head>\n<body><h1>" + title +
                "</h1><p>This is where the ad leads.</body></html>\n"};
}

} // namespace

Reply Advertising::answer(const Request &request) const {
    static const QRegularExpression units(u"^/units/([a-z-]+)/(\\d{1,9})\\.json$"_s);
    static const QRegularExpression pictures(u"^/pictures/([a-z]+)-([a-z]+)\\.jpg$"_s);
    static const QRegularExpression landings(u"^/landing/([a-z]+)$"_s);
    if (const auto match = units.match(request.path); match.hasMatch())
        return unit(match.captured(1), match.captured(2).toULongLong());
    if (const auto match = pictures.match(request.path); match.hasMatch())
        return picture(match.captured(1), match.captured(2));
    if (const auto match = landings.match(request.path); match.hasMatch()) return landing(match.captured(1));
    return notFoundPage();
}

} // namespace orl::demo
