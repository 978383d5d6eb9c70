#include "insertion/modFontTags.h"

#include "insertion/modFonts.h"

#include <gtest/gtest.h>

TEST(PointSizes, eachStepHasItsNumberAndAStyleUnlessItIsExact)
{
    const auto styled = [](int number, int points) {
        return QStringLiteral(" size=%1 style=\"font-size: %2pt\"").arg(number).arg(points);
    };
    const QList<std::pair<int, QString>> rows{
        {6, styled(1, 6)},
        {7, QStringLiteral(" size=1")},
        {8, styled(2, 8)},
        {10, QStringLiteral(" size=2")},
        {11, styled(2, 11)},
        {12, QStringLiteral(" size=3")},
        {13, styled(3, 13)},
        {14, QStringLiteral(" size=4")},
        {15, styled(4, 15)},
        {16, styled(4, 16)},
        {17, styled(5, 17)},
        {18, QStringLiteral(" size=5")},
        {21, styled(5, 21)},
        {22, styled(6, 22)},
        {24, QStringLiteral(" size=6")},
        {30, styled(6, 30)},
        {31, styled(7, 31)},
        {36, QStringLiteral(" size=7")},
        {72, styled(7, 72)},
        {0, styled(1, 0)},
    };
    for (const auto &[points, attributes] : rows)
        EXPECT_EQ(pointSizeAttributes(points), attributes) << points;
}

TEST(Headings, sixLevelsBehindNone)
{
    EXPECT_EQ(headingNames().size(), 7);
    EXPECT_EQ(headingNames().constFirst(), QStringLiteral("Normal"));
    EXPECT_EQ(headingLevel(QStringLiteral("Normal")), 0);
    EXPECT_EQ(headingLevel(QStringLiteral("Heading 1")), 1);
    EXPECT_EQ(headingLevel(QStringLiteral("Heading 6")), 6);
    EXPECT_EQ(headingLevel(QStringLiteral("Heading 7")), 0);
}

TEST(Fonts, areNamedOnceAndWithoutTheirMakers)
{
    const QStringList families{QStringLiteral("Alpha [one]"), QStringLiteral("Alpha [two]"), QStringLiteral("Beta"),
                               QStringLiteral("Gamma[x]"), QStringLiteral("[y]")};
    EXPECT_EQ(fontNames(families), (QStringList{QStringLiteral("Alpha"), QStringLiteral("Beta"),
                                                QStringLiteral("Gamma[x]"), QStringLiteral("[y]")}));
    EXPECT_EQ(fontNames({}), QStringList());
}
