#include "screens/qr_code_generator_view.h"

#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orl {
namespace {

/// The tile drawn over a dark ground, which shows through its holes.
QImage drawn(const QString &content, double side, double radius = 12, double scale = 1) {
    QRCodeGeneratorView tile;
    tile.setContent(content);
    tile.setColor(QColor(0xf4, 0xf5, 0xf7));
    tile.setSide(side);
    tile.setCornerRadius(radius);
    const int pixels = int(side * scale);
    QImage layer(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    tile.paint(&painter);
    return layer;
}

QImage over(const QImage &tile, const QColor &ground) {
    QImage image(tile.size() + QSize(40, 40), QImage::Format_RGB32);
    image.fill(ground);
    QPainter(&image).drawImage(20, 20, tile);
    return image;
}

QString readBack(const QImage &picture) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("picture.png"));
    picture.save(file);
    QProcess reader;
    reader.start(QStringLiteral("zbarimg"),
                 {QStringLiteral("--quiet"), QStringLiteral("--raw"), QStringLiteral("-Sdisable"),
                  QStringLiteral("-Sqrcode.enable"), file});
    if (!reader.waitForFinished()) return reader.errorString();
    return QString::fromUtf8(reader.readAllStandardOutput()).chopped(1);
}

int pixelsWith(const QImage &image, int alpha) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) == alpha;
    return count;
}

} // namespace

TEST(GeneratorManagerTest, OnePixelAModuleInTheTwoColours) {
    const QImage image = GeneratorManager().generateQRImage(QStringLiteral("x"), Qt::yellow, Qt::blue);
    EXPECT_EQ(image.size(), QSize(23, 23)); // 21 and a margin of 1
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::yellow));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::blue)) << "the corner of a finder pattern";
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::yellow));
}

TEST(QRCodeGeneratorViewTest, DrawnTileReadsBackAtEverySize) {
    struct Case {
        const char *name;
        QString text;
        double side;
        double scale;
    };
    const Case cases[] = {
        {"small", QStringLiteral("orl"), 64, 1},
        {"odd size", QStringLiteral("https://orl.example/a?b=c"), 117, 1},
        {"fraction of a point", QStringLiteral("https://orl.example/a?b=c"), 131.5, 1.25},
        {"dense screen", QStringLiteral("https://orl.example/a?b=c"), 96, 3},
        {"letters of other scripts", QStringLiteral("Ελένη 日本語 🙂"), 200, 1},
        {"a few letters of another script", QStringLiteral("Ελένη"), 100, 1},
        {"long", QString(300, QLatin1Char('z')), 320, 2},
    };
    for (const Case &row : cases)
        EXPECT_EQ(readBack(over(drawn(row.text, row.side, 12, row.scale), QColor(0x14, 0x17, 0x1c))),
                  row.text)
            << row.name;
}

TEST(QRCodeGeneratorViewTest, ModulesAreHolesWithSharpEdges) {
    const QImage tile = drawn(QStringLiteral("orl"), 117, 0, 1);
    EXPECT_EQ(pixelsWith(tile, 0) + pixelsWith(tile, 255), tile.width() * tile.height())
        << "whole tile or nothing of it";
    EXPECT_GT(pixelsWith(tile, 0), 117 * 117 / 5);
    EXPECT_EQ(qAlpha(tile.pixel(1, 58)), 255) << "the code begins two points from the edge";
}

TEST(QRCodeGeneratorViewTest, WithoutATextOrRoomTheTileIsWhole) {
    EXPECT_EQ(pixelsWith(drawn({}, 80, 0), 255), 80 * 80);
    EXPECT_EQ(pixelsWith(drawn(QStringLiteral("orl"), 3, 0), 255), 3 * 3);
}

TEST(QRCodeGeneratorViewTest, TextThatNoCodeHoldsShowsACross) {
    const QImage tile = drawn(QString(3000, QLatin1Char('a')), 100, 0);
    const int holes = pixelsWith(tile, 0);
    EXPECT_GT(holes, 50);
    EXPECT_LT(holes, 3000);
}

TEST(QRCodeGeneratorViewTest, CornersBendContinuously) {
    const QImage tile = drawn({}, 200, 50);
    EXPECT_EQ(qAlpha(tile.pixel(2, 2)), 0);
    EXPECT_EQ(qAlpha(tile.pixel(100, 0)), 255);
    EXPECT_EQ(qAlpha(tile.pixel(20, 20)), 255);
    // A circle of this radius would leave the edge at 50; the bend begins earlier.
    EXPECT_LT(qAlpha(tile.pixel(55, 0)), 255);
}

} // namespace orl
