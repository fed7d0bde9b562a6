#include "demo/catalogue.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

QList<QJsonObject> localCatalogue() {
    QFile file(QStringLiteral(ORL_COUNTRIES_JSON));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    QList<QJsonObject> countries;
    for (const auto &value : document.array())
        countries << value.toObject();
    return countries;
}

QString field(const QJsonObject &country, const char *key) {
    return country.value(QLatin1String(key)).toString();
}

/// The rule by which the screens write a number.
QString formatted(QString number, const QString &format) {
    number.remove(QRegularExpression(u"[^0-9]"_s));
    for (qsizetype i = 0; i < format.size() && i < number.size(); ++i) {
        if (format[i] != u'X') number.insert(i, format[i]);
    }
    return number;
}

bool hasShape(const QString &text, const QString &format) {
    if (text.size() != format.size()) return false;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] == u'X' ? !text[i].isDigit() : text[i] != format[i]) return false;
    }
    return true;
}

TEST(LocalCatalogueTest, EveryEntryIsComplete) {
    static const QSet<QString> continents{u"North_America"_s, u"South_America"_s, u"Europe"_s,    u"Asia"_s,
                                          u"Oceania"_s,       u"Africa"_s,        u"Antarctica"_s};
    const auto countries = localCatalogue();
    EXPECT_GE(countries.size(), 70);
    QSet<QString> names, domains, seenContinents;
    for (const QJsonObject &country : countries) {
        SCOPED_TRACE(qPrintable(field(country, "name")));
        EXPECT_EQ(country.keys(),
                  (QStringList{u"continent"_s, u"domain"_s, u"format"_s, u"icon"_s, u"name"_s, u"prefix"_s}));
        EXPECT_TRUE(continents.contains(field(country, "continent")));
        EXPECT_TRUE(QRegularExpression(u"^\\+[1-9][0-9]{0,3}$"_s).match(field(country, "prefix")).hasMatch());
        EXPECT_TRUE(QRegularExpression(u"^\\+[X() -]+X$"_s).match(field(country, "format")).hasMatch());
        EXPECT_TRUE(
            QRegularExpression(u"^/en/countries/[a-z-]+$"_s).match(field(country, "domain")).hasMatch());
        EXPECT_TRUE(
            QFile::exists(u"/usr/share/iso-flags-svg/country-4x3/"_s + field(country, "icon") + u".svg"_s));
        names << field(country, "name");
        domains << field(country, "domain");
        seenContinents << field(country, "continent");
    }
    EXPECT_EQ(names.size(), countries.size());
    EXPECT_EQ(domains.size(), countries.size());
    EXPECT_EQ(seenContinents, continents);
}

TEST(LocalCatalogueTest, EachNameOnTheSiteMeansExactlyOneEntry) {
    const auto countries = localCatalogue();
    const Catalogue catalogue(1);
    for (const DemoCountry &country : catalogue.countries()) {
        QList<QJsonObject> matches;
        for (const QJsonObject &local : countries) {
            if (country.pageName.toLower().contains(field(local, "name").toLower())) matches << local;
        }
        ASSERT_EQ(matches.size(), 1) << qPrintable(country.pageName);
        EXPECT_EQ(field(matches[0], "name"), country.name);
        EXPECT_EQ(field(matches[0], "domain"), u"/en/countries/"_s + country.slug);
        EXPECT_EQ(field(matches[0], "icon"), country.icon);
        EXPECT_EQ(field(matches[0], "continent"), country.continent);
    }
}

TEST(LocalCatalogueTest, FormatFitsTheNumbersOfTheSite) {
    QMap<QString, QJsonObject> locals;
    for (const QJsonObject &local : localCatalogue())
        locals.insert(field(local, "name"), local);
    const Catalogue catalogue(1);
    for (const DemoCountry &country : catalogue.countries()) {
        const QString format = field(locals[country.name], "format");
        auto numbers = country.first;
        numbers.insert(numbers.end(), country.second.begin(), country.second.end());
        for (const Number &number : numbers) {
            EXPECT_TRUE(hasShape(formatted(number.text, format), format))
                << qPrintable(country.name) << ' ' << qPrintable(formatted(number.text, format));
            EXPECT_TRUE((u'+' + number.digits).startsWith(field(locals[country.name], "prefix")));
        }
    }
}

TEST(CatalogueTest, EveryCountryHasItsNumbersAndNoNumberComesTwice) {
    for (const quint64 seed : {1u, 2u, 77u}) {
        const Catalogue catalogue(seed);
        EXPECT_GE(catalogue.countries().size(), 45u);
        QSet<QString> digits;
        std::size_t count = 0;
        int withSecond = 0;
        for (const DemoCountry &country : catalogue.countries()) {
            EXPECT_GE(country.first.size(), 5u);
            EXPECT_LE(country.first.size(), 30u);
            EXPECT_FALSE(country.first.front().quiet) << "the first number is the one most people try";
            if (!country.secondPath.isEmpty()) {
                ++withSecond;
                EXPECT_GE(country.second.size(), 2u);
                EXPECT_LE(country.second.size(), 6u);
            }
            for (const auto *numbers : {&country.first, &country.second}) {
                count += numbers->size();
                for (const Number &number : *numbers)
                    digits << number.digits;
            }
        }
        EXPECT_EQ(static_cast<std::size_t>(digits.size()), count);
        EXPECT_GE(withSecond, 8);
    }
}

TEST(CatalogueTest, NumberIsFoundOnItsOwnWebsiteOnly) {
    const Catalogue catalogue(1);
    const DemoCountry &country = catalogue.countries().front();
    const QString first = country.first.back().digits, second = country.second.back().digits;
    ASSERT_NE(catalogue.number(first, Website::First), nullptr);
    EXPECT_EQ(catalogue.number(first, Website::First)->digits, first);
    EXPECT_EQ(catalogue.number(first, Website::Second), nullptr);
    EXPECT_EQ(catalogue.number(second, Website::First), nullptr);
    EXPECT_EQ(catalogue.countryOf(*catalogue.number(second, Website::Second)), &country);
    EXPECT_EQ(catalogue.countryBySecondPath(QString()), nullptr);
}

} // namespace
} // namespace orl::demo
