#include "screens/avatar_face.h"

#include "numbers/gradients.h"
#include "screens/gradient_ink.h"

#include <algorithm>

namespace orl {

namespace {

/// Letters stand in the middle of the disc; its rim may be as bright as it likes.
constexpr double middleFrom = 0.25;
constexpr double middleTo = 0.75;

QColor colour(const Color &c) {
    return QColor(c.red, c.green, c.blue);
}

/// The same sender without a picture always gets the same colours.
const GradientPair &pairOf(const QString &name) {
    size_t sum = 0;
    for (const QChar c : name)
        sum = sum * 31 + c.unicode();
    return gradientPairs[sum % gradientPairs.size()];
}

GradientInk inkOf(const QColor &light, const QColor &dark) {
    return gradientInk(light, dark, middleFrom, middleTo);
}

/// The inks of the gradient pairs, worked out once: lists ask for a face each time that they are refreshed.
GradientInk inkOf(const Color &light, const Color &dark) {
    static const auto inks = [] {
        std::array<GradientInk, gradientPairs.size()> all;
        std::transform(gradientPairs.begin(), gradientPairs.end(), all.begin(),
                       [](const GradientPair &pair) { return inkOf(colour(pair.light), colour(pair.dark)); });
        return all;
    }();
    const auto pair = std::find_if(gradientPairs.begin(), gradientPairs.end(), [&](const GradientPair &one) {
        return one.light == light && one.dark == dark;
    });
    if (pair == gradientPairs.end()) return inkOf(colour(light), colour(dark));
    return inks[size_t(pair - gradientPairs.begin())];
}

} // namespace

AvatarFace avatarFace(const SMSSender &sender) {
    const GradientPair &pair = pairOf(sender.name);
    AvatarFace face;
    face.picture = sender.icon.value_or(QString());
    face.letters = sender.iconText.value_or(iconText(sender.name)).trimmed();
    const Color light = sender.light.value_or(pair.light);
    const Color dark = sender.dark.value_or(pair.dark);
    face.light = colour(light);
    face.dark = colour(dark);
    const GradientInk ink = inkOf(light, dark);
    face.ink = ink.text;
    face.veil = ink.veil;
    return face;
}

} // namespace orl
