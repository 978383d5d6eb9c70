#include "common/quickDigest.h"

#include <QByteArray>
#include <gtest/gtest.h>

namespace
{
TEST(QuickDigest, IsTheSameInPieces)
{
    const QByteArray bytes("an element, an attribute, a value");
    QuickDigest pieces;
    pieces.add(bytes.first(8));
    pieces.add(bytes.sliced(8, 16));
    pieces.add(bytes.sliced(24));
    EXPECT_EQ(pieces.value(), QuickDigest::of(bytes));
}

TEST(QuickDigest, IsAnotherOneForEveryBitThatDiffers)
{
    QByteArray bytes("an element, an attribute, a");
    const quint64 before = QuickDigest::of(bytes);
    for (qsizetype place = 0; place < bytes.size(); ++place)
        for (int bit = 0; bit < 8; ++bit) {
            bytes[place] = static_cast<char>(bytes[place] ^ (1 << bit));
            EXPECT_NE(QuickDigest::of(bytes), before) << place << ' ' << bit;
            bytes[place] = static_cast<char>(bytes[place] ^ (1 << bit));
        }
}

TEST(QuickDigest, KnowsOrderAndLength)
{
    EXPECT_NE(QuickDigest::of("one-----two-----"), QuickDigest::of("two-----one-----"));
    const QByteArray zeros(16, '\0');
    for (qsizetype length = 0; length < zeros.size(); ++length)
        EXPECT_NE(QuickDigest::of(zeros.first(length)), QuickDigest::of(zeros.first(length + 1))) << length;
}
} // namespace
