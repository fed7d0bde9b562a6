#pragma once

#include <QByteArray>
#include <QString>

namespace orl::demo {

/// The bytes of a file of this name that came with a letter, true to its ending: png and jpg pictures, pdf,
/// csv, ics or plain text. The key draws what is in it. Needs no display.
QByteArray letterFile(const QString &name, quint64 key);

/// "742 B", "18.3 KB", "1.2 MB".
QString sizeInWords(qsizetype bytes);

} // namespace orl::demo
