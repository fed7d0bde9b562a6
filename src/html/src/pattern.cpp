#include "orl/html/pattern.h"

#include "orl/html/exception.h"
#include "pattern_search.h"

#include <cstdint>
#include <unicode/regex.h>
#include <unicode/unistr.h>
#include <utility>
#include <vector>

namespace orl::html {

struct Pattern::Compiled {
    explicit Compiled(std::unique_ptr<const icu::RegexPattern> pattern) : regex(std::move(pattern)) {}

    std::unique_ptr<const icu::RegexPattern> regex;
};

namespace {

constexpr std::int32_t timeLimit = 2000; ///< steps of the engine, of about a third of a millisecond each
constexpr std::int32_t stackLimit = std::int32_t(64) << 20; ///< bytes

icu::UnicodeString wide(std::string_view text) {
    return icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), std::int32_t(text.size())));
}

[[noreturn]] void failOnMatch(const std::string &pattern, UErrorCode status) {
    const char *what = status == U_REGEX_TIME_OUT         ? "Pattern takes too long to match: "
                       : status == U_REGEX_STACK_OVERFLOW ? "Pattern takes too much memory to match: "
                                                          : "Pattern cannot be matched: ";
    throw Exception::Error(ExceptionType::IllegalArgumentException, what + pattern);
}

/// The text must outlive the matcher.
std::unique_ptr<icu::RegexMatcher> startMatching(const Pattern &pattern, const icu::RegexPattern &regex,
                                                 const icu::UnicodeString &text) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::RegexMatcher> matcher(regex.matcher(text, status));
    if (U_SUCCESS(status)) matcher->setTimeLimit(timeLimit, status);
    if (U_SUCCESS(status)) matcher->setStackLimit(stackLimit, status);
    if (U_FAILURE(status)) failOnMatch(pattern.pattern(), status);
    return matcher;
}

bool findNext(const Pattern &pattern, icu::RegexMatcher &matcher) {
    UErrorCode status = U_ZERO_ERROR;
    const bool found = matcher.find(status);
    if (U_FAILURE(status)) failOnMatch(pattern.pattern(), status);
    return found;
}

} // namespace

// ---- Pattern

Pattern::Pattern(std::string_view text) : pattern_(text) {
    UErrorCode status = U_ZERO_ERROR;
    UParseError where;
    std::unique_ptr<const icu::RegexPattern> regex(icu::RegexPattern::compile(wide(text), 0, where, status));
    if (U_SUCCESS(status)) compiled_ = std::make_shared<Compiled>(std::move(regex));
}

Pattern Pattern::compile(std::string_view text) {
    return Pattern(text);
}

void Pattern::validate() const {
    if (!compiled_)
        throw Exception::Error(ExceptionType::SelectorParseException, "Pattern syntax error: " + pattern_);
}

Matcher Pattern::matcher(std::string_view in) const {
    return Matcher(*this, in);
}

bool Pattern::isFoundIn(std::string_view text) const {
    return core::PatternSearch(*this).isFoundIn(text);
}

// ---- Matcher

struct Matcher::Matches {
    struct Range {
        std::int32_t start, end;
    };

    icu::UnicodeString text;
    std::size_t groups = 0; ///< of each match, the whole one included
    std::vector<Range> ranges;
};

Matcher::Matcher(const Pattern &pattern, std::string_view text) : matches_(std::make_unique<Matches>()) {
    pattern.validate();
    Matches &all = *matches_;
    all.text = wide(text);
    const auto matcher = startMatching(pattern, *pattern.compiled_->regex, all.text);
    all.groups = std::size_t(matcher->groupCount()) + 1;
    while (findNext(pattern, *matcher)) {
        UErrorCode status = U_ZERO_ERROR;
        for (std::int32_t group = 0; group < std::int32_t(all.groups); ++group)
            all.ranges.push_back({matcher->start(group, status), matcher->end(group, status)});
    }
}

Matcher::Matcher(Matcher &&) noexcept = default;
Matcher &Matcher::operator=(Matcher &&) noexcept = default;
Matcher::~Matcher() = default;

bool Matcher::find() {
    if (index_ < std::ptrdiff_t(count())) ++index_;
    return index_ < std::ptrdiff_t(count());
}

std::optional<std::string> Matcher::group(int number) const {
    const bool isOnMatch = index_ >= 0 && index_ < std::ptrdiff_t(count());
    if (!isOnMatch || number < 0 || std::size_t(number) >= matches_->groups) return {};
    const auto range = matches_->ranges[std::size_t(index_) * matches_->groups + std::size_t(number)];
    if (range.start < 0) return {};
    std::string text;
    matches_->text.tempSubStringBetween(range.start, range.end).toUTF8String(text);
    return text;
}

std::size_t Matcher::count() const {
    return matches_->groups == 0 ? 0 : matches_->ranges.size() / matches_->groups;
}

// ---- PatternSearch

namespace core {

struct PatternSearch::State {
    icu::UnicodeString text;
    std::unique_ptr<icu::RegexMatcher> matcher;
};

PatternSearch::PatternSearch(const Pattern &pattern) : pattern_(pattern), state_(std::make_unique<State>()) {}

PatternSearch::~PatternSearch() = default;

bool PatternSearch::isFoundIn(std::string_view text) {
    state_->text = wide(text);
    if (state_->matcher) {
        state_->matcher->reset(state_->text);
    } else {
        pattern_.validate();
        state_->matcher = startMatching(pattern_, *pattern_.compiled_->regex, state_->text);
    }
    return findNext(pattern_, *state_->matcher);
}

} // namespace core
} // namespace orl::html
