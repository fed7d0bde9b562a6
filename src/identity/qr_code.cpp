#include "identity/qr_code.h"

#include <qrcodegen/qrcodegen.hpp>

#include <algorithm>

namespace orl {

std::optional<QrCode> qrCode(const QString &text) {
    using qrcodegen::QrSegment;
    constexpr long utf8 = 26; // its number among the encodings of the QR standard
    const QByteArray bytes = text.toUtf8();
    std::vector<QrSegment> segments;
    const bool ascii = std::ranges::all_of(bytes, [](char c) { return uchar(c) < 0x80; });
    if (!ascii) segments.push_back(QrSegment::makeEci(utf8)); // readers guess otherwise, and wrongly
    segments.push_back(QrSegment::makeBytes({bytes.begin(), bytes.end()}));
    try {
        const auto code = qrcodegen::QrCode::encodeSegments(segments, qrcodegen::QrCode::Ecc::MEDIUM);
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
