#pragma once

#include <orl/html/export.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace orl::html {

class Matcher;

namespace core {
class PatternSearch;
} // namespace core

/// A regular expression in ICU's syntax, which has that of all common engines in it. Copies share the
/// compiled form, which any number of threads may use at once.
///
/// Expressions come from outside the program, so matching is bounded in time and memory: a match that takes
/// more than about a second or 64 MB fails with Exception::Error of type IllegalArgumentException.
class ORL_HTML_API Pattern {
public:
    /// Keeps the text even if it is no regular expression: validate() and every attempt to match tell.
    static Pattern compile(std::string_view text);

    /// Fails with "Pattern syntax error: " and the text, of type SelectorParseException.
    void validate() const;

    /// All matches in the text.
    Matcher matcher(std::string_view in) const;
    /// Whether there is any.
    bool isFoundIn(std::string_view text) const;

    const std::string &pattern() const { return pattern_; }
    const std::string &toString() const { return pattern_; }

private:
    friend class Matcher;
    friend class core::PatternSearch;
    struct Compiled;

    explicit Pattern(std::string_view text);

    std::string pattern_;
    std::shared_ptr<const Compiled> compiled_; ///< null if the text is no regular expression
};

/// The matches of a pattern in a text, one after the other; all of them are found when the matcher is made.
class ORL_HTML_API Matcher {
public:
    Matcher(const Pattern &pattern, std::string_view text);
    Matcher(Matcher &&) noexcept;
    Matcher &operator=(Matcher &&) noexcept;
    ~Matcher();

    /// Goes on to the next match, the first one at first. False when there is none.
    bool find();
    /// What the group took of the text in the match at hand, counted from 1 with 0 for the whole; nothing for
    /// a group that took no part, and before the first and after the last match.
    std::optional<std::string> group(int number) const;
    std::optional<std::string> group() const { return group(0); }
    std::size_t count() const;

private:
    struct Matches;

    std::unique_ptr<Matches> matches_;
    std::ptrdiff_t index_ = -1;
};

} // namespace orl::html
