#include "identity/qr_code.h"

#include <qrcodegen/qrcodegen.hpp>

namespace orl {

std::optional<QrCode> qrCode(const QString &text) {
    const QByteArray bytes = text.toUtf8();
    try {
        const auto code =
            qrcodegen::QrCode::encodeBinary({bytes.begin(), bytes.end()}, qrcodegen::QrCode::Ecc::MEDIUM);
        QrCode modules{code.getSize(), {}};
        modules.dark.reserve(std::size_t(modules.side) * std::size_t(modules.side));
        for (int y = 0; y < modules.side; ++y)
            for (int x = 0; x < modules.side; ++x)
                modules.dark.push_back(code.getModule(x, y));
        return modules;
    } catch (const qrcodegen::data_too_long &) {
        return std::nullopt;
    }
}

} // namespace orl
