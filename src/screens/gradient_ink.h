#pragma once

#include <QColor>

namespace orl {

/// How a text on a gradient stays readable: its own colour, and a veil between gradient and text.
struct GradientInk {
    QColor text;
    QColor veil; ///< opaque black or white with the least alpha that is enough; alpha 0 where none is needed

    bool operator==(const GradientInk &) const = default;
};

/// The contrast ratio of two opaque colours, 1 to 21, as the accessibility guidelines for web content compute
/// it.
double contrastRatio(const QColor &a, const QColor &b);

/// The ink that reaches 4.5 to 1 everywhere between `from` and `to` (0 to 1, shares of the way from light to
/// dark), with the lighter veil of the two that dark and white text would need.
GradientInk gradientInk(const QColor &light, const QColor &dark, double from, double to);

} // namespace orl
