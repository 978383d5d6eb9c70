#include "widgets/coolBar.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

namespace
{
constexpr int Grip = 8;

/// A band's contents of a known size.
class Piece final : public QWidget
{
public:
    Piece(int width, int height) : m_size(width, height) {}
    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return {30, 20}; }

private:
    QSize m_size;
};

/// Three bands: 100 and 200 wide in the first row, 150 in the second.
class CoolBarTest : public testing::Test
{
protected:
    CoolBarTest()
    {
        bar.addBand(new Piece(100, 24), true);
        bar.addBand(new Piece(200, 30), false);
        bar.addBand(new Piece(150, 24), true);
        bar.resize(600, 60);
        bar.show();
        QApplication::processEvents();
    }

    void drag(int band, const QPoint &by)
    {
        const QPoint grip = bar.bandRect(band).topLeft() + QPoint(3, 12);
        QTest::mousePress(&bar, Qt::LeftButton, {}, grip);
        QMouseEvent move(QEvent::MouseMove, grip + by, bar.mapToGlobal(grip + by), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&bar, &move);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, grip + by);
        QApplication::processEvents();
    }

    CoolBar bar;
};
} // namespace

TEST_F(CoolBarTest, bandsStandInTheirRowsAndTheLastTakesTheRest)
{
    EXPECT_EQ(bar.Count(), 3);
    EXPECT_EQ(bar.bandRect(1), QRect(0, 0, 100 + Grip, 30));
    EXPECT_EQ(bar.bandRect(2), QRect(108, 0, 492, 30));
    EXPECT_EQ(bar.bandRect(3), QRect(0, 31, 600, 24));
    EXPECT_EQ(bar.sizeHint().height(), 31 + 25);
}

TEST_F(CoolBarTest, aRowThatIsTooNarrowTakesFromItsLastBandFirst)
{
    bar.resize(250, 60);
    EXPECT_EQ(bar.bandRect(1).width(), 108);
    EXPECT_EQ(bar.bandRect(2).width(), 142);
    bar.resize(120, 60);
    EXPECT_EQ(bar.bandRect(2).width(), 38); // its smallest
    EXPECT_EQ(bar.bandRect(1).width(), 82);
}

TEST_F(CoolBarTest, aGivenWidthHoldsWhereThereIsRoom)
{
    bar.setWidth(1, 250.5);
    EXPECT_EQ(bar.Width(1), 250.5);
    EXPECT_EQ(bar.bandRect(2).left(), 251);
    bar.setWidth(1, 3);
    EXPECT_EQ(bar.Width(1), 38);
}

TEST_F(CoolBarTest, aHiddenBandLeavesItsRowToTheOthers)
{
    bar.setBandVisible(1, false);
    EXPECT_TRUE(bar.bandRect(1).isEmpty());
    EXPECT_EQ(bar.bandRect(2), QRect(0, 0, 600, 30));
    bar.setBandVisible(3, false);
    EXPECT_EQ(bar.sizeHint().height(), 31);
    bar.setBandVisible(3, true);
    EXPECT_EQ(bar.bandRect(3).top(), 31);
}

TEST_F(CoolBarTest, draggingDownStartsANewRowAndDraggingUpJoinsTheRowAbove)
{
    drag(2, QPoint(0, 60));
    EXPECT_TRUE(bar.NewRow(2));
    EXPECT_EQ(bar.bandRect(2).topLeft(), QPoint(0, 25));
    drag(2, QPoint(0, -25));
    EXPECT_FALSE(bar.NewRow(2));
    EXPECT_EQ(bar.bandRect(2).topLeft(), QPoint(108, 0));
}

TEST_F(CoolBarTest, draggingAlongTheRowWidensTheBandBefore)
{
    drag(2, QPoint(50, 0));
    EXPECT_EQ(bar.Width(1), 158);
    EXPECT_EQ(bar.bandRect(2).left(), 158);
    drag(1, QPoint(50, 0)); // the first of a row has none before it
    EXPECT_EQ(bar.bandRect(1).left(), 0);
}
