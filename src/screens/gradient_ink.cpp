#include "screens/gradient_ink.h"

#include <algorithm>
#include <cmath>

namespace orl {

namespace {

constexpr double enough = 4.5;
constexpr int steps = 16;

double channel(double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &c) {
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
}

QColor mix(const QColor &a, const QColor &b, double share) {
    const auto part = [share](double x, double y) { return float(x + (y - x) * share); };
    return QColor::fromRgbF(part(a.redF(), b.redF()), part(a.greenF(), b.greenF()),
                            part(a.blueF(), b.blueF()));
}

/// The worst contrast of a text with the veiled gradient.
double worst(const QColor &light, const QColor &dark, double from, double to, const QColor &veil,
             double alpha, const QColor &text) {
    double least = 21;
    for (int i = 0; i <= steps; ++i) {
        const QColor ground = mix(mix(light, dark, from + (to - from) * i / steps), veil, alpha);
        least = std::min(least, contrastRatio(ground, text));
    }
    return least;
}

double neededAlpha(const QColor &light, const QColor &dark, double from, double to, const QColor &veil,
                   const QColor &text) {
    double alpha = 0;
    while (alpha < 1 && worst(light, dark, from, to, veil, alpha, text) < enough)
        alpha += 0.02;
    return std::min(alpha, 1.0);
}

QColor withAlpha(QColor colour, double alpha) {
    colour.setAlphaF(float(alpha));
    return colour;
}

} // namespace

double contrastRatio(const QColor &a, const QColor &b) {
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

GradientInk gradientInk(const QColor &light, const QColor &dark, double from, double to) {
    const QColor ink(0x14, 0x17, 0x1c);
    const QColor paper(Qt::white);
    const double whiteVeil = neededAlpha(light, dark, from, to, Qt::white, ink);
    const double blackVeil = neededAlpha(light, dark, from, to, Qt::black, paper);
    if (whiteVeil <= blackVeil) return {ink, withAlpha(Qt::white, whiteVeil)};
    return {paper, withAlpha(Qt::black, blackVeil)};
}

} // namespace orl
