#include "screens/appearance.h"

#include <QEvent>

#include <algorithm>

namespace orl {

void Appearance::setDark(bool dark) {
    if (dark_ == dark) return;
    dark_ = dark;
    Q_EMIT darkChanged();
}

void Appearance::setTextScale(double scale) {
    const double kept = std::clamp(scale, smallestTextScale, largestTextScale);
    if (textScale_ == kept) return;
    textScale_ = kept;
    Q_EMIT textScaleChanged();
}

void Appearance::setReducedMotion(bool reduced) {
    if (reducedMotion_ == reduced) return;
    reducedMotion_ = reduced;
    Q_EMIT reducedMotionChanged();
}

bool Appearance::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) setKeyboardInUse(true);
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin)
        setKeyboardInUse(false);
    return QObject::eventFilter(watched, event);
}

void Appearance::setKeyboardInUse(bool inUse) {
    if (keyboardInUse_ == inUse) return;
    keyboardInUse_ = inUse;
    Q_EMIT keyboardInUseChanged();
}

void Appearance::setRightToLeft(bool mirrored) {
    if (rightToLeft_ == mirrored) return;
    rightToLeft_ = mirrored;
    Q_EMIT rightToLeftChanged();
}

} // namespace orl
