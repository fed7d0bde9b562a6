#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace orl {

/// The modules of a QR code, without a quiet zone.
struct QrCode {
    int side = 0;           ///< modules in a row; 21 to 177
    std::vector<bool> dark; ///< row by row

    bool isDark(int x, int y) const { return dark[std::size_t(y) * std::size_t(side) + std::size_t(x)]; }
};

/// The UTF-8 bytes of a text, with error correction M. Nothing for a text that no QR code can hold: of more
/// than 2331 bytes, in general.
std::optional<QrCode> qrCode(const QString &text);

} // namespace orl
