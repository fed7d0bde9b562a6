#pragma once

#include "numbers/gradients.h"
#include "platform/json.h"

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QUuid>

#include <functional>
#include <optional>

namespace orl {

/// Which public website a number belongs to. Persisted and hashed by its raw text.
enum class WebsiteService {
    SMS24, ///< pages are read by recipe
    T_P_N, ///< pages are read by fixed class names
};
QString rawValue(WebsiteService service);
std::optional<WebsiteService> websiteService(const QString &rawValue);
size_t qHash(WebsiteService service, size_t seed = 0) noexcept;

/// The sections of the country list, in the order in which it shows them.
enum class Continents { North_America, South_America, Europe, Asia, Oceania, Africa, Antarctica };
QList<Continents> allContinents();
QString rawValue(Continents continent); ///< the case name, underscores included
std::optional<Continents> continents(const QString &rawValue);
size_t qHash(Continents continent, size_t seed = 0) noexcept;

/// How the home screen lays out the messages: by sender, or as one recent list.
enum class MessageStackType { SENDERS, RECENT };

/// The selected tab. `community` has no tab of its own; nothing selects it.
enum class Tab { home, fakeGenerator, profile, tMail, community };

/// A new random UUID in the form in which records hold it.
QString freshUuidText();

/// An entry of a country catalogue. Nothing is trimmed or normalised.
struct Country {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString domain MEMBER domain CONSTANT)
    Q_PROPERTY(QString prefix MEMBER prefix CONSTANT)
    Q_PROPERTY(QString continent MEMBER continent CONSTANT)
    Q_PROPERTY(QString icon MEMBER icon CONSTANT)
    Q_PROPERTY(QString format MEMBER format CONSTANT)
public:
    QString name;      ///< shown, and the key that joins the catalogues
    QString domain;    ///< path to the country's numbers on the website
    QString prefix;    ///< dialling prefix
    QString continent; ///< a raw value of Continents
    QString icon;      ///< name of the country's picture
    QString format;    ///< shape of the country's numbers, "X" for each digit

    static Country decode(JsonDecoder &json);
    QJsonObject encoded() const;
    bool operator==(const Country &) const = default;
};
size_t qHash(const Country &country, size_t seed = 0) noexcept;

/// A virtual number. The same number scraped twice makes two records with different ids.
struct PhoneNumber {
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id CONSTANT)
    Q_PROPERTY(QString number MEMBER number CONSTANT)
public:
    QUuid id;
    QString number; ///< as the website shows it
    std::optional<WebsiteService> website;

    static PhoneNumber decode(JsonDecoder &json);
    QJsonObject encoded() const;
    bool operator==(const PhoneNumber &) const = default;
};
size_t qHash(const PhoneNumber &number, size_t seed = 0) noexcept;

struct Message;

/// The messages of one sender; also embedded, without messages, in each Message. An ad row of `senders` is
/// one too: its name is "native_ad".
struct SMSSender {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString icon READ iconOrEmpty CONSTANT)
    Q_PROPERTY(QString light READ lightOrEmpty CONSTANT)
    Q_PROPERTY(QString dark READ darkOrEmpty CONSTANT)
    Q_PROPERTY(QString iconText READ iconTextOrEmpty CONSTANT)
public:
    QString id;
    QString name;
    QList<Message> messages;     ///< in the order of the page
    std::optional<QString> icon; ///< URL of a picture; mostly without one
    std::optional<Color> light;  ///< the gradient that stands in for a picture
    std::optional<Color> dark;
    std::optional<QString> iconText; ///< two letters to put on the gradient

    QString iconOrEmpty() const { return icon.value_or(QString()); }
    QString lightOrEmpty() const { return light ? light->name() : QString(); }
    QString darkOrEmpty() const { return dark ? dark->name() : QString(); }
    QString iconTextOrEmpty() const { return iconText.value_or(QString()); }

    bool operator==(const SMSSender &) const;
};
size_t qHash(const SMSSender &sender, size_t seed = 0) noexcept;

/// One received SMS. An ad row of `messages` is one too: its content and its sender's id and name are
/// "NativeAd".
struct Message {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT)
    Q_PROPERTY(QString content MEMBER content CONSTANT)
    Q_PROPERTY(orl::SMSSender sender MEMBER sender CONSTANT)
public:
    QString id;
    QString content;
    std::optional<QString> time;          ///< first website: the page's own time stamp, see messageMoment
    std::optional<double> timeDateForTPN; ///< second website: seconds since 1970, worked out from a phrase
    std::optional<bool> seen;             ///< absent when built; see RequestViewModel::markSeen
    SMSSender sender;

    bool operator==(const Message &) const;
};
size_t qHash(const Message &message, size_t seed = 0) noexcept;

/// A number that the user once chose.
struct History {
    Q_GADGET
    Q_PROPERTY(orl::Country country MEMBER country CONSTANT)
    Q_PROPERTY(QString shownNumber READ shownNumber CONSTANT)
    Q_PROPERTY(double time MEMBER time CONSTANT)
public:
    Country country;
    std::optional<PhoneNumber> phoneNumber;
    std::optional<QString> number; ///< what older versions stored instead of phoneNumber
    double time = 0;               ///< seconds since 1970

    QString shownNumber() const { return phoneNumber ? phoneNumber->number : number.value_or(QString()); }

    static History decode(JsonDecoder &json);
    QJsonObject encoded() const;
    bool operator==(const History &) const = default;
};
size_t qHash(const History &entry, size_t seed = 0) noexcept;

} // namespace orl

/// All records serve as keys of the standard containers too.
#define ORL_STD_HASH(Type)                                                                                   \
    template<>                                                                                               \
    struct std::hash<Type> {                                                                                 \
        size_t operator()(const Type &value) const noexcept { return orl::qHash(value, 0); }                 \
    };
ORL_STD_HASH(orl::Country)
ORL_STD_HASH(orl::PhoneNumber)
ORL_STD_HASH(orl::SMSSender)
ORL_STD_HASH(orl::Message)
ORL_STD_HASH(orl::History)
#undef ORL_STD_HASH
