#pragma once

#include <QString>
#include <QtGlobal>

#include <array>

namespace orl {

/// An opaque colour.
struct Color {
    quint8 red = 0;
    quint8 green = 0;
    quint8 blue = 0;

    QString name() const; ///< "#rrggbb"
    bool operator==(const Color &) const = default;
};
size_t qHash(const Color &color, size_t seed = 0) noexcept;

struct GradientPair {
    Color light;
    Color dark;
};

/// The colours of senders without a picture, handed out in this order and then from the start again.
inline constexpr std::array<GradientPair, 11> gradientPairs{{
    {{0xF7, 0xB4, 0x2C}, {0xFF, 0x4E, 0x00}},
    {{0xC5, 0xEE, 0x7C}, {0x67, 0xE3, 0x9D}},
    {{0x89, 0xF7, 0xFE}, {0x66, 0xA6, 0xFF}},
    {{0xFD, 0x9D, 0xAB}, {0xFE, 0x46, 0x8C}},
    {{0x51, 0xF7, 0xAB}, {0x45, 0xD5, 0xDF}},
    {{0x30, 0xCF, 0xD0}, {0x33, 0x08, 0x67}},
    {{0x6E, 0xE8, 0xF1}, {0x35, 0xA0, 0xF1}},
    {{0xFD, 0xC6, 0x8D}, {0xF8, 0x93, 0xF4}},
    {{0xF0, 0x93, 0xFB}, {0xF5, 0x57, 0x6C}},
    {{0xFE, 0xE1, 0x40}, {0xFA, 0x70, 0x9A}},
    {{0x66, 0x7E, 0xEA}, {0x76, 0x4B, 0xA2}},
}};

/// The index that follows, from the last pair back to the first.
constexpr int nextGradient(int index) {
    return index + 1 < static_cast<int>(gradientPairs.size()) ? index + 1 : 0;
}

/// Two letters for a sender without a picture: the name without blanks, filled up with blanks, its first two
/// characters as a reader counts them, in upper case.
QString iconText(const QString &senderName);

} // namespace orl
