#pragma once

#include <orl/html/export.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

class OutputSettings;

/// One name of a character reference, without "&" and ";".
struct ORL_HTML_API NamedCodepoint {
    char32_t scalar;
    std::string_view name;

    bool operator==(const NamedCodepoint &) const = default;
};

/// The named characters of HTML, and the escaping and unescaping of text with them.
class ORL_HTML_API Entities {
public:
    /// A set of names that escaping may use. The three sets exist once in the process; each is loaded when it
    /// is first looked into and may then be read from any thread.
    class ORL_HTML_API EscapeMode {
    public:
        /// The four names of XML.
        static const EscapeMode &xhtml();
        /// The 106 names that references may spell without a semicolon.
        static const EscapeMode &base();
        /// All 2125 published names.
        static const EscapeMode &extended();

        EscapeMode(const EscapeMode &) = delete;
        EscapeMode &operator=(const EscapeMode &) = delete;

        int value() const { return value_; }

        /// The compact text from which the set is loaded.
        std::string_view tableText() const;

        /// Sorted by name, upper case first.
        const std::vector<NamedCodepoint> &entitiesByName() const;
        /// Sorted by scalar, then by name.
        const std::vector<NamedCodepoint> &entitiesByCodepoint() const;

        /// For a name of two scalars, the first of them.
        std::optional<char32_t> codepointForName(std::string_view name) const;

        /// The last of the names of this scalar, so that "amp" is preferred to "AMP"; "" without any. A name
        /// of two scalars counts as one of its first: with the `extended` names and an encoding that lacks
        /// it, U+228A is printed as "&vsubne;", which reads as U+228A and U+FE00.
        std::string_view nameForCodepoint(char32_t scalar) const;

    private:
        friend class Entities;
        struct Tables;

        explicit EscapeMode(int value) : value_(value) {}
        const Tables &tables() const;

        int value_;
    };

    static bool isNamedEntity(std::string_view name);
    static bool isBaseNamedEntity(std::string_view name);

    /// The text that a name stands for, one scalar or two; "" for an unknown name.
    static std::string getCharacterByName(std::string_view name);
    static std::string getByName(std::string_view name) { return getCharacterByName(name); }

    /// Writes the scalars of a name into `into`; their number, 0 for an unknown name.
    static std::size_t codepointsForName(std::string_view name, std::array<char32_t, 2> &into);

    /// Escapes for the space between tags, in UTF-8 and with the `base` names.
    static std::string escape(std::string_view text);
    static std::string escape(std::string_view text, const OutputSettings &settings);
    /// Appends to `accum`. With `normaliseWhite` runs of white space become one blank, and with
    /// `stripLeadingWhite` the run at the start becomes nothing.
    static void escape(std::string &accum, std::string_view text, const OutputSettings &settings,
                       bool inAttribute = false, bool normaliseWhite = false, bool stripLeadingWhite = false);

    /// Resolves references as they are between tags or, when `strict`, as they are in attribute values.
    static std::string unescape(std::string_view text, bool strict = false);
};

} // namespace orl::html
