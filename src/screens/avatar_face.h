#pragma once

#include "numbers/records.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// What stands for a sender: a picture where there is one, and letters on a gradient where there is none or
/// it cannot be loaded.
struct AvatarFace {
    Q_GADGET
    QML_VALUE_TYPE(avatarFace)
    Q_PROPERTY(QString picture MEMBER picture CONSTANT)
    Q_PROPERTY(QString letters MEMBER letters CONSTANT)
    Q_PROPERTY(QColor light MEMBER light CONSTANT)
    Q_PROPERTY(QColor dark MEMBER dark CONSTANT)
    Q_PROPERTY(QColor ink MEMBER ink CONSTANT)
    Q_PROPERTY(QColor veil MEMBER veil CONSTANT)
public:
    QString picture; ///< a URL, or empty
    QString letters;
    QColor light;
    QColor dark;
    QColor ink;  ///< of the letters
    QColor veil; ///< between gradient and letters, see GradientInk

    bool operator==(const AvatarFace &) const = default;
};

AvatarFace avatarFace(const SMSSender &sender);

} // namespace orl
