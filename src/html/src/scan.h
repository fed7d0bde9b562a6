// Finding the next interesting byte of a page.
//
// Every scan stops at NUL too, and every page is followed by at least `padding` zero bytes, so that a scan
// needs no end: it reads whole vectors and stops in the padding at the latest. SSE2 is the baseline of x86-64
// and NEON that of 64-bit ARM; elsewhere plain loops do.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#elif defined(__ARM_NEON) && defined(__aarch64__)
#include <arm_neon.h>
#endif

namespace orl::html::core {

/// Zero bytes that follow every text that is scanned.
constexpr std::size_t padding = 64;

namespace scan {

#if defined(__SSE2__)

using Vector = __m128i;
constexpr unsigned bitsPerByte = 1;

inline Vector load(const char *p) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(p));
}
inline Vector equal(Vector a, Vector b) {
    return _mm_cmpeq_epi8(a, b);
}
inline Vector equal(Vector v, char c) {
    return equal(v, _mm_set1_epi8(c));
}
inline Vector atMost(Vector v, unsigned char c) {
    return _mm_cmpeq_epi8(_mm_min_epu8(v, _mm_set1_epi8(char(c))), v);
}
inline Vector minus(Vector v, unsigned char c) {
    return _mm_sub_epi8(v, _mm_set1_epi8(char(c)));
}
inline Vector either(Vector a, Vector b) {
    return _mm_or_si128(a, b);
}
inline Vector both(Vector a, Vector b) {
    return _mm_and_si128(a, b);
}
inline Vector larger(Vector a, Vector b) {
    return _mm_max_epu8(a, b);
}
inline Vector all(char c) {
    return _mm_set1_epi8(c);
}
inline void store(char *p, Vector v) {
    _mm_storeu_si128(reinterpret_cast<__m128i *>(p), v);
}
inline std::uint64_t mask(Vector v) {
    return std::uint64_t(_mm_movemask_epi8(v));
}
#define ORL_SCAN_VECTORS 1

#elif defined(__ARM_NEON) && defined(__aarch64__)

using Vector = uint8x16_t;
constexpr unsigned bitsPerByte = 4;

inline Vector load(const char *p) {
    return vld1q_u8(reinterpret_cast<const std::uint8_t *>(p));
}
inline Vector equal(Vector a, Vector b) {
    return vceqq_u8(a, b);
}
inline Vector equal(Vector v, char c) {
    return vceqq_u8(v, vdupq_n_u8(std::uint8_t(c)));
}
inline Vector atMost(Vector v, unsigned char c) {
    return vcleq_u8(v, vdupq_n_u8(c));
}
inline Vector minus(Vector v, unsigned char c) {
    return vsubq_u8(v, vdupq_n_u8(c));
}
inline Vector either(Vector a, Vector b) {
    return vorrq_u8(a, b);
}
inline Vector both(Vector a, Vector b) {
    return vandq_u8(a, b);
}
inline Vector larger(Vector a, Vector b) {
    return vmaxq_u8(a, b);
}
inline Vector all(char c) {
    return vdupq_n_u8(std::uint8_t(c));
}
inline void store(char *p, Vector v) {
    vst1q_u8(reinterpret_cast<std::uint8_t *>(p), v);
}
inline std::uint64_t mask(Vector v) {
    return vget_lane_u64(vreinterpret_u64_u8(vshrn_n_u16(vreinterpretq_u16_u8(v), 4)), 0);
}
#define ORL_SCAN_VECTORS 1

#endif

/// The first byte at or after `p` that is one of `Stops` or NUL.
template<char... Stops>
inline const char *to(const char *p) {
#ifdef ORL_SCAN_VECTORS
    for (;; p += 16) {
        const Vector v = load(p);
        Vector hit = equal(v, '\0');
        ((hit = either(hit, equal(v, Stops))), ...);
        if (const std::uint64_t bits = mask(hit)) return p + std::countr_zero(bits) / bitsPerByte;
    }
#else
    while (*p && !((*p == Stops) || ...))
        ++p;
    return p;
#endif
}

