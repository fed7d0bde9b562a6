#include "orl/html/string_builder.h"

#include "checks.h"
#include "utf8.h"

namespace orl::html {

std::string StringBuilder::toString() const {
    std::size_t size = 0;
    for (const std::string &piece : pieces_)
        size += piece.size();
    std::string text;
    text.reserve(size);
    for (const std::string &piece : pieces_)
        text += piece;
    return text;
}

std::size_t StringBuilder::length() const {
    std::size_t length = 0;
    for (const std::string &piece : pieces_)
        length += core::countScalars(piece);
    return length;
}

StringBuilder &StringBuilder::appendCodePoint(char32_t scalar) {
    std::string text;
    core::appendScalar(text, scalar);
    return append(std::move(text));
}

StringBuilder &StringBuilder::appendCodePoint(int scalar) {
    if (scalar < 0 || scalar > 0x10ffff || (scalar >= 0xd800 && scalar <= 0xdfff))
        core::failArgument("Not a Unicode scalar");
    return appendCodePoint(char32_t(scalar));
}

StringBuilder &StringBuilder::appendCodePoints(std::span<const char32_t> scalars) {
    std::string text;
    for (const char32_t scalar : scalars)
        core::appendScalar(text, scalar);
    return append(std::move(text));
}

} // namespace orl::html
