#include "numbers/records.h"

#include <QHashFunctions>
#include <QRandomGenerator>

#include <cstring>

namespace orl {

namespace {

constexpr std::array continentNames{"North_America", "South_America", "Europe",    "Asia",
                                    "Oceania",       "Africa",        "Antarctica"};

// An absent value and a present empty one hash differently.
template<class T>
size_t hashOptional(const std::optional<T> &value, size_t seed) noexcept {
    return value ? qHashMulti(seed, 1, *value) : qHashMulti(seed, 0);
}

std::optional<WebsiteService> decodeWebsite(JsonDecoder &json) {
    const std::optional<QString> raw = json.optionalText("website");
    if (!raw) return std::nullopt;
    const std::optional<WebsiteService> website = websiteService(*raw);
    if (!website) json.fail("website", QStringLiteral("\"%1\" is no website").arg(*raw));
    return website;
}

} // namespace

QString rawValue(WebsiteService service) {
    switch (service) {
    case WebsiteService::SMS24: return QStringLiteral("SMS24");
    case WebsiteService::T_P_N: return QStringLiteral("T_P_N");
    }
    Q_UNREACHABLE();
}

std::optional<WebsiteService> websiteService(const QString &raw) {
    for (const WebsiteService service : {WebsiteService::SMS24, WebsiteService::T_P_N}) {
        if (rawValue(service) == raw) return service;
    }
    return std::nullopt;
}

size_t qHash(WebsiteService service, size_t seed) noexcept {
    return qHash(rawValue(service), seed);
}

QList<Continents> allContinents() {
    QList<Continents> all;
    for (size_t i = 0; i < continentNames.size(); ++i)
        all.append(static_cast<Continents>(i));
    return all;
}

QString rawValue(Continents continent) {
    return QString::fromLatin1(continentNames.at(static_cast<size_t>(continent)));
}

std::optional<Continents> continents(const QString &raw) {
    for (const Continents continent : allContinents()) {
        if (rawValue(continent) == raw) return continent;
    }
    return std::nullopt;
}

size_t qHash(Continents continent, size_t seed) noexcept {
    return qHash(rawValue(continent), seed);
}

QString freshUuidText() {
    // Every refresh makes one for each message and sender; asking the kernel each time would cost a
    // microsecond.
    quint32 random[4];
    QRandomGenerator::global()->fillRange(random);
    QUuid uuid;
    static_assert(sizeof random == sizeof uuid);
    std::memcpy(&uuid, random, sizeof uuid);
    uuid.data3 = (uuid.data3 & 0x0FFF) | 0x4000;   // version 4, random
    uuid.data4[0] = (uuid.data4[0] & 0x3F) | 0x80; // the usual variant
    return uuidText(uuid);
}

Country Country::decode(JsonDecoder &json) {
    return {
        .name = json.text("name"),
        .domain = json.text("domain"),
        .prefix = json.text("prefix"),
        .continent = json.text("continent"),
        .icon = json.text("icon"),
        .format = json.text("format"),
    };
}

QJsonObject Country::encoded() const {
    return {
        {QStringLiteral("name"), name},     {QStringLiteral("domain"), domain},
        {QStringLiteral("prefix"), prefix}, {QStringLiteral("continent"), continent},
        {QStringLiteral("icon"), icon},     {QStringLiteral("format"), format},
    };
}

size_t qHash(const Country &country, size_t seed) noexcept {
    return qHashMulti(seed, country.name, country.domain, country.prefix, country.continent, country.icon,
                      country.format);
}

PhoneNumber PhoneNumber::decode(JsonDecoder &json) {
    return {.id = json.uuid("id"), .number = json.text("number"), .website = decodeWebsite(json)};
}

QJsonObject PhoneNumber::encoded() const {
    QJsonObject json{{QStringLiteral("id"), uuidText(id)}, {QStringLiteral("number"), number}};
    if (website) json.insert(QStringLiteral("website"), rawValue(*website));
    return json;
}

size_t qHash(const PhoneNumber &number, size_t seed) noexcept {
    return hashOptional(number.website, qHashMulti(seed, number.id, number.number));
}

bool SMSSender::operator==(const SMSSender &) const = default;

size_t qHash(const SMSSender &sender, size_t seed) noexcept {
    seed = qHashMulti(seed, sender.id, sender.name, sender.messages);
    seed = hashOptional(sender.icon, seed);
    seed = hashOptional(sender.light, seed);
    seed = hashOptional(sender.dark, seed);
    return hashOptional(sender.iconText, seed);
}

bool Message::operator==(const Message &) const = default;

size_t qHash(const Message &message, size_t seed) noexcept {
    seed = qHashMulti(seed, message.id, message.content);
    seed = hashOptional(message.time, seed);
    seed = hashOptional(message.timeDateForTPN, seed);
    seed = hashOptional(message.seen, seed);
    return qHashMulti(seed, message.sender);
}

History History::decode(JsonDecoder &json) {
    return {
        .country = json.object("country", Country::decode),
        .phoneNumber = json.optionalObject("phoneNumber", PhoneNumber::decode),
        .number = json.optionalText("number"),
        .time = json.real("time"),
    };
}

QJsonObject History::encoded() const {
    QJsonObject json{{QStringLiteral("country"), country.encoded()}, {QStringLiteral("time"), time}};
    if (phoneNumber) json.insert(QStringLiteral("phoneNumber"), phoneNumber->encoded());
    if (number) json.insert(QStringLiteral("number"), *number);
    return json;
}

size_t qHash(const History &entry, size_t seed) noexcept {
    seed = hashOptional(entry.phoneNumber, qHashMulti(seed, entry.country));
    seed = hashOptional(entry.number, seed);
    return qHashMulti(seed, entry.time);
}

} // namespace orl
