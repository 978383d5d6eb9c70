#include "insertion/drawingBoard.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace
{
QPixmap plain(const QSize &size, const QColor &colour)
{
    QPixmap picture(size);
    picture.fill(colour);
    return picture;
}

/// A board with a picture of 40 by 30 pixels, and what it tells.
class DrawingBoardTest : public testing::Test
{
protected:
    DrawingBoardTest()
    {
        board.setPicture(plain({40, 30}, Qt::green), {40, 30});
        board.show();
    }

    QImage painted() { return board.grab().toImage(); }
    QPointF pressedAt() { return pressed.isEmpty() ? QPointF(-1, -1) : pressed.last()[0].toPointF(); }

    DrawingBoard board;
    QSignalSpy pressed{&board, &DrawingBoard::pressed};
    QSignalSpy moved{&board, &DrawingBoard::moved};
    QSignalSpy released{&board, &DrawingBoard::released};
    QSignalSpy crossMoved{&board, &DrawingBoard::crossMoved};
    QSignalSpy cornerSet{&board, &DrawingBoard::cornerSet};
    QSignalSpy takenBack{&board, &DrawingBoard::cornerTakenBack};
    QSignalSpy zoomAsked{&board, &DrawingBoard::zoomAsked};
};
} // namespace

TEST_F(DrawingBoardTest, isAsLargeAsItsPicture)
{
    EXPECT_EQ(board.size(), QSize(40, 30));
    board.setZoom(3);
    EXPECT_EQ(board.size(), QSize(120, 90));
    board.setZoom(99);
    EXPECT_EQ(board.zoom(), DrawingBoard::LargestZoom);
    board.setZoom(0);
    EXPECT_EQ(board.size(), QSize(40, 30));
    EXPECT_EQ(painted().pixelColor(20, 15), QColor(Qt::green));
    board.setPicture({}, {});
    EXPECT_EQ(board.size(), QSize(40, 30));
    EXPECT_EQ(painted().pixelColor(20, 15), QColor(Qt::white));
}

TEST_F(DrawingBoardTest, drawsAShrunkPictureAtItsOwnSize)
{
    board.setPicture(plain({10, 10}, Qt::blue), {80, 80});
    EXPECT_EQ(board.size(), QSize(80, 80));
    EXPECT_EQ(painted().pixelColor(79, 79), QColor(Qt::blue));
}

TEST_F(DrawingBoardTest, tellsPlacesInPixelsOfThePictureAndNeverOutside)
{
    board.setZoom(2);
    QTest::mousePress(&board, Qt::LeftButton, {}, {13, 20});
    EXPECT_EQ(pressedAt(), QPointF(6.5, 10));
    QTest::mouseMove(&board, {200, -7});
    QTest::mouseRelease(&board, Qt::LeftButton, {}, {200, -7});
    ASSERT_EQ(released.size(), 1);
    EXPECT_EQ(released[0][0].toPointF(), QPointF(39, 0));
}

TEST_F(DrawingBoardTest, takesADoubleClickForOneClick)
{
    const QPoint at(5, 5);
    QTest::mouseClick(&board, Qt::LeftButton, {}, at);
    QMouseEvent second(QEvent::MouseButtonDblClick, at, board.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&board, &second);
    QTest::mouseRelease(&board, Qt::LeftButton, {}, at);
    EXPECT_EQ(pressed.size(), 1);
    EXPECT_EQ(released.size(), 1);
}

