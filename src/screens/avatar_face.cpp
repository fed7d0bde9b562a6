#include "screens/avatar_face.h"

#include "numbers/gradients.h"
#include "screens/gradient_ink.h"

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

} // namespace

AvatarFace avatarFace(const SMSSender &sender) {
    const GradientPair &pair = pairOf(sender.name);
    AvatarFace face;
    face.picture = sender.icon.value_or(QString());
    face.letters = sender.iconText.value_or(iconText(sender.name)).trimmed();
    face.light = colour(sender.light.value_or(pair.light));
    face.dark = colour(sender.dark.value_or(pair.dark));
    const GradientInk ink = gradientInk(face.light, face.dark, middleFrom, middleTo);
    face.ink = ink.text;
    face.veil = ink.veil;
    return face;
}

} // namespace orl
