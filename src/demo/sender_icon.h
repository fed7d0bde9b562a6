#pragma once

#include <QByteArray>
#include <QString>

namespace orl::demo {

/// A JPEG of 128 x 128 pixels for the sender of this name: a symmetric mark on two colours. Needs no display.
QByteArray senderIcon(const QString &name);

} // namespace orl::demo
