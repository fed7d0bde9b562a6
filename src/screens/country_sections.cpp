#include "screens/country_sections.h"

#include <algorithm>

namespace orl {

namespace {

bool matches(const Country &country, const QString &lowerTerm) {
    return country.prefix.toLower().contains(lowerTerm) || country.name.toLower().contains(lowerTerm);
}

} // namespace

QString continentTitle(Continents continent) {
    return rawValue(continent).replace(u'_', u' ');
}

QList<Country> filteredCountries(const QList<Country> &countries, const QString &term,
                                 const QString &continentKey) {
    const QString wanted = term.toLower();
    QList<Country> kept;
    for (const Country &country : countries) {
        // The key is written with a blank, the records with an underscore; both mean the same continent.
        const QString continent = country.continent.toLower().replace(u'_', u' ');
        if (continent.contains(continentKey) && matches(country, wanted)) kept << country;
    }
    return kept;
}

bool findsNothing(const QList<Country> &countries, const QString &term) {
    if (term.isEmpty()) return false;
    return std::none_of(
        countries.begin(), countries.end(),
        [wanted = term.toLower()](const Country &country) { return matches(country, wanted); });
}

} // namespace orl
