#pragma once

#include <orl/html/export.h>

#include <string>
#include <string_view>

namespace orl::html {

class Attributes;

/// Whether names keep the case in which the page spells them.
class ORL_HTML_API ParseSettings {
public:
    /// As HTML wants it: names in lower case.
    static const ParseSettings htmlDefault;
    /// As XML wants it: names as they are written.
    static const ParseSettings preserveCase;

    constexpr ParseSettings(bool keepTagCase, bool keepAttributeCase)
        : preserveTagCase_(keepTagCase), preserveAttributeCase_(keepAttributeCase) {}

    constexpr bool preserveTagCase() const { return preserveTagCase_; }
    constexpr bool preserveAttributeCase() const { return preserveAttributeCase_; }

    /// The name without white space at its ends, and in lower case unless case is kept.
    std::string normalizeTag(std::string_view name) const;
    std::string normalizeAttribute(std::string_view name) const;

    /// Lowers all keys in place unless case is kept; the same list.
    Attributes &normalizeAttributes(Attributes &attributes) const;

    bool operator==(const ParseSettings &) const = default;

private:
    bool preserveTagCase_;
    bool preserveAttributeCase_;
};

inline constexpr ParseSettings ParseSettings::htmlDefault{false, false};
inline constexpr ParseSettings ParseSettings::preserveCase{true, true};

} // namespace orl::html
