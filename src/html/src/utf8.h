// UTF-8 text: the only form of text inside the engine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orl::html::core {

constexpr char32_t replacementScalar = 0xfffd;

/// One scalar and the number of bytes that it takes.
struct Scalar {
    char32_t value;
    unsigned size;
};

/// The scalar at `p`, which must be the start of a well-formed sequence.
inline Scalar decode(const char *p) {
    const auto byte = [p](int i) { return char32_t(static_cast<unsigned char>(p[i])); };
    if (byte(0) < 0x80) return {byte(0), 1};
    if (byte(0) < 0xe0) return {(byte(0) & 0x1f) << 6 | (byte(1) & 0x3f), 2};
    if (byte(0) < 0xf0) return {(byte(0) & 0x0f) << 12 | (byte(1) & 0x3f) << 6 | (byte(2) & 0x3f), 3};
    return {(byte(0) & 7) << 18 | (byte(1) & 0x3f) << 12 | (byte(2) & 0x3f) << 6 | (byte(3) & 0x3f), 4};
}

/// The same for a text that may be ill-formed: reads nothing past `end`, which is behind `p`.
inline Scalar decodeWithin(const char *p, const char *end) {
    const auto lead = static_cast<unsigned char>(*p);
    const unsigned size = lead < 0xc0 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
    if (lead < 0x80) return {lead, 1};
    if (size == 1 || size > static_cast<std::size_t>(end - p)) return {replacementScalar, 1};
    return decode(p);
}

/// Writes the scalar to `out`, which has room for four bytes; the number of bytes written.
unsigned encode(char32_t scalar, char *out);

void appendScalar(std::string &out, char32_t scalar);

/// How many bytes of `text` from its start are well-formed.
std::size_t validPrefix(std::string_view text);

/// The text with each ill-formed sequence replaced by U+FFFD, the way the Encoding Standard decodes.
std::string repaired(std::string_view text);

/// Scalars in a well-formed text.
std::size_t countScalars(std::string_view text);

/// Lower case of every scalar, independent of the language.
std::string lowerCase(std::string_view text);

/// The text without white space at either end, Unicode's included.
std::string_view trimmed(std::string_view text);

/// A letter of any script.
bool isLetter(char32_t scalar);

inline bool equalsIgnoringAsciiCase(std::string_view text, std::string_view lower) {
    if (text.size() != lower.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if ((c >= 'A' && c <= 'Z' ? char(c | 0x20) : c) != lower[i]) return false;
    }
    return true;
}

} // namespace orl::html::core
