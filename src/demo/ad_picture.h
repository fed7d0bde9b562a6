#pragma once

#include <QByteArray>
#include <QString>

namespace orl::demo {

/// How many frames stand side by side in a picture of the shape "film".
inline constexpr int filmFrames = 20;

/// A JPEG for the ad of this name: "icon" (128 x 128), "wide" (1200 x 628), "tall" (720 x 1280) or "film" (a
/// strip of frames of 320 x 180); empty for any other shape. Hills below a sky of the ad's colour, without
/// letters; in a film the sun rises. Needs no display.
QByteArray adPicture(const QString &name, const QString &shape);

} // namespace orl::demo
