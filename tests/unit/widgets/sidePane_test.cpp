#include "widgets/sidePane.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QTest>

namespace
{
class SidePaneTest : public testing::Test
{
protected:
    SidePaneTest() : layout(new QHBoxLayout(&frame)), pane(new SidePane)
    {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(pane);
        layout->addWidget(new QWidget, 1);
        frame.resize(800, 300);
        pane->setPaneWidth(275);
        frame.show();
        QApplication::processEvents();
    }

    void dragEdge(int from, int by)
    {
        const QPoint start(from, 50);
        QTest::mousePress(pane, Qt::LeftButton, {}, start);
        QMouseEvent move(QEvent::MouseMove, start + QPoint(by, 0), pane->mapToGlobal(start + QPoint(by, 0)),
                         Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(pane, &move);
        QTest::mouseRelease(pane, Qt::LeftButton, {}, start);
        QApplication::processEvents();
    }

    QWidget frame;
    QHBoxLayout *layout;
    SidePane *pane;
};
} // namespace

TEST_F(SidePaneTest, theEdgeTowardsTheDocumentsCanBeDragged)
{
    EXPECT_EQ(pane->width(), 275);
    dragEdge(273, 40);
    EXPECT_EQ(pane->paneWidth(), 315);
    EXPECT_EQ(pane->width(), 315);
}

TEST_F(SidePaneTest, elsewhereADragDoesNothing)
{
    dragEdge(100, 40);
    EXPECT_EQ(pane->paneWidth(), 275);
}

TEST_F(SidePaneTest, atTheRightTheEdgeIsTheLeftOne)
{
    layout->setDirection(QBoxLayout::RightToLeft);
    pane->setSide(SidePane::Side::Right);
    QApplication::processEvents();
    EXPECT_EQ(pane->x(), 525);
    dragEdge(2, -30);
    EXPECT_EQ(pane->width(), 305);
}

TEST_F(SidePaneTest, neitherThePaneNorTheDocumentsCanBeSqueezedAway)
{
    dragEdge(273, -270);
    EXPECT_EQ(pane->paneWidth(), 120);
    pane->setPaneWidth(5000);
    EXPECT_EQ(pane->paneWidth(), 600);
}
