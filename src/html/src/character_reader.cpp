#include "character_reader.h"

#include <algorithm>

namespace orl::html::core {

namespace {

constexpr std::uint8_t classesOf(unsigned c) {
    std::uint8_t classes = 0;
    const bool white = c == '\t' || c == '\n' || c == '\f' || c == '\r' || c == ' ';
    const bool letter = (c | 0x20) >= 'a' && (c | 0x20) <= 'z' && c < 0x80;
    if (white) classes |= WhiteByte;
    if (white || c == '/' || c == '>' || c == 0) classes |= TagNameEnd;
    if (white || c == '/' || c == '=' || c == '>' || c == 0 || c == '"' || c == '\'' || c == '<')
        classes |= AttributeNameEnd;
    if (white || c == '&' || c == '>' || c == 0 || c == '"' || c == '\'' || c == '<' || c == '=' || c == '`')
        classes |= UnquotedEnd;
    if (letter) classes |= LetterByte;
    if (letter && c <= 'Z') classes |= UpperByte;
    if (c >= '0' && c <= '9') classes |= DigitByte | HexByte;
    if (letter && (c | 0x20) <= 'f') classes |= HexByte;
    return classes;
}

char upper(char c) {
    return c >= 'a' && c <= 'z' ? char(c - 0x20) : c;
}
char lower(char c) {
    return c >= 'A' && c <= 'Z' ? char(c + 0x20) : c;
}

} // namespace

constexpr std::array<std::uint8_t, 256> byteClasses = [] {
    std::array<std::uint8_t, 256> made{};
    for (unsigned c = 0; c < 256; ++c)
        made[c] = classesOf(c);
    return made;
}();

PaddedText::PaddedText(std::string_view text) {
    bytes_.reserve(text.size() + padding);
    if (validPrefix(text) == text.size())
        bytes_.assign(text);
    else
        bytes_ = repaired(text);
    bytes_.append(padding, '\0');
}

std::size_t CharacterReader::getPos() const {
    if (at_ < countedTo_) {
        countedTo_ = begin_;
        counted_ = 0;
    }
    counted_ += countScalars({countedTo_, std::size_t(at_ - countedTo_)});
    countedTo_ = at_;
    return counted_;
}

void CharacterReader::unconsume() {
    do
        --at_;
    while (at_ > begin_ && (*at_ & 0xc0) == 0x80);
}

std::string_view CharacterReader::consumeAsString() {
    const char *start = at_;
    consume();
    return {start, std::size_t(at_ - start)};
}

std::string_view CharacterReader::consumeTo(char stop) {
    if (isEmpty()) return {};
    const void *hit = std::memchr(at_, stop, std::size_t(end_ - at_));
    return consumeUpTo(hit ? static_cast<const char *>(hit) : end_);
}

std::string_view CharacterReader::consumeTo(std::string_view stop) {
    const char *hit = find(stop);
    return consumeUpTo(hit ? hit : end_);
}

std::string_view CharacterReader::consumeToAny(std::string_view set) {
    const char *p = at_;
    while (p < end_ && set.find(*p) == std::string_view::npos)
        ++p;
    return consumeUpTo(p);
}

std::string_view CharacterReader::consumeLetterSequence() {
    const char *p = at_;
    for (; p < end_;) {
        const Scalar scalar = decode(p);
        if (!isLetter(scalar.value)) break;
        p += scalar.size;
    }
    return consumeUpTo(p);
}

std::string_view CharacterReader::consumeLetterThenDigitSequence() {
    const char *start = at_;
    consumeLetterSequence();
    consumeDigitSequence();
    return {start, std::size_t(at_ - start)};
}

bool CharacterReader::matches(std::string_view text, bool ignoreCase) const {
    const std::string_view here = rest().substr(0, text.size());
    if (!ignoreCase) return here == text;
    return std::equal(here.begin(), here.end(), text.begin(), text.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

bool CharacterReader::matchesLetter() const {
    if (isEmpty()) return false;
    return static_cast<unsigned char>(*at_) < 0x80 ? isClass(*at_, LetterByte) : isLetter(decode(at_).value);
}

bool CharacterReader::matchConsume(char character) {
    if (!matches(character)) return false;
    ++at_;
    return true;
}

bool CharacterReader::matchConsume(std::string_view text, bool ignoreCase) {
    if (!matches(text, ignoreCase)) return false;
    at_ += text.size();
    return true;
}

const char *CharacterReader::find(std::string_view text) const {
    const std::size_t place = rest().find(text);
    return place == std::string_view::npos ? nullptr : at_ + place;
}

bool CharacterReader::containsIgnoreCase(std::string_view text) const {
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), lower);
    if (find(folded)) return true;
    std::transform(folded.begin(), folded.end(), folded.begin(), upper);
    return find(folded);
}

} // namespace orl::html::core
