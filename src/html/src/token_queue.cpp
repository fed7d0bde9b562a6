#include "token_queue.h"

#include "checks.h"
#include "utf8.h"

#include <algorithm>
#include <unicode/uchar.h>

namespace orl::html::core {

namespace {

constexpr char escape = '\\';
constexpr auto none = std::string_view::npos;

bool isWhitespace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r' && c != '\v');
}

bool isWordCharacter(char32_t c) {
    if (c < 0x80) return (c >= '0' && c <= '9') || isLetter(c);
    return U_GET_GC_MASK(UChar32(c)) & (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK);
}

} // namespace

TokenQueue::TokenQueue(std::string_view queue)
    : queue_(validPrefix(queue) == queue.size() ? std::string(queue) : repaired(queue)) {}

std::string_view TokenQueue::peek() const {
    return isEmpty() ? std::string_view() : rest().substr(0, decode(queue_.data() + pos_).size);
}

void TokenQueue::addFirst(std::string_view text) {
    queue_ = std::string(text).append(rest());
    pos_ = 0;
}

// ---- Looking

/// How much of what is left is the text, ignoring case; `none` if it is not next. The lengths may differ.
std::size_t TokenQueue::prefixLength(std::string_view text) const {
    std::string_view left = rest();
    while (!text.empty()) {
        if (left.empty()) return none;
        const Scalar have = decode(left.data());
        const Scalar want = decodeWithin(text.data(), text.data() + text.size());
        if (have.value != want.value && u_foldCase(UChar32(have.value), U_FOLD_CASE_DEFAULT) !=
                                            u_foldCase(UChar32(want.value), U_FOLD_CASE_DEFAULT))
            return none;
        left.remove_prefix(have.size);
        text.remove_prefix(want.size);
    }
    return rest().size() - left.size();
}

bool TokenQueue::matches(std::string_view text) const {
    return prefixLength(text) != none;
}

bool TokenQueue::matchesAny(std::initializer_list<std::string_view> texts) const {
    return std::ranges::any_of(texts, [this](std::string_view text) { return matches(text); });
}

bool TokenQueue::matchesAny(std::string_view characters) const {
    return !isEmpty() && characters.find(queue_[pos_]) != none;
}

bool TokenQueue::matchesStartTag() const {
    return rest().size() > 1 && queue_[pos_] == '<' && isLetter(decode(queue_.data() + pos_ + 1).value);
}

bool TokenQueue::matchChomp(std::string_view text) {
    const std::size_t length = prefixLength(text);
    if (length == none) return false;
    pos_ += length;
    return true;
}

bool TokenQueue::matchesWhitespace() const {
    return !isEmpty() && isWhitespace(queue_[pos_]);
}

bool TokenQueue::matchesWord() const {
    return !isEmpty() && isWordCharacter(decode(queue_.data() + pos_).value);
}

// ---- Taking

std::string TokenQueue::take(std::size_t length) {
    std::string taken = queue_.substr(pos_, length);
    pos_ += taken.size();
    return taken;
}

template<class Found>
std::string TokenQueue::takeUntil(Found found) {
    const std::size_t start = pos_;
    while (!isEmpty() && !found())
        advance();
    return queue_.substr(start, pos_ - start);
}

std::string TokenQueue::consume() {
    return take(peek().size());
}

void TokenQueue::consume(std::string_view text) {
    if (!matchChomp(text)) failArgument("Queue did not match expected sequence");
}

std::string TokenQueue::consumeTo(std::string_view text) {
    const std::size_t found = queue_.find(text, pos_);
    return take(found == none ? none : found - pos_);
}

std::string TokenQueue::consumeToIgnoreCase(std::string_view text) {
    return takeUntil([&] { return matches(text); });
}

std::string TokenQueue::consumeToAny(std::initializer_list<std::string_view> texts) {
    return takeUntil([&] { return matchesAny(texts); });
}

std::string TokenQueue::chompTo(std::string_view text) {
    std::string taken = consumeTo(text);
    matchChomp(text);
    return taken;
}

std::string TokenQueue::chompToIgnoreCase(std::string_view text) {
    std::string taken = consumeToIgnoreCase(text);
    matchChomp(text);
    return taken;
}

std::string TokenQueue::chompBalanced(char open, char close) {
    std::size_t start = none;
    int depth = 0;
    bool quoted = false;
    while (!isEmpty()) {
        const char c = queue_[pos_++];
        if (c == escape) {
            advance();
        } else if (c == '\'' || c == '"') {
            quoted = !quoted;
        } else if (!quoted && c == open) {
            if (depth++ == 0) start = pos_;
        } else if (!quoted && c == close && depth > 0 && --depth == 0) {
            return queue_.substr(start, pos_ - 1 - start);
        }
    }
    return {};
}

bool TokenQueue::consumeWhitespace() {
    const std::size_t start = pos_;
    while (matchesWhitespace())
        ++pos_;
    return pos_ > start;
}

/// Letters, digits and the given texts.
std::string TokenQueue::takeWord(std::initializer_list<std::string_view> alsoAllowed) {
    const std::size_t start = pos_;
    while (!isEmpty()) {
        const auto also = std::ranges::find_if(alsoAllowed, [this](auto text) { return matchesCS(text); });
        if (also != alsoAllowed.end())
            pos_ += also->size();
        else if (matchesWord())
            advance();
        else
            break;
    }
    return queue_.substr(start, pos_ - start);
}

std::string TokenQueue::consumeWord() {
    return takeWord({});
}

std::string TokenQueue::consumeTagName() {
    return takeWord({":", "_", "-"});
}

std::string TokenQueue::consumeElementSelector() {
    return takeWord({"*|", "|", "_", "-"});
}

std::string TokenQueue::consumeCssIdentifier() {
    return takeWord({"-", "_"});
}

std::string TokenQueue::consumeAttributeKey() {
    return takeWord({"-", "_", ":"});
}

std::string TokenQueue::remainder() {
    return take(none);
}

std::string TokenQueue::unescape(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == escape && i + 1 < text.size()) ++i;
        out += text[i];
    }
    return out;
}

} // namespace orl::html::core
