#include "identity/identity_service.h"

#include "platform/clock.h"
#include "platform/console.h"
#include "platform/url_reader.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QUuid>

#include <array>
#include <charconv>
#include <cmath>

namespace orl {

namespace {

/// 0 <= result < bound, without the bias of a remainder: the high word of the product, where draws whose low
/// word falls into the incomplete last stretch are made again.
std::size_t drawBelow(const std::function<quint64()> &word, quint64 bound) {
    const quint64 rejected = (0 - bound) % bound; // 2^64 mod bound
    for (;;) {
        __extension__ using Product = unsigned __int128;
        const Product product = Product(word()) * bound;
        if (static_cast<quint64>(product) >= rejected) return static_cast<std::size_t>(product >> 64);
    }
}

FakeGender resolved(const std::function<quint64()> &word, FakeGender gender) {
    if (gender != FakeGender::Random) return gender;
    using enum FakeGender;
    static constexpr std::array urn{Male, Male, Male, Female, Female, Female};
    return urn[drawBelow(word, urn.size())];
}

QString ageText(const Platform &platform, const QString &birthData) {
    const QDate birth = QDate::fromString(birthData, QStringLiteral("yyyy-MM-dd"));
    if (!birth.isValid()) platform.fatal.fatalError(QStringLiteral("\"%1\" is no birth date").arg(birthData));
    const QDate today = QDateTime::fromMSecsSinceEpoch(qint64(platform.clock.now() * 1000)).date();
    const std::optional<int> age = wholeYears(birth, today);
    return age ? QString::number(*age) : QStringLiteral("--");
}

FakeIdentity mapped(const Platform &platform, const FakeIdentity2 &wire, FakeGender gender) {
    return {uuidText(QUuid::createUuid()),
            wire.name,
            wire.address,
            gender,
            {{QStringLiteral("Geo coordinates"),
              numberText(wire.latitude) + QStringLiteral(", ") + numberText(wire.longitude)},
             {QStringLiteral("Mother's maiden name"), wire.maiden_name},
             {QStringLiteral("Date of birth"), wire.birth_data},
             {QStringLiteral("Age"), ageText(platform, wire.birth_data)}},
            {{QStringLiteral("Home phone"), wire.phone_h}, {QStringLiteral("Work phone"), wire.phone_w}},
            {{QStringLiteral("Email address"), wire.email_u + QLatin1Char('@') + wire.email_d},
             {QStringLiteral("Username"), wire.username},
             {QStringLiteral("Browser user agent"), wire.useragent}},
            {{QStringLiteral("Height"), numberText(wire.height)},
             {QStringLiteral("Weight"), numberText(wire.weight)},
             {QStringLiteral("Eye color"), wire.eye},
             {QStringLiteral("Blood type"), wire.blood},
             {QStringLiteral("Hair"), wire.hair}},
            {{QStringLiteral("Company"), wire.company}, {QStringLiteral("Favorite sport"), wire.sport}}};
}

Result<FakeIdentity2> readIdentity(const Platform &platform, const QUrl &url) {
    const Result<UrlResponse> response = platform.urlReader.read({.url = url});
    if (!response) return response.error();
    // The status says nothing here: the body of an error page does not decode.
    return decodeJson(response.value().body, FakeIdentity2::decode);
}

} // namespace

quint64 secureWord() {
    return QRandomGenerator::system()->generate64();
}

IdentityPath identityPath(const Platform &platform, FakeGender gender, FakeNameSet nameSet,
                          FakeCountry country, const std::function<quint64()> &word) {
    const FakeGender chosen = resolved(word, gender);
    return {chosen,
            makeUrl(platform.endpoints.identityHost +
                    QStringLiteral("/%1-%2/%3").arg(rawValue(nameSet), rawValue(country), rawValue(chosen)))};
}

void fetchIdentity(const Platform &platform, const std::optional<QUrl> &url, FakeGender gender,
                   const IdentityCompletion &completion) {
    if (!url) return;
    const Result<FakeIdentity2> wire = readIdentity(platform, *url);
    if (wire) return completion(mapped(platform, wire.value(), gender));
    platform.console.print(QStringLiteral("Failed to generate new identity: ") + wire.error().description);
    completion(std::nullopt);
}

QString numberText(double number) {
    constexpr double longestPlain = 1e16; // from here on not every whole number has a double of its own
    constexpr double shortestPlain = 1e-4;
    const double size = std::abs(number);
    const bool plain = number == 0 || (size >= shortestPlain && size < longestPlain);
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                   plain ? std::chars_format::fixed : std::chars_format::scientific);
    const QString digits = QString::fromLatin1(text.data(), end.ptr - text.data());
    return plain && !digits.contains(QLatin1Char('.')) ? digits + QStringLiteral(".0") : digits;
}

std::optional<int> wholeYears(QDate from, QDate to) {
    if (!from.isValid() || !to.isValid()) return std::nullopt;
    int years = to.year() - from.year();
    if (years > 0 && from.addYears(years) > to) --years;
    if (years < 0 && from.addYears(years) < to) ++years;
    return years;
}

} // namespace orl
