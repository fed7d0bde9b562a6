#include "cli/qr_command.h"

#include "identity/qr_code.h"

#include <QCommandLineParser>
#include <QImage>

namespace orl {

namespace {

constexpr const char *usage = R"(orl-cli qr TEXT [--png FILE]   a text as a QR code

  --png FILE                   a picture in FILE instead of blocks in the terminal

Terminals are taken to write light on dark. Put "--" before a text that begins with "-".
Exit code: 0 done, 2 wrong use.
)";

constexpr int quiet = 4; // modules around the code, as readers expect
constexpr int pixelsPerModule = 8;

/// Whether ink of the terminal, or paper of the picture, stands at a place; the quiet zone counts.
bool isLight(const QrCode &code, int x, int y) {
    const bool inside = x >= 0 && y >= 0 && x < code.side && y < code.side;
    return !inside || !code.isDark(x, y);
}

/// Two rows of modules in one line.
QString blocks(const QrCode &code, int top) {
    static constexpr char16_t half[] = {u' ', u'▄', u'▀', u'█'};
    QString line;
    for (int x = -quiet; x < code.side + quiet; ++x)
        line += half[(isLight(code, x, top) ? 2 : 0) + (isLight(code, x, top + 1) ? 1 : 0)];
    return line;
}

QImage picture(const QrCode &code) {
    const int side = code.side + 2 * quiet;
    QImage image(side, side, QImage::Format_Grayscale8);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            image.scanLine(y)[x] = isLight(code, x - quiet, y - quiet) ? 0xff : 0x00;
    return image.scaled(image.size() * pixelsPerModule);
}

} // namespace

ExitCode runQrCommand(const QStringList &arguments, const std::function<void(const QString &)> &result,
                      const std::function<void(const QString &)> &notice) {
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("png"), {}, QStringLiteral("FILE")},
                       {{QStringLiteral("help"), QStringLiteral("h")}, {}}});
    const auto wrong = [&notice](const QString &text) {
        notice(text);
        return ExitCode::WrongUse;
    };
    if (!parser.parse(QStringList{QString()} + arguments)) return wrong(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        result(QString::fromUtf8(usage).trimmed());
        return ExitCode::Done;
    }
    const QString text = parser.positionalArguments().value(0);
    if (parser.positionalArguments().size() != 1 || text.isEmpty())
        return wrong(QStringLiteral("usage: orl-cli qr TEXT [--png FILE]"));
    const std::optional<QrCode> code = qrCode(text);
    if (!code) return wrong(QStringLiteral("the text is too long for a QR code"));
    if (parser.isSet(QStringLiteral("png"))) {
        const QString file = parser.value(QStringLiteral("png"));
        if (!picture(*code).save(file, "PNG")) return wrong(QStringLiteral("cannot write %1").arg(file));
        return ExitCode::Done;
    }
    for (int top = -quiet; top < code->side + quiet; top += 2)
        result(blocks(*code, top));
    return ExitCode::Done;
}

} // namespace orl
