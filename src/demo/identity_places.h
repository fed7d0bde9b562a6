#pragma once

#include <QString>

namespace orl::demo {

/// Where people of a country live and who they work for, as data. Entries stand between semicolons; "#"
/// stands for any digit; all texts are UTF-8.
struct PlaceRow {
    const char *country; ///< as addresses name it
    const char *nameSet; ///< the only name set that the row is for; null: every one without a row of its own
    const char *cities;  ///< "NAME|POSTAL CODE|LATITUDE|LONGITUDE|REGION"
    const char *streets;
    /// The postal address, lines between "/". "{n}" is the house number, "{street}", "{city}", "{zip}" and
    /// "{region}" come from the above.
    const char *address;
    /// One for each city, in their order. Numbers that countries keep for fiction: those of North America,
    /// Australia, the United Kingdom, France, Germany and Sweden. Elsewhere the exchange is written as
    /// zeroes, so that none of them is anybody's.
    const char *phones;
    const char *company; ///< "{s}" is a surname
};

/// The row of a country for a name set; null for a country that is none.
const PlaceRow *placeRow(const QString &country, const QString &nameSet);

} // namespace orl::demo
