#include "pictures/avifSize.h"

#include <gtest/gtest.h>

namespace
{
/// A number of so many bytes, the highest first.
QByteArray number(quint64 value, int bytes)
{
    QByteArray text;
    for (int byte = bytes - 1; byte >= 0; --byte)
        text.append(static_cast<char>(value >> (8 * byte)));
    return text;
}

QByteArray box(const char *kind, const QByteArray &content)
{
    return number(static_cast<quint64>(content.size()) + 8, 4) + kind + content;
}

QByteArray size(quint64 width, quint64 height)
{
    return box("ispe", number(0, 4) + number(width, 4) + number(height, 4));
}

QByteArray turned(char quarters)
{
    return box("irot", QByteArray(1, quarters));
}

const QByteArray Type = box("ftyp", "avif" + number(0, 4) + "mif1");
const QByteArray MainItem = box("pitm", number(0, 4) + number(1, 2));
const QByteArray OneProperty = box("ipma", number(0, 4) + number(1, 4) + number(1, 2) + "\x01\x01");
const QByteArray TwoProperties = box("ipma", number(0, 4) + number(1, 4) + number(1, 2) + "\x02\x01\x82");

QByteArray meta(const QByteArray &mainItem, const QByteArray &values, const QByteArray &associations)
{
    return box("meta", number(0, 4) + mainItem + box("iprp", box("ipco", values) + associations));
}

QByteArray picture(const QByteArray &values, const QByteArray &associations)
{
    return Type + meta(MainItem, values, associations) + box("mdat", "pixels");
}

// A picture of 60 by 40 as an encoder writes it.
TEST(AvifSize, IsReadFromAFileOfAnEncoder)
{
    const QByteArray file = QByteArray::fromHex(
        "00000020667479706176696600000000617669666d6966316d6961664d413141000000f26d657461000000000000002868646c72000000"
        "0000"
        "000000706963740000000000000000000000006c696261766966000000000e7069746d0000000000010000001e696c6f63000000004400"
        "0001"
        "0001000000010000011a000000220000002869696e660000000000010000001a696e6665020000000001000061763031436f6c6f720000"
        "0000"
        "6a697072700000004b6970636f0000001469737065000000000000003c00000028000000107069786900000000030808080000000c6176"
        "3143"
        "8120000000000013636f6c726e636c780001000d0006800000001769706d610000000000000001000104010283040000002a6d646174");
    EXPECT_EQ(avifSize(file), QSize(60, 40));
}

TEST(AvifSize, IsThatOfTheMainPicture)
{
    EXPECT_EQ(avifSize(picture(size(60, 40), OneProperty)), QSize(60, 40));
    // The first item is the main picture's thumbnail, and its size comes first, too.
    const QByteArray associations =
        box("ipma", number(0, 4) + number(2, 4) + number(7, 2) + "\x01\x01" + number(1, 2) + "\x01\x02");
    EXPECT_EQ(avifSize(picture(size(6, 4) + size(60, 40), associations)), QSize(60, 40));
}

TEST(AvifSize, IsTheOneThatABrowserShows)
{
    EXPECT_EQ(avifSize(picture(size(60, 40) + turned(1), TwoProperties)), QSize(40, 60));
    EXPECT_EQ(avifSize(picture(size(60, 40) + turned(2), TwoProperties)), QSize(60, 40));
    EXPECT_EQ(avifSize(picture(size(60, 40) + turned(3), TwoProperties)), QSize(40, 60));
}

TEST(AvifSize, IsReadInTheWideFormsOfTheHeader)
{
    const QByteArray mainItem = box("pitm", number(1, 1) + number(0, 3) + number(70'000, 4));
    const QByteArray associations =
        box("ipma", number(1, 1) + number(1, 3) + number(1, 4) + number(70'000, 4) + "\x01" + number(0x8001, 2));
    const QByteArray values = size(60, 40);
    EXPECT_EQ(avifSize(Type + meta(mainItem, values, associations)), QSize(60, 40));
    const QByteArray inner = number(0, 4) + MainItem + box("iprp", box("ipco", values) + OneProperty);
    const QByteArray wide = number(1, 4) + "meta" + number(static_cast<quint64>(inner.size()) + 16, 8) + inner;
    EXPECT_EQ(avifSize(Type + wide), QSize(60, 40));
    EXPECT_EQ(avifSize(Type + number(0, 4) + "meta" + inner), QSize(60, 40)) << "a box up to the end of the file";
    EXPECT_EQ(avifSize(box("ftyp", "mif1" + number(0, 4) + "miaf" + "avif") + wide), QSize(60, 40));
    EXPECT_EQ(avifSize(box("ftyp", "avis" + number(0, 4)) + wide), QSize(60, 40)) << "an animated one";
}

TEST(AvifSize, IsNotReadFromOtherFiles)
{
    EXPECT_EQ(avifSize({}), std::nullopt);
    EXPECT_EQ(avifSize("nothing that can be read"), std::nullopt);
    const QByteArray other = box("ftyp", "heic" + number(0, 4) + "mif1");
    EXPECT_EQ(avifSize(other + meta(MainItem, size(60, 40), OneProperty)), std::nullopt);
}

TEST(AvifSize, IsNotReadFromADamagedHeader)
{
    const QByteArray whole = picture(size(60, 40), OneProperty);
    for (qsizetype length = 0; length < whole.size() - box("mdat", "pixels").size(); ++length)
        EXPECT_EQ(avifSize(whole.first(length)), std::nullopt) << length;
    EXPECT_EQ(avifSize(picture(size(0, 40), OneProperty)), std::nullopt);
    EXPECT_EQ(avifSize(picture(size(60, 0x80000000), OneProperty)), std::nullopt);
    EXPECT_EQ(avifSize(picture(turned(1), OneProperty)), std::nullopt) << "no size at all";
    EXPECT_EQ(avifSize(picture(size(60, 40), TwoProperties)), QSize(60, 40)) << "a property that is not there";
    EXPECT_EQ(avifSize(picture(size(60, 40), box("ipma", number(0, 4) + number(0xffffffff, 4)))), std::nullopt);
    EXPECT_EQ(avifSize(Type + meta({}, size(60, 40), OneProperty)), std::nullopt) << "no main picture";
    EXPECT_EQ(avifSize(Type + number(4, 4) + "meta"), std::nullopt) << "a box that is shorter than its header";
    EXPECT_EQ(avifSize(Type + number(1, 4) + "meta" + number(~0ULL, 8)), std::nullopt) << "a lying length";
}
} // namespace
