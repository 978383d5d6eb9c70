#include "common/utf8.h"

#include <gtest/gtest.h>

namespace
{
constexpr char16_t high = 0xD83D;
constexpr char16_t low = 0xDE00;

TEST(Utf8, KnowsAHalfThatStandsAloneWhereverItStands)
{
    // Beside characters that differ from a half in one bit, and pairs.
    const QString others = QStringLiteral("\u5800\u9800\uF800\uC800\uD7FF\uE000\u0058\u00D8x");
    for (qsizetype length = 1; length <= 40; ++length) {
        for (qsizetype place = 0; place < length; ++place) {
            QString text = others.repeated(5).first(length);
            EXPECT_FALSE(hasLoneHalves(text));
            for (const char16_t half : {high, low}) {
                text[place] = half;
                EXPECT_TRUE(hasLoneHalves(text)) << length << ' ' << place;
                EXPECT_EQ(fromUtf8WithHalves(toUtf8WithHalves(text)), text) << length << ' ' << place;
            }
            text[place] = high;
            text.insert(place + 1, low);
            EXPECT_FALSE(hasLoneHalves(text)) << length << ' ' << place;
            EXPECT_EQ(toUtf8WithHalves(text), text.toUtf8()) << length << ' ' << place;
        }
    }
}

TEST(Utf8, WritesEachLoneHalfInThreeBytes)
{
    const QString text = QString(QChar(low)) + QChar(high) + u'a' + QChar(high) + QChar(low) + QChar(high);
    EXPECT_EQ(toUtf8WithHalves(text).toHex(' '), "ed b8 80 ed a0 bd 61 f0 9f 98 80 ed a0 bd");
    EXPECT_EQ(fromUtf8WithHalves(toUtf8WithHalves(text)), text);
    EXPECT_EQ(toUtf8WithHalves(QStringView()), QByteArray());
}
} // namespace
