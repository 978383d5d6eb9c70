#include "widgets/contrast.h"

#include <gtest/gtest.h>

TEST(Contrast, IsCountedAsTheGuidelinesDo)
{
    EXPECT_DOUBLE_EQ(contrast(Qt::black, Qt::white), 21.0);
    EXPECT_DOUBLE_EQ(contrast(Qt::white, Qt::white), 1.0);
    EXPECT_NEAR(contrast(QColor(118, 118, 118), Qt::white), 4.54, 0.01); // the known limit of grey text on white
}

TEST(Contrast, MixesTwoColours)
{
    EXPECT_EQ(mixed(QColor(0, 100, 200), QColor(100, 0, 200), 0), QColor(0, 100, 200));
    EXPECT_EQ(mixed(QColor(0, 100, 200), QColor(100, 0, 200), 0.25), QColor(25, 75, 200));
    EXPECT_EQ(mixed(QColor(0, 100, 200), QColor(100, 0, 200), 1), QColor(100, 0, 200));
}

TEST(Contrast, MovesAColourNoFurtherThanItTakes)
{
    EXPECT_EQ(toldApart(Qt::yellow, Qt::white, {Qt::black}, 3), QColor(Qt::yellow));
    const QColor told = toldApart(QColor(20, 20, 20), Qt::white, {Qt::black, QColor(40, 40, 40)}, 3);
    EXPECT_GE(contrast(told, QColor(40, 40, 40)), 3);
    EXPECT_LT(contrast(told, QColor(40, 40, 40)), 4);
    EXPECT_EQ(toldApart(Qt::black, QColor(9, 9, 9), {Qt::black}, 3), QColor(9, 9, 9)); // all that can be done
}