TEST_F(DrawingBoardTest, movesItsCrossByKeysWithinThePicture)
{
    EXPECT_EQ(board.cross(), QPoint(20, 15));
    QTest::keyClick(&board, Qt::Key_Right);
    QTest::keyClick(&board, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(board.cross(), QPoint(21, 25));
    QTest::keyClick(&board, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(board.cross(), QPoint(21, 29));
    EXPECT_EQ(crossMoved.size(), 3);
    QTest::keyClick(&board, Qt::Key_Return);
    ASSERT_EQ(cornerSet.size(), 1);
    EXPECT_EQ(cornerSet[0][0].toPoint(), QPoint(21, 29));
    QTest::keyClick(&board, Qt::Key_Backspace);
    EXPECT_EQ(takenBack.size(), 1);
}

TEST_F(DrawingBoardTest, leavesTheKeysAloneWhileTheMouseDraws)
{
    QTest::mousePress(&board, Qt::LeftButton, {}, {5, 5});
    QTest::keyClick(&board, Qt::Key_Return);
    QTest::keyClick(&board, Qt::Key_Left);
    EXPECT_TRUE(cornerSet.isEmpty() && crossMoved.isEmpty());
    QTest::mouseRelease(&board, Qt::LeftButton, {}, {5, 5});
    QTest::keyClick(&board, Qt::Key_Left);
    EXPECT_EQ(board.cross(), QPoint(4, 5)); // from where the mouse was
}

TEST_F(DrawingBoardTest, asksForAnotherZoomWithinTheLimits)
{
    QTest::keyClick(&board, Qt::Key_Minus);
    QTest::keyClick(&board, Qt::Key_Plus);
    ASSERT_EQ(zoomAsked.size(), 2);
    EXPECT_EQ(zoomAsked[0][0].toInt(), 1);
    EXPECT_EQ(zoomAsked[1][0].toInt(), 2);
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&board, &wheel);
    EXPECT_EQ(zoomAsked.last()[0].toInt(), 2);
}

TEST_F(DrawingBoardTest, showsFiguresOverThePictureAndMarksUnderThem)
{
    board.setMarks([](QPainter &painter, int zoom) {
        painter.setPen(Qt::red);
        painter.drawLine(0, 10 * zoom, 39 * zoom, 10 * zoom);
    });
    auto *line = new BoardFigure(QStringLiteral("line"), BoardFigure::Kind::Line, colourOf(0, 0, 255), &board);
    board.addFigure(line);
    EXPECT_EQ(painted().pixelColor(5, 10), QColor(Qt::red));
    line->place({5, 0, 5, 20}, true);
    EXPECT_EQ(painted().pixelColor(5, 10), QColor(Qt::blue));
    EXPECT_EQ(painted().pixelColor(6, 10), QColor(Qt::red));
    board.setZoom(4);
    EXPECT_EQ(painted().pixelColor(20, 80), QColor(Qt::blue));
    line->place({5, 0, 5, 20}, false);
    EXPECT_EQ(painted().pixelColor(20, 40), QColor(Qt::red));
}

TEST(BoardFigure, coversWhatItDraws)
{
    QObject owner;
    QPixmap ground(200, 200);
    for (const BoardFigure::Kind kind : {BoardFigure::Kind::Line, BoardFigure::Kind::Oval})
        for (const QLineF &place : {QLineF(10, 10, 150, 120), QLineF(150, 30, 20, 60), QLineF(50, 50, 50, 50)}) {
            BoardFigure figure(QStringLiteral("figure"), kind, 0, &owner);
            figure.place(place, true);
            ground.fill(Qt::white);
            QPainter painter(&ground);
            figure.draw(painter, 1);
            painter.end();
            const QRegion region = figure.region(1);
            const QImage image = ground.toImage();
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    ASSERT_TRUE(image.pixelColor(x, y) == QColor(Qt::white) || region.contains(QPoint(x, y)))
                        << x << ' ' << y;
        }
}

TEST_F(DrawingBoardTest, addsUpTheTurnsOfAFineWheel)
{
    QSignalSpy scrolled(&board, &DrawingBoard::scrolled);
    for (int turn = 0; turn < 5; ++turn) {
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -8}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&board, &wheel);
    }
    QPoint steps;
    for (const QVariantList &told : scrolled)
        steps += told[0].toPoint();
    EXPECT_EQ(steps, QPoint(0, 1)); // 40 of 120 are a third of a notch, a step down
}
