#include "utf8.h"

#include "scan.h"

#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace orl::html::core {

namespace {

/// The length of the well-formed sequence at the start of `text`, or 0; `bad` is then the number of bytes
/// that one U+FFFD stands for.
unsigned sequence(std::string_view text, unsigned &bad) {
    const auto byte = [&text](std::size_t i) {
        return static_cast<unsigned char>(i < text.size() ? text[i] : 0);
    };
    const unsigned lead = byte(0);
    bad = 1;
    if (lead < 0x80) return 1;
    if (lead < 0xc2 || lead > 0xf4) return 0;
    const unsigned low = lead == 0xe0 ? 0xa0 : lead == 0xf0 ? 0x90 : 0x80;
    const unsigned high = lead == 0xed ? 0x9f : lead == 0xf4 ? 0x8f : 0xbf;
    if (byte(1) < low || byte(1) > high) return 0;
    const unsigned length = lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
    for (bad = 2; bad < length; ++bad) {
        if ((byte(bad) & 0xc0) != 0x80) return 0;
    }
    return length;
}

} // namespace

unsigned encode(char32_t scalar, char *out) {
    if (scalar < 0x80) {
        out[0] = char(scalar);
        return 1;
    }
    const unsigned length = scalar < 0x800 ? 2 : scalar < 0x10000 ? 3 : 4;
    for (unsigned i = length - 1; i > 0; --i, scalar >>= 6)
        out[i] = char(0x80 | (scalar & 0x3f));
    out[0] = char((0xf00 >> length) | scalar);
    return length;
}

void appendScalar(std::string &out, char32_t scalar) {
    char bytes[4];
    out.append(bytes, encode(scalar, bytes));
}

std::size_t validPrefix(std::string_view text) {
    std::size_t done = 0;
    unsigned bad;
    while (done < text.size()) {
        if (static_cast<unsigned char>(text[done]) < 0x80) {
            done += scan::asciiPrefix(text.substr(done));
            continue;
        }
        const unsigned length = sequence(text.substr(done), bad);
        if (!length) return done;
        done += length;
    }
    return done;
}

std::string repaired(std::string_view text) {
    std::string out;
    out.reserve(text.size() + text.size() / 8);
    unsigned bad;
    while (!text.empty()) {
        const std::size_t good = validPrefix(text);
        out.append(text.substr(0, good));
        text.remove_prefix(good);
        if (text.empty()) break;
        sequence(text, bad);
        appendScalar(out, replacementScalar);
        text.remove_prefix(bad);
    }
    return out;
}

std::size_t countScalars(std::string_view text) {
    std::size_t count = 0;
    for (const char c : text)
        count += (c & 0xc0) != 0x80;
    return count;
}

std::string lowerCase(std::string_view text) {
    std::string out(text);
    if (scan::asciiPrefix(text) == text.size()) {
        for (char &c : out) {
            if (c >= 'A' && c <= 'Z') c = char(c | 0x20);
        }
        return out;
    }
    auto wide = icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), int32_t(text.size())));
    out.clear();
    wide.toLower(icu::Locale::getRoot()).toUTF8String(out);
    return out;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty()) {
        const Scalar first = decode(text.data());
        if (!u_isUWhiteSpace(UChar32(first.value))) break;
        text.remove_prefix(first.size);
    }
    while (!text.empty()) {
        std::size_t start = text.size() - 1;
        while (start > 0 && (text[start] & 0xc0) == 0x80)
            --start;
        if (!u_isUWhiteSpace(UChar32(decode(text.data() + start).value))) break;
        text = text.substr(0, start);
    }
    return text;
}

bool isLetter(char32_t scalar) {
    if (scalar < 0x80) return (scalar | 0x20) >= 'a' && (scalar | 0x20) <= 'z';
    return u_isalpha(UChar32(scalar));
}

} // namespace orl::html::core
