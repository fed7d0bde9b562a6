#include "catalogue.h"

#include "country_table.h"
#include "random.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

QString numberFrom(QString pattern, Random &random) {
    for (QChar &c : pattern) {
        if (c == u'#') c = QChar(u'0' + random.below(10));
    }
    return pattern;
}

QString digitsOf(const QString &text) {
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](QChar c) { return c.isDigit(); });
    return digits;
}

/// "+44 7700 900###" is numbers of the shape "+XX XXXX XXXXXX".
QString formatFrom(QString pattern) {
    for (QChar &c : pattern) {
        if (c != u'+' && c != u' ') c = u'X';
    }
    return pattern;
}

DemoCountry countryFrom(const CountryRow &row) {
    DemoCountry country;
    country.name = QString::fromUtf8(row.name);
    country.pageName = QString::fromUtf8(row.pageName);
    country.slug = QString::fromUtf8(row.slug);
    country.secondPath = QString::fromUtf8(row.secondPath);
    country.icon = QString::fromUtf8(row.icon);
    country.continent = QString::fromUtf8(row.continent);
    const QString pattern = QString::fromUtf8(row.numberPatterns).section(u';', 0, 0);
    country.prefix = pattern.section(u' ', 0, 0);
    country.format = formatFrom(pattern);
    return country;
}

} // namespace

Catalogue::Catalogue(quint64 seed) {
    for (const CountryRow &row : countryTable()) {
        countries_.push_back(countryFrom(row));
        draw(countries_.size() - 1, mix(seed, countries_.back().slug));
    }
}

void Catalogue::draw(std::size_t country, quint64 seed) {
    Random random(seed);
    drawNumbers(country, random.next(), Website::First, 5 + random.below(26));
    if (!countries_[country].secondPath.isEmpty())
        drawNumbers(country, random.next(), Website::Second, 2 + random.below(5));
}

void Catalogue::drawNumbers(std::size_t country, quint64 seed, Website website, int count) {
    const CountryRow &row = countryTable()[country];
    const QStringList patterns = QString::fromUtf8(row.numberPatterns).split(u';');
    auto &numbers = website == Website::First ? countries_[country].first : countries_[country].second;
    Random random(seed);
    while (std::ssize(numbers) < count) {
        const QString text = numberFrom(random.pick(patterns), random);
        const QString digits = digitsOf(text);
        if (places_.contains(digits)) continue;
        // The number a user is most likely to try first is never a quiet one.
        const bool brief = website == Website::First && std::ssize(numbers) == count - 1;
        const bool quiet = !numbers.empty() && random.oneIn(6) && !brief;
        places_.insert(digits, {country, numbers.size(), website});
        numbers.push_back({website == Website::First ? u'+' + digits : text, digits, website, quiet, brief,
                           QString::fromUtf8(row.languages).split(u' ')});
    }
}

const DemoCountry *Catalogue::countryBySlug(const QString &slug) const {
    const auto found = std::ranges::find(countries_, slug, &DemoCountry::slug);
    return found == countries_.end() ? nullptr : &*found;
}

const DemoCountry *Catalogue::countryBySecondPath(const QString &path) const {
    if (path.isEmpty()) return nullptr;
    const auto found = std::ranges::find(countries_, path, &DemoCountry::secondPath);
    return found == countries_.end() ? nullptr : &*found;
}

const Number *Catalogue::number(const QString &digits, Website website) const {
    const auto place = places_.constFind(digits);
    if (place == places_.constEnd() || place->website != website) return nullptr;
    const DemoCountry &country = countries_[place->country];
    return &(website == Website::First ? country.first : country.second)[place->index];
}

const DemoCountry *Catalogue::countryOf(const Number &number) const {
    const auto place = places_.constFind(number.digits);
    return place == places_.constEnd() ? nullptr : &countries_[place->country];
}

} // namespace orl::demo
