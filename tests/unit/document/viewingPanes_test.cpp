#include "document/viewingPanes.h"
#include "widgets/tabStrip.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
struct SplitRow {
    QSize inside;
    double share;
    int upper; ///< height
    int lower;
};

// 40 twips are 2.67 pixels, which each height is rounded with; the gap is 30 twips.
TEST(PanePlaces, SplitThreeToOneUnlessToldOtherwise)
{
    const SplitRow rows[] = {
        {{800, 600}, 0.75, 447, 147}, // 450 - 2.67, 150 - 2.67
        {{521, 624}, 0.75, 465, 153}, // 468 - 2.67, 156 - 2.67
        {{300, 602}, 0.75, 449, 148}, // 451.5 - 2.67, 150.5 - 2.67
        {{800, 600}, 0.5, 297, 297},  {{800, 3}, 0.75, 0, 0},
    };
    for (const SplitRow &row : rows) {
        const PanePlaces places = splitPlaces(row.inside, row.share);
        EXPECT_EQ(places.panes[0], QRect(0, 0, row.inside.width(), row.upper)) << row.inside.height();
        EXPECT_EQ(places.panes[1], QRect(0, row.upper + 2, row.inside.width(), row.lower)) << row.inside.height();
        EXPECT_TRUE(places.tabs.isEmpty());
        EXPECT_EQ(places.divider.center().y(), row.upper) << "it is grabbed in the gap and beside it";
    }
}

TEST(PanePlaces, BehindTabsEachPaneIsAllButTheTabs)
{
    const PanePlaces places = tabbedPlaces({800, 600}, 25);
    EXPECT_EQ(places.panes[0], QRect(0, 0, 800, 575));
    EXPECT_EQ(places.panes[1], QRect(0, 0, 800, 575));
    EXPECT_EQ(places.tabs, QRect(0, 575, 800, 25));
    EXPECT_TRUE(places.divider.isEmpty());
    EXPECT_EQ(tabbedPlaces({800, 20}, 25).panes[0].height(), 0);
}

class ViewingPanesTest : public testing::Test
{
protected:
    ViewingPanesTest()
    {
        panes.resize(800, 600);
        panes.show();
    }

    QWidget *divider() { return panes.findChild<QWidget *>(QStringLiteral("paneDivider")); }
    int upper() { return panes.pane(0)->height(); }

    void drag(int by)
    {
        const QPoint start(100, divider()->height() / 2);
        QTest::mousePress(divider(), Qt::LeftButton, {}, start);
        QMouseEvent move(QEvent::MouseMove, start + QPoint(0, by), divider()->mapToGlobal(start + QPoint(0, by)),
                         Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(divider(), &move);
        QTest::mouseRelease(divider(), Qt::LeftButton, {}, start);
    }

    ViewingPanes panes;
};

TEST_F(ViewingPanesTest, StandOneAboveTheOtherWithoutTabs)
{
    panes.place(true);
    EXPECT_TRUE(panes.pane(0)->isVisible());
    EXPECT_TRUE(panes.pane(1)->isVisible());
    EXPECT_TRUE(divider()->isVisible());
    EXPECT_FALSE(panes.tabs()->isVisible());
    EXPECT_EQ(panes.pane(0)->geometry(), QRect(0, 0, 800, 447));
    EXPECT_EQ(panes.pane(1)->geometry(), QRect(0, 449, 800, 147));
}

TEST_F(ViewingPanesTest, StandBehindTabsOneAtATime)
{
    panes.place(false);
    EXPECT_EQ(panes.tabs()->tabText(0), QStringLiteral("Editor"));
    EXPECT_EQ(panes.tabs()->tabText(1), QStringLiteral("Live Preview"));
    EXPECT_EQ(panes.pane(0)->geometry(), QRect(0, 0, 800, 575));
    EXPECT_TRUE(panes.pane(0)->isVisible());
    EXPECT_FALSE(panes.pane(1)->isVisible());
    const QSignalSpy clicked(&panes, &ViewingPanes::tabClicked);
    QTest::mouseClick(panes.tabs(), Qt::LeftButton, {}, panes.tabs()->tabRect(1).center());
    EXPECT_FALSE(panes.pane(0)->isVisible());
    EXPECT_TRUE(panes.pane(1)->isVisible());
    QTest::mouseClick(panes.tabs(), Qt::LeftButton, {}, panes.tabs()->tabRect(1).center());
    ASSERT_EQ(clicked.count(), 2) << "the tab on show can be clicked again";
    EXPECT_EQ(clicked[1][0].toInt(), 1);
    panes.place(true);
    EXPECT_TRUE(panes.pane(0)->isVisible());
    panes.place(false);
    EXPECT_FALSE(panes.pane(0)->isVisible()) << "the tab chosen before is the one on show again";
}

TEST_F(ViewingPanesTest, TheDividerFollowsTheMouseAndKeepsItsShare)
{
    panes.place(true);
    drag(-100);
    EXPECT_EQ(upper(), 347);
    drag(40);
    EXPECT_EQ(upper(), 387);
    panes.resize(800, 1200);
    panes.place(true);
    EXPECT_NEAR(upper(), 2 * 387 + 2.67, 1);
    panes.place(false);
    panes.place(true);
    EXPECT_NEAR(upper(), 2 * 387 + 2.67, 1) << "the tabs in between change nothing";
}

TEST_F(ViewingPanesTest, TheDividerLeavesBothPanesSomeRoom)
{
    panes.place(true);
    drag(-1000);
    EXPECT_EQ(upper(), 40);
    drag(2000);
    EXPECT_EQ(upper(), 560);
}

TEST_F(ViewingPanesTest, ADoubleClickPutsTheDividerBack)
{
    panes.place(true);
    drag(-100);
    QTest::mouseDClick(divider(), Qt::LeftButton, {}, {100, 3});
    EXPECT_EQ(upper(), 447);
}

TEST_F(ViewingPanesTest, TellTheirResizes)
{
    const QSignalSpy resized(&panes, &ViewingPanes::resized);
    panes.resize(700, 500);
    EXPECT_EQ(resized.count(), 1);
}
} // namespace
