#include "widgets/mdiArrange.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace
{
class MdiArrangeTest : public testing::Test
{
protected:
    MdiArrangeTest()
    {
        area.resize(600, 400);
        area.show();
        for (int i = 0; i < 3; ++i) {
            windows.append(area.addSubWindow(new QWidget));
            windows.last()->showMaximized();
        }
        QApplication::processEvents();
        room = area.viewport()->size();
    }

    QMdiArea area;
    QList<QMdiSubWindow *> windows;
    QSize room;
};
} // namespace

TEST_F(MdiArrangeTest, horizontallyTheyLieBelowEachOther)
{
    arrangeWindows(area, MdiArrangement::TileHorizontally);
    int bottom = 0;
    for (const QMdiSubWindow *window : windows) {
        EXPECT_FALSE(window->isMaximized());
        EXPECT_EQ(window->width(), room.width());
        EXPECT_EQ(window->x(), 0);
        EXPECT_EQ(window->y(), bottom);
        bottom += window->height();
    }
    EXPECT_EQ(bottom, room.height());
}

TEST_F(MdiArrangeTest, verticallyTheyStandSideBySide)
{
    arrangeWindows(area, MdiArrangement::TileVertically);
    int right = 0;
    for (const QMdiSubWindow *window : windows) {
        EXPECT_EQ(window->height(), room.height());
        EXPECT_EQ(window->x(), right);
        right += window->width();
    }
    EXPECT_EQ(right, room.width());
}

TEST_F(MdiArrangeTest, cascadedTheyKeepTheActiveOne)
{
    area.setActiveSubWindow(windows[1]);
    arrangeWindows(area, MdiArrangement::Cascade);
    for (const QMdiSubWindow *window : windows)
        EXPECT_FALSE(window->isMaximized());
    EXPECT_EQ(area.activeSubWindow(), windows[1]);
    EXPECT_NE(windows[0]->pos(), windows[2]->pos());
    for (int number = 0; number < windows.size(); ++number)
        EXPECT_EQ(windows[number]->geometry(), usualPlace(area, number));
}

TEST_F(MdiArrangeTest, onlyMinimisedOnesAreLinedUpAlongTheBottom)
{
    arrangeWindows(area, MdiArrangement::TileVertically);
    const QRect kept = windows[0]->geometry();
    windows[1]->showMinimized();
    windows[2]->showMinimized();
    arrangeWindows(area, MdiArrangement::ArrangeIcons);
    EXPECT_EQ(windows[0]->geometry(), kept);
    EXPECT_EQ(windows[1]->geometry().bottom() + 1, room.height());
    EXPECT_EQ(windows[1]->x(), 0);
    EXPECT_EQ(windows[2]->geometry().bottom() + 1, room.height());
    EXPECT_EQ(windows[2]->x(), windows[1]->width());
}

TEST_F(MdiArrangeTest, anEmptyAreaIsNoMatter)
{
    QMdiArea empty;
    for (const auto arrangement : {MdiArrangement::TileHorizontally, MdiArrangement::TileVertically,
                                   MdiArrangement::Cascade, MdiArrangement::ArrangeIcons})
        arrangeWindows(empty, arrangement);
    EXPECT_TRUE(empty.subWindowList().isEmpty());
}

TEST_F(MdiArrangeTest, theUsualPlaceLeavesRoomToWriteInAndStaysInTheArea)
{
    for (int number = 0; number < 20; ++number) {
        const QRect place = usualPlace(area, number);
        EXPECT_EQ(place.size(), room * 3 / 4);
        EXPECT_TRUE(QRect(QPoint(), room).contains(place)) << number;
    }
    EXPECT_NE(usualPlace(area, 0).topLeft(), usualPlace(area, 1).topLeft());
}
