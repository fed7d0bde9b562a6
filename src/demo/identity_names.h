#pragma once

#include <QString>

namespace orl::demo {

/// The names of one name set in its script, as data. Entries stand between semicolons; all texts are UTF-8.
struct NameRow {
    const char *nameSet; ///< as addresses name it
    const char *country; ///< the only country that the row is for; null: every one without a row of its own
    const char *male;
    const char *female;
    const char *surnames; ///< "MALE/FEMALE" where the forms differ
    const char *format;   ///< "g" stands for the given name, "s" for the surname
};

/// The row of a name set in a country; null for a name set that is none.
const NameRow *nameRow(const QString &nameSet, const QString &country);

} // namespace orl::demo
