#pragma once

#include <vector>

namespace orl::demo {

/// One country of the demo host, as data. All texts are UTF-8.
struct CountryRow {
    const char *name; ///< as in the local catalogue
    const char
        *pageName;    ///< as the first website writes it; contains the name of exactly one catalogue country
    const char *slug; ///< last path segment of its number list on the first website
    const char *secondPath; ///< first path segment on the second website, empty if that one does not know it
    const char *icon;
    const char *continent;
    const char *languages;      ///< codes between blanks; the first is the one most messages are written in
    const char *numberPatterns; ///< between semicolons; "#" stands for any digit
};

const std::vector<CountryRow> &countryTable();

} // namespace orl::demo
