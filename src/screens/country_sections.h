#pragma once

#include "numbers/records.h"

#include <QList>

namespace orl {

/// A continent as the country list names it: "North America".
QString continentTitle(Continents continent);

/// The countries of one continent that match what was typed, in the order of the catalogue. An empty term
/// keeps all; any other must stand in the dialling prefix or in the name, in any case. `continentKey` is the
/// continent's title in lower case.
QList<Country> filteredCountries(const QList<Country> &countries, const QString &term,
                                 const QString &continentKey);

/// Whether what was typed finds no country at all, on whichever continent; never for an empty term.
bool findsNothing(const QList<Country> &countries, const QString &term);

} // namespace orl
