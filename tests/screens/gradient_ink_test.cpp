#include "numbers/gradients.h"
#include "screens/gradient_ink.h"

#include <gtest/gtest.h>

using namespace orl;

namespace {

QColor veiled(const QColor &ground, const QColor &veil) {
    const float a = veil.alphaF();
    return QColor::fromRgbF(ground.redF() + (veil.redF() - ground.redF()) * a,
                            ground.greenF() + (veil.greenF() - ground.greenF()) * a,
                            ground.blueF() + (veil.blueF() - ground.blueF()) * a);
}

TEST(ContrastRatio, IsThatOfThePublishedFormula) {
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
    EXPECT_EQ(contrastRatio(Qt::red, Qt::red), 1);
}

TEST(GradientInk, ReachesTheContrastAtBothEndsOfEveryPair) {
    for (const GradientPair &pair : gradientPairs) {
        const QColor light(pair.light.red, pair.light.green, pair.light.blue);
        const QColor dark(pair.dark.red, pair.dark.green, pair.dark.blue);
        const GradientInk ink = gradientInk(light, dark, 0, 1);
        EXPECT_GE(contrastRatio(veiled(light, ink.veil), ink.text), 4.49) << pair.light.name().toStdString();
        EXPECT_GE(contrastRatio(veiled(dark, ink.veil), ink.text), 4.49) << pair.dark.name().toStdString();
    }
}

TEST(GradientInk, LeavesAReadableGroundAlone) {
    EXPECT_EQ(gradientInk(Qt::white, Qt::white, 0, 1).veil.alphaF(), 0);
    EXPECT_EQ(gradientInk(Qt::black, Qt::black, 0, 1).veil.alphaF(), 0);
    EXPECT_EQ(gradientInk(Qt::black, Qt::black, 0, 1).text, QColor(Qt::white));
}

} // namespace
