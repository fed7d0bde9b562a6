#include "screens/pictures.h"

#include <QBuffer>
#include <QColor>

#include <gtest/gtest.h>

using namespace orl;

namespace {

QByteArray encoded(const QSize &size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

TEST(DiscOf, FillsADiscAndLeavesTheCornersClear) {
    const QImage disc = discOf(encoded({30, 90}), 40);
    ASSERT_EQ(disc.size(), QSize(40, 40));
    EXPECT_EQ(disc.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_EQ(disc.pixelColor(20, 1), QColor(Qt::red));
    EXPECT_EQ(disc.pixelColor(0, 0).alpha(), 0);
}

TEST(DiscOf, GivesNothingForWhatIsNoPictureOrTooLarge) {
    EXPECT_TRUE(discOf("<html>not found</html>", 40).isNull());
    EXPECT_TRUE(discOf({}, 40).isNull());
    EXPECT_TRUE(discOf(encoded({5000, 1}), 40).isNull());
}

TEST(SymbolImages, WearTheColourThatIsAskedFor) {
    SymbolImages symbols;
    const QImage image = symbols.requestImage(QStringLiteral("x-circle-fill/#4656d6"), nullptr, {40, 40});
    EXPECT_EQ(image.pixelColor(20, 5), QColor(0x46, 0x56, 0xd6));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
}

TEST(FlagImages, AreThereForTheCatalogueAndNeutralForOthers) {
    FlagImages flags;
    const QImage japan = flags.requestImage(QStringLiteral("jp"), nullptr, {40, 30});
    EXPECT_GT(japan.pixelColor(20, 15).red(), 150);
    EXPECT_LT(japan.pixelColor(20, 15).green(), 80);
    EXPECT_GT(flags.requestImage(QStringLiteral("zz"), nullptr, {40, 30}).pixelColor(20, 15).alpha(), 0);
}

} // namespace
