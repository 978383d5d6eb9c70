#include "drive/told.h"

#include <gtest/gtest.h>

TEST(Told, TextsShowWhatDoesNotShow)
{
    EXPECT_EQ(drive::quoted(QStringLiteral("a \"b\"\r\n\t\\\u00A0\u0001")),
              QStringLiteral("\"a \\\"b\\\"\\r\\n\\t\\\\\\u{A0}\\u{1}\""));
}

TEST(Told, LongTextsTellWhereTheyDiffer)
{
    const QString expected(80, u'x');
    QString got = expected;
    got[70] = u'y';
    EXPECT_TRUE(drive::quotedAgainst(expected, got)
                    .endsWith(QStringLiteral("(80 characters; the first that differs is number 70)")));
    EXPECT_EQ(drive::quotedAgainst(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("\"b\""));
    EXPECT_TRUE(drive::quotedAgainst(expected, QString()).contains(QStringLiteral("number 0")));
}

TEST(Told, HexadecimalGoesBothWays)
{
    EXPECT_EQ(drive::bytesOfHexadecimal(QStringLiteral("FF fe 0A")), QByteArray::fromHex("fffe0a"));
    EXPECT_EQ(drive::hexadecimal(QByteArray::fromHex("fffe0a")), QStringLiteral("FFFE0A"));
    EXPECT_EQ(drive::bytesOfHexadecimal(QString()), QByteArray(""));
    EXPECT_FALSE(drive::bytesOfHexadecimal(QStringLiteral("F")));
    EXPECT_FALSE(drive::bytesOfHexadecimal(QStringLiteral("GG")));
}

TEST(Told, ColoursHaveRedInTheLowByte)
{
    EXPECT_EQ(drive::parseHashColour(QStringLiteral("#0102fF")), 0xFF0201U);
    EXPECT_FALSE(drive::parseHashColour(QStringLiteral("0102FF")));
    EXPECT_EQ(drive::parseTextColour(QStringLiteral("8388608")), 8388608U);
    EXPECT_EQ(drive::parseTextColour(QStringLiteral("default")), WindowTextColour);
    EXPECT_FALSE(drive::parseTextColour(QStringLiteral("red")));
}
