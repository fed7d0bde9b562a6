#include "cli/qr_command.h"

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orl {
namespace {

struct Ran {
    ExitCode code;
    QStringList lines;
    QString notice;
};

Ran run(const QStringList &arguments) {
    Ran ran{};
    ran.code = runQrCommand(
        arguments, [&ran](const QString &line) { ran.lines << line; },
        [&ran](const QString &notice) { ran.notice += notice; });
    return ran;
}

/// What a reader of bar codes finds in a picture.
QString readBack(const QString &file) {
    QProcess reader;
    reader.start(QStringLiteral("zbarimg"),
                 {QStringLiteral("--quiet"), QStringLiteral("--raw"), QStringLiteral("-Sdisable"),
                  QStringLiteral("-Sqrcode.enable"), file});
    if (!reader.waitForFinished()) return reader.errorString();
    return QString::fromUtf8(reader.readAllStandardOutput()).chopped(1); // the line feed
}

/// The terminal's blocks as a picture, light on dark.
QImage drawn(const QStringList &lines) {
    constexpr int module = 4; // pixels
    QImage image(int(lines.front().size()) * module, int(lines.size()) * 2 * module,
                 QImage::Format_Grayscale8);
    image.fill(0);
    const auto put = [&image](int x, int y) {
        for (int dy = 0; dy < module; ++dy)
            for (int dx = 0; dx < module; ++dx)
                image.scanLine(y * module + dy)[x * module + dx] = 0xff;
    };
    for (int row = 0; row < lines.size(); ++row) {
        for (int x = 0; x < lines[row].size(); ++x) {
            const QChar block = lines[row][x];
            if (block == u'▀' || block == u'█') put(x, 2 * row);
            if (block == u'▄' || block == u'█') put(x, 2 * row + 1);
        }
    }
    return image;
}

const QStringList texts{QStringLiteral("x"), QStringLiteral("https://orl.example/?q=1&r=2"),
                        QStringLiteral("Ünïcødé 日本語 🙂"), QString(500, QLatin1Char('a')),
                        // A reader that guesses the encoding takes these for others.
                        QStringLiteral("Grüße aus Köln"), QStringLiteral("こんにちは世界")};

TEST(QrCommandTest, PictureReadsBack) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("code.png"));
    for (const QString &text : texts) {
        EXPECT_EQ(run({text, QStringLiteral("--png"), file}).code, ExitCode::Done);
        EXPECT_EQ(readBack(file), text) << text.toStdString();
    }
}

TEST(QrCommandTest, BlocksOfTheTerminalReadBack) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("blocks.png"));
    for (const QString &text : texts) {
        const Ran ran = run({text});
        ASSERT_EQ(ran.code, ExitCode::Done);
        ASSERT_TRUE(drawn(ran.lines).save(file));
        EXPECT_EQ(readBack(file), text) << text.toStdString();
    }
}

TEST(QrCommandTest, WrongUseIsToldInWords) {
    const QTemporaryDir folder;
    struct Case {
        const char *name;
        QStringList arguments;
        QString notice;
    };
    const QString usage = QStringLiteral("usage: orl-cli qr TEXT [--png FILE]");
    const Case cases[] = {
        {"no text", {}, usage},
        {"empty text", {QString()}, usage},
        {"two texts", {QStringLiteral("a"), QStringLiteral("b")}, usage},
        {"too long", {QString(2332, QLatin1Char('a'))}, QStringLiteral("the text is too long for a QR code")},
        {"no place",
         {QStringLiteral("a"), QStringLiteral("--png"), QStringLiteral("/nowhere/code.png")},
         QStringLiteral("cannot write /nowhere/code.png")},
        {"unknown option",
         {QStringLiteral("a"), QStringLiteral("--svg")},
         QStringLiteral("Unknown option 'svg'.")},
    };
    for (const Case &row : cases) {
        const Ran ran = run(row.arguments);
        EXPECT_EQ(ran.code, ExitCode::WrongUse) << row.name;
        EXPECT_EQ(ran.notice, row.notice) << row.name;
        EXPECT_TRUE(ran.lines.isEmpty()) << row.name;
    }
    EXPECT_EQ(run({QString(2331, QLatin1Char('a'))}).code, ExitCode::Done);
    EXPECT_EQ(run({QStringLiteral("--"), QStringLiteral("-dashed")}).code, ExitCode::Done);
}

} // namespace
} // namespace orl
