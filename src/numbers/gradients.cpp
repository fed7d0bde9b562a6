#include "numbers/gradients.h"

#include <QHashFunctions>
#include <QTextBoundaryFinder>

namespace orl {

QString Color::name() const {
    const uint rgb = uint(red) << 16 | uint(green) << 8 | uint(blue);
    return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0'));
}

size_t qHash(const Color &color, size_t seed) noexcept {
    return qHashMulti(seed, color.red, color.green, color.blue);
}

QString iconText(const QString &senderName) {
    QString letters = senderName;
    letters.remove(QLatin1Char(' '));
    // What a reader takes for one character, such as a flag, may be several code points. Two blanks more
    // change nothing where there are two characters already.
    letters += QStringLiteral("  ");
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, letters);
    characters.toNextBoundary();
    const qsizetype end = characters.toNextBoundary();
    return letters.left(end).toUpper();
}

} // namespace orl