/// The first byte in [p, end) that escaping has to look at: "&", "<", a possible no-break space (0xC2), the
/// double quote in an attribute or ">" outside, and, where white space is to be normalised, a control or a
/// blank after white space. Reads nothing past `end`.
template<bool NormaliseWhite, bool InAttribute>
inline const char *toEscape(const char *p, const char *end) {
    constexpr char closer = InAttribute ? '"' : '>';
    const auto special = [](const char *q, bool afterWhite) {
        const char c = *q;
        if (NormaliseWhite && static_cast<unsigned char>(c) <= ' ') return c != ' ' || afterWhite;
        return c == '&' || c == '<' || c == closer || c == '\xc2';
    };
    if (p == end || special(p, true)) return p;
    ++p;
#ifdef ORL_SCAN_VECTORS
    for (; end - p >= 16; p += 16) {
        const Vector v = load(p);
        Vector hit = either(either(equal(v, '&'), equal(v, '<')), either(equal(v, closer), equal(v, '\xc2')));
        if constexpr (NormaliseWhite) {
            hit = either(hit, atMost(v, 0x1f));
            hit = either(hit, both(equal(v, ' '), atMost(load(p - 1), ' ')));
        }
        if (const std::uint64_t bits = mask(hit)) return p + std::countr_zero(bits) / bitsPerByte;
    }
#endif
    while (p != end && !special(p, static_cast<unsigned char>(p[-1]) <= ' '))
        ++p;
    return p;
}

/// The start of a tag or of an attribute: how long the name is, and whether it is all lower-case ASCII. Names
/// of 16 bytes and more are not measured: their length is 16, and they are not plain.
struct Name {
    std::size_t length;
    bool plain;
};

#ifdef ORL_SCAN_VECTORS

template<bool Attribute>
inline Name name(const char *p) {
    const Vector v = load(p);
    Vector end = either(atMost(v, ' '), equal(v, '/'));
    if constexpr (Attribute)
        end = either(either(end, atMost(minus(v, '<'), '>' - '<')), either(equal(v, '"'), equal(v, '\'')));
    else
        end = either(end, equal(v, '>'));
    const std::uint64_t ends = mask(end);
    if (!ends) return {16, false};
    const Vector odd = either(atMost(minus(v, 'A'), 'Z' - 'A'), atMost(minus(v, 0x80), 0x7f));
    const std::uint64_t before = (ends & -ends) - 1;
    return {std::size_t(std::countr_zero(ends)) / bitsPerByte, !(mask(odd) & before)};
}

#else

template<bool Attribute>
inline Name name(const char *p) {
    const auto isEnd = [](unsigned char c) {
        const bool more = Attribute ? (c >= '<' && c <= '>') || c == '"' || c == '\'' : c == '>';
        return c <= ' ' || c == '/' || more;
    };
    Name found{0, true};
    for (; found.length < 16; ++found.length) {
        const auto c = static_cast<unsigned char>(p[found.length]);
        if (isEnd(c)) return found;
        if (c >= 0x80 || (c >= 'A' && c <= 'Z')) found.plain = false;
    }
    return {16, false};
}

#endif

/// The length of the leading part of `text` that is plain ASCII, rounded down to whole vectors.
inline std::size_t asciiPrefix(std::string_view text) {
    std::size_t done = 0;
#if defined(__SSE2__)
    while (done + 64 <= text.size()) {
        const char *p = text.data() + done;
        if (mask(either(either(load(p), load(p + 16)), either(load(p + 32), load(p + 48))))) break;
        done += 64;
    }
#endif
    while (done < text.size() && static_cast<unsigned char>(text[done]) < 0x80)
        ++done;
    return done;
}

} // namespace scan

// Bytes by what the states of the tokeniser make of them.
enum ByteClass : std::uint8_t {
    WhiteByte = 1,        ///< tab, line feed, form feed, carriage return, blank
    TagNameEnd = 2,       ///< ends a tag name
    AttributeNameEnd = 4, ///< ends an attribute name, or needs a closer look inside one
    UnquotedEnd = 8,      ///< ends an unquoted value, or needs a closer look inside one
    LetterByte = 16,      ///< an ASCII letter
    UpperByte = 32,       ///< an upper-case ASCII letter
    DigitByte = 64,
    HexByte = 128,
};

extern const std::array<std::uint8_t, 256> byteClasses;

inline bool isClass(char c, unsigned classes) {
    return byteClasses[static_cast<unsigned char>(c)] & classes;
}
inline bool isWhite(char c) {
    return isClass(c, WhiteByte);
}

inline bool isAllWhite(std::string_view text) {
    for (const char c : text) {
        if (!isWhite(c)) return false;
    }
    return true;
}

} // namespace orl::html::core
