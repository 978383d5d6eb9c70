#include "insertion/menuPreview.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
const QColor Bar(0x80, 0x80, 0xFF);
const QColor Box(0xC0, 0xC0, 0xC0);

MenuPicture picture()
{
    const auto str = [](const char *text) { return QString::fromUtf8(text); };
    return {.captions = {{str("Home"), {}}, {str("Products"), {str("Clocks"), str("Lamps")}}},
            .bar = Bar,
            .barText = Qt::black,
            .box = Box,
            .itemText = Qt::blue,
            .boxWidth = 120,
            .itemPadding = 0,
            .itemBlanks = true,
            .hand = true};
}

class MenuPreviewTest : public testing::Test
{
protected:
    MenuPreviewTest()
    {
        preview.setPicture(picture());
        preview.resize(400, 200);
        preview.show();
    }

    /// The colour right under the bar, at the right edge of a caption's box.
    QColor boxColour(int caption)
    {
        const QRect cell = preview.captionRect(caption);
        return preview.grab().toImage().pixelColor(cell.left() + 10 + 118, cell.bottom() + 8);
    }

    MenuPreview preview;
};
} // namespace

TEST_F(MenuPreviewTest, showsTheBoxOfTheOpenCaption)
{
    EXPECT_EQ(boxColour(1), QColor(Qt::white));
    preview.setOpen(1);
    EXPECT_EQ(boxColour(1), Box);
    preview.setOpen(0); // which has no items
    EXPECT_EQ(boxColour(0), QColor(Qt::white));
    EXPECT_EQ(preview.grab().toImage().pixelColor(390, 5), Bar);
}

// The list of a plain menu has nothing around its captions but their padding, 4 above and 8 beside; a table's cells
// have.
TEST_F(MenuPreviewTest, drawsAListWithoutTheRoomOfATable)
{
    const int line = preview.fontMetrics().height();
    EXPECT_EQ(preview.captionRect(0).topLeft(), QPoint(2, 2));
    EXPECT_EQ(preview.captionRect(0).height(), line + 2);
    MenuPicture plain = picture();
    plain.itemPadding = 4;
    preview.setPicture(plain);
    EXPECT_EQ(preview.captionRect(0).topLeft(), QPoint(0, 0));
    EXPECT_EQ(preview.captionRect(0).height(), line + 8);
    EXPECT_EQ(preview.captionRect(1).left(), preview.captionRect(0).right() + 1);
}

TEST_F(MenuPreviewTest, opensTheBoxUnderThePointerUntilItLeaves)
{
    const QPoint cell = preview.captionRect(1).center();
    QTest::mouseMove(&preview, cell);
    EXPECT_EQ(boxColour(1), Box);
    EXPECT_EQ(preview.cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseMove(&preview, preview.captionRect(1).bottomLeft() + QPoint(30, 15)); // in the box
    EXPECT_EQ(boxColour(1), Box);
    EXPECT_EQ(preview.cursor().shape(), Qt::ArrowCursor);
    QTest::mouseMove(&preview, {390, 190});
    EXPECT_EQ(boxColour(1), QColor(Qt::white));
    QTest::mouseMove(&preview, cell);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&preview, &leave);
    EXPECT_EQ(boxColour(1), QColor(Qt::white));
}

TEST_F(MenuPreviewTest, tellsWhatWasClicked)
{
    QSignalSpy captions(&preview, &MenuPreview::captionPicked);
    QSignalSpy items(&preview, &MenuPreview::itemPicked);
    const auto click = [this](const QPoint &at) { QTest::mouseClick(&preview, Qt::LeftButton, {}, at); };
    click(preview.captionRect(0).center());
    ASSERT_EQ(captions.size(), 1);
    EXPECT_EQ(captions[0][0].toInt(), 0);
    preview.setOpen(1);
    const int line = preview.fontMetrics().height();
    click(preview.captionRect(1).bottomLeft() + QPoint(30, line + line / 2 + 4));
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0], QVariantList({1, 1}));
    click({390, 190});
    EXPECT_EQ(captions.size() + items.size(), 2);
}

TEST_F(MenuPreviewTest, hasRoomForItsLongestBox)
{
    const int before = preview.sizeHint().height();
    MenuPicture more = picture();
    more.captions[1].items.append(QStringLiteral("a name that is far too long for a single line of the box"));
    preview.setPicture(more);
    EXPECT_GE(preview.sizeHint().height(), before + 3 * preview.fontMetrics().height());
    preview.setPicture({});
    preview.setOpen(3); // a caption that is not there
    preview.grab();
}
