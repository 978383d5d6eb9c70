#include "frame/frmMdiBands.h"

#include <QList>
#include <gtest/gtest.h>

TEST(BandLayout, aFlagIsWrittenAsAWord)
{
    EXPECT_EQ(bands::flagText(true), QStringLiteral("True"));
    EXPECT_EQ(bands::flagText(false), QStringLiteral("False"));
}

TEST(BandLayout, aFlagIsReadAsAWordInAnyCaseOrAsANumber)
{
    const QList<std::pair<QString, std::optional<bool>>> rows{
        {QStringLiteral("True"), true}, {QStringLiteral("FALSE"), false}, {QStringLiteral("-1"), true},
        {QStringLiteral("0"), false},   {QString(), std::nullopt},        {QStringLiteral("yes"), std::nullopt},
        {QStringLiteral("2.5"), true},
    };
    for (const auto &[text, flag] : rows)
        EXPECT_EQ(bands::flagOf(text), flag) << text.toStdString();
}

TEST(BandLayout, aWidthComesBackAsItWasWritten)
{
    for (const double width : {120.0, 333.5, 1099.0})
        EXPECT_EQ(bands::widthOf(bands::widthText(width)), width);
}

TEST(BandLayout, whatIsNoWidthIsPassedOver)
{
    for (const char *text : {"", "wide", "0", "-40", "nan", "inf", "1e300"})
        EXPECT_EQ(bands::widthOf(QString::fromLatin1(text)), std::nullopt) << text;
}
