#pragma once

#include <QString>

#include <ostream>

namespace orl {

/// A text as failures show it.
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << text.toStdString() << '"';
}

} // namespace orl
