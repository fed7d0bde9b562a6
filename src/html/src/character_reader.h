// Moving through a text, scalar by scalar or run by run.
#pragma once

#include "scan.h"
#include "utf8.h"

#include <cstring>
#include <string>
#include <string_view>

namespace orl::html::core {

/// A copy of a text, well-formed and with the padding that scans need behind it.
class PaddedText {
public:
    explicit PaddedText(std::string_view text);
    std::string_view view() const { return {bytes_.data(), bytes_.size() - padding}; }

private:
    std::string bytes_;
};

/// Reads a well-formed UTF-8 text that is followed by `padding` zero bytes and outlives the reader; results
/// are views into it. Past the end every read gives `endOfInput`, which a page that holds that scalar cannot
/// be told from.
class CharacterReader {
public:
    static constexpr char32_t endOfInput = 0xffff;

    explicit CharacterReader(std::string_view input)
        : begin_(input.data()), end_(begin_ + input.size()), at_(begin_), mark_(begin_), countedTo_(begin_) {}

    /// Scalars before the current one.
    std::size_t getPos() const;
    bool isEmpty() const { return at_ >= end_; }

    char32_t current() const { return isEmpty() ? endOfInput : decode(at_).value; }
    char32_t consume();
    /// Goes back over one scalar.
    void unconsume();
    void advance() { consume(); }
    void markPos() { mark_ = at_; }
    void rewindToMark() { at_ = mark_; }

    std::string_view consumeAsString();
    /// Up to the first occurrence, or all the rest without one.
    std::string_view consumeTo(char stop);
    std::string_view consumeTo(std::string_view stop);
    std::string_view consumeToAny(std::string_view set);
    std::string_view consumeData() { return consumeUpTo(scan::to<'&', '<'>(at_)); }
    std::string_view consumeTagName() { return consumeWhileNot(TagNameEnd); }
    std::string_view consumeToEnd() { return consumeUpTo(end_); }
    std::string_view consumeLetterSequence();
    std::string_view consumeLetterThenDigitSequence();
    std::string_view consumeHexSequence() { return consumeWhile(HexByte); }
    std::string_view consumeDigitSequence() { return consumeWhile(DigitByte); }

    bool matches(char character) const { return !isEmpty() && *at_ == character; }
    bool matches(std::string_view text, bool ignoreCase = false) const;
    bool matchesAny(std::string_view set) const {
        return !isEmpty() && set.find(*at_) != std::string_view::npos;
    }
    bool matchesLetter() const;
    bool matchesDigit() const { return isClass(*at_, DigitByte); }
    bool matchConsume(char character);
    bool matchConsume(std::string_view text, bool ignoreCase = false);
    bool matchConsumeIgnoreCase(std::string_view text) { return matchConsume(text, true); }

    /// Where the rest of the input has `text`, null without; an exact search.
    const char *find(std::string_view text) const;
    /// Whether the rest has the text in lower case or in upper case; mixed case does not count.
    bool containsIgnoreCase(std::string_view text) const;

    // For whoever scans by itself.
    const char *at() const { return at_; }
    const char *end() const { return end_; }
    void moveTo(const char *place) { at_ = place; }
    std::string_view rest() const { return {at_, std::size_t(end_ - at_)}; }

    /// From here up to `stop`, which may lie in the padding.
    std::string_view consumeUpTo(const char *stop) {
        if (stop > end_) stop = end_;
        const std::string_view run(at_, std::size_t(stop - at_));
        at_ = stop;
        return run;
    }
    /// Up to the first byte of one of the classes; none of them has NUL unless the class has.
    std::string_view consumeWhileNot(unsigned classes);
    std::string_view consumeWhile(unsigned classes);

private:
    const char *begin_, *end_, *at_, *mark_;
    mutable const char *countedTo_;
    mutable std::size_t counted_ = 0;
};

inline char32_t CharacterReader::consume() {
    if (isEmpty()) return endOfInput;
    const Scalar scalar = decode(at_);
    at_ += scalar.size;
    return scalar.value;
}

inline std::string_view CharacterReader::consumeWhileNot(unsigned classes) {
    const char *p = at_;
    while (p < end_ && !isClass(*p, classes))
        ++p;
    return consumeUpTo(p);
}

inline std::string_view CharacterReader::consumeWhile(unsigned classes) {
    const char *p = at_;
    while (isClass(*p, classes))
        ++p;
    return consumeUpTo(p);
}

} // namespace orl::html::core
