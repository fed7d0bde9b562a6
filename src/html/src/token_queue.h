// A cursor over the text of a query.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace orl::html::core {

/// Characters are Unicode scalars; a letter or digit is what Unicode counts as letter, mark or number. What
/// ignores case does so for every script. "Consuming" moves the cursor past what it gives back; "chomping"
/// also past the text that ended it.
class TokenQueue {
public:
    explicit TokenQueue(std::string_view queue);

    bool isEmpty() const { return pos_ == queue_.size(); }
    /// The next character; "" at the end.
    std::string_view peek() const;
    /// Puts a text before what is left.
    void addFirst(std::string_view text);

    bool matches(std::string_view text) const; ///< ignoring case
    bool matchesCS(std::string_view text) const { return rest().starts_with(text); }
    bool matchesAny(std::initializer_list<std::string_view> texts) const;
    /// One of the ASCII characters in the text.
    bool matchesAny(std::string_view characters) const;
    bool matchesStartTag() const;
    /// Consumes the text if it is next.
    bool matchChomp(std::string_view text);
    bool matchesWhitespace() const;
    /// A letter or digit.
    bool matchesWord() const;

    void advance() { pos_ += peek().size(); }
    /// The next character; "" at the end.
    std::string consume();
    /// Fails with "Queue did not match expected sequence" if the text, ignoring case, is not next.
    void consume(std::string_view text);
    // Up to the text, or to the end without it.
    std::string consumeTo(std::string_view text);
    std::string consumeToIgnoreCase(std::string_view text);
    std::string consumeToAny(std::initializer_list<std::string_view> texts);
    std::string chompTo(std::string_view text);
    std::string chompToIgnoreCase(std::string_view text);
    /// From the next `open` to the `close` that belongs to it, without these two; "" if it does not come.
    /// They are ASCII. Neither counts between quotes or after a backslash.
    std::string chompBalanced(char open, char close);

    /// Whether there was any.
    bool consumeWhitespace();
    std::string consumeWord();
    std::string consumeTagName();
    std::string consumeElementSelector();
    std::string consumeCssIdentifier();
    std::string consumeAttributeKey();

    /// All that is left.
    std::string remainder();
    /// What is left, without consuming it.
    std::string toString() const { return std::string(rest()); }

    /// Without the backslashes that escape a character.
    static std::string unescape(std::string_view text);

private:
    std::string_view rest() const { return std::string_view(queue_).substr(pos_); }
    std::size_t prefixLength(std::string_view text) const;
    std::string take(std::size_t length);
    template<class Found>
    std::string takeUntil(Found found);
    std::string takeWord(std::initializer_list<std::string_view> alsoAllowed);

    std::string queue_;
    std::size_t pos_ = 0;
};

} // namespace orl::html::core
