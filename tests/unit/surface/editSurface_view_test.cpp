// What of the surface is seen: lines on view, wrapping, the margin of numbers, the selection, painting that is held.
#include "surfaceFixture.h"

#include "surface/lineMargin.h"

#include <QElapsedTimer>
#include <QScrollBar>

namespace
{
class EditSurfaceView : public EditSurfaceTest
{
protected:
    static QString lines(int count, int width = 3)
    {
        QStringList text;
        for (int i = 0; i < count; ++i)
            text << QString(width, u'x');
        return text.join(QStringLiteral("\r\n"));
    }
    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    QImage picture() { return surface.viewport()->grab().toImage(); }
};

/// Counts the times that the viewport is drawn.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

TEST_F(EditSurfaceView, ScrollsByLinesOfTheSource)
{
    surface.setText(lines(500));
    QSignalSpy scrolls(&surface, &EditSurface::scrolled);
    surface.scrollToLine(120);
    EXPECT_EQ(surface.firstVisibleLine(), 120);
    EXPECT_EQ(scrolls.count(), 1);
    surface.scrollToLine(120);
    EXPECT_EQ(scrolls.count(), 1);
    surface.verticalScrollBar()->setValue(7);
    EXPECT_EQ(surface.firstVisibleLine(), 7);
    EXPECT_EQ(scrolls.count(), 2);
    surface.scrollToLine(-4);
    EXPECT_EQ(surface.firstVisibleLine(), 0);
    surface.scrollToLine(9999);
    EXPECT_GT(surface.firstVisibleLine(), 450);
    EXPECT_LT(surface.firstVisibleLine(), 500);
    EXPECT_EQ(surface.SelStart(), 0) << "the caret stays behind";
}

TEST_F(EditSurfaceView, ScrollsByLinesOfTheSourceWhereTheyWrap)
{
    surface.setText(lines(100, 300)); // several rows each
    surface.setWrapToWindow(true);
    settle();
    EXPECT_TRUE(surface.wrapToWindow());
    for (const qsizetype line : {0, 3, 40, 11, 12}) {
        surface.scrollToLine(line);
        EXPECT_EQ(surface.firstVisibleLine(), line);
        settle();
        EXPECT_EQ(surface.firstVisibleLine(), line);
    }
    const qsizetype height =
        surface.positionOfCharacter(12 * 302 + 299).bottom() - surface.positionOfCharacter(12 * 302).top();
    EXPECT_GT(height, 2 * surface.fontMetrics().height()) << "the line does wrap";
    EXPECT_EQ(surface.lineCount(), 100);
}

TEST_F(EditSurfaceView, WrappingOnAndOffKeepsTheFirstVisibleLine)
{
    surface.setText(lines(200, 300));
    surface.scrollToLine(50);
    surface.setWrapToWindow(true);
    settle();
    EXPECT_EQ(surface.firstVisibleLine(), 50);
    surface.setWrapToWindow(false);
    settle();
    EXPECT_EQ(surface.firstVisibleLine(), 50);
}

TEST_F(EditSurfaceView, TellsOfScrollingWhenTheTextAboveGoes)
{
    surface.setText(lines(300));
    surface.scrollToLine(250);
    QSignalSpy scrolls(&surface, &EditSurface::scrolled);
    surface.setText(QStringLiteral("short"));
    EXPECT_EQ(surface.firstVisibleLine(), 0);
    EXPECT_EQ(scrolls.count(), 1);
}

// The view stays at the number of its top line, and that is another, shorter one then.
TEST_F(EditSurfaceView, ShowsALineOfOneRowWhereTheTopOneHadMany)
{
    const QString longLine(600, u'x');
    surface.setText(lines(10) + QStringLiteral("\r\n") + longLine + QStringLiteral("\r\n") + lines(100));
    surface.setWrapToWindow(true);
    settle();
    select(0, 5 * 5);
    surface.verticalScrollBar()->setValue(14); // the fifth row of the long line
    ASSERT_EQ(surface.firstVisibleLine(), 10);
    surface.setSelText(QString()); // five lines above the view
    settle();
    EXPECT_EQ(surface.firstVisibleLine(), 0) << "where the caret is";
    EXPECT_EQ(surface.Text(), lines(5) + QStringLiteral("\r\n") + longLine + QStringLiteral("\r\n") + lines(100));
    surface.scrollToLine(20);
    EXPECT_EQ(surface.firstVisibleLine(), 20);
}

TEST_F(EditSurfaceView, ShowsTheLastRowOfATopLineThatHasFewerRowsNow)
{
    const QString colour = QStringLiteral("#FF0000 ");
    surface.setText(colour.repeated(100) + QStringLiteral("\r\n") + lines(100));
    surface.setWrapToWindow(true);
    settle();
    QList<MarkedRange> colours;
    for (int i = 0; i < 100; ++i) {
        MarkedRange mark{.start = i * colour.size(), .length = colour.size() - 1, .kind = MarkKind::Colour};
        mark.colour = 0x0000FF;
        colours << mark;
    }
    const QScrollBar &bar = *surface.verticalScrollBar();
    const auto rowsOfTheLine = [&] { // the number of its last row, by the row behind it
        surface.scrollToLine(0);
        picture(); // which lays it out
        surface.scrollToLine(1);
        return bar.value();
    };
    const int bare = rowsOfTheLine();
    surface.setMarkedRanges(MarkOwner::Colours, colours);
    settle();
    const int withSquares = rowsOfTheLine();
    ASSERT_GT(withSquares, bare) << "squares take room";
    surface.verticalScrollBar()->setValue(withSquares - 1);
    settle();
    ASSERT_EQ(surface.firstVisibleLine(), 0);
    surface.setMarkedRanges(MarkOwner::Colours, {});
    settle();
    EXPECT_EQ(surface.firstVisibleLine(), 0);
    EXPECT_EQ(rowsOfTheLine(), bare);
}

TEST_F(EditSurfaceView, FindsTheCharacterUnderAPoint)
{
    surface.setText(QStringLiteral("abc\r\n\r\n\tdef"));
    for (const bool numbers : {true, false}) {
        surface.setLineNumbers(numbers);
        settle();
        for (const qsizetype place : {0, 1, 2, 7, 8, 9, 10}) {
            const QRect left = surface.positionOfCharacter(place);
            const QRect right = surface.positionOfCharacter(place + 1);
            ASSERT_LT(left.left(), right.left());
            const int y = left.center().y();
            EXPECT_EQ(surface.characterFromPosition({left.left() + 2, y}), place);
            EXPECT_EQ(surface.characterFromPosition({right.left() - 2, y}), place) << "its right half, too";
        }
        EXPECT_EQ(surface.characterFromPosition({490, surface.positionOfCharacter(0).center().y()}), 3);
        EXPECT_EQ(surface.characterFromPosition({490, surface.positionOfCharacter(5).center().y()}), 5);
        EXPECT_EQ(surface.characterFromPosition({490, 290}), 11) << "below the text as in its last line";
        EXPECT_EQ(surface.characterFromPosition({0, 0}), 0);
    }
}

TEST_F(EditSurfaceView, FindsTheCharacterInAWrappedLine)
{
    surface.setWrapToWindow(true);
    surface.setText(QString(300, u'x'));
    settle();
    for (const qsizetype place : {5, 120, 250}) {
        const QRect at = surface.positionOfCharacter(place);
        EXPECT_EQ(surface.characterFromPosition({at.left() + 2, at.center().y()}), place);
    }
}

TEST_F(EditSurfaceView, TheMarginNumbersSourceLinesAtTheirFirstRow)
{
    surface.setText(QStringLiteral("a\r\n") + QString(300, u'x') + QStringLiteral("\r\nb"));
    surface.setWrapToWindow(true);
    settle();
    const QList<EditSurface::VisibleLine> shown = surface.visibleLines();
    ASSERT_EQ(shown.size(), 3);
    const qsizetype starts[] = {0, 3, 305};
    for (qsizetype i = 0; i < 3; ++i) {
        EXPECT_EQ(shown[i].line, i);
        EXPECT_NEAR(shown[i].top, surface.positionOfCharacter(starts[i]).top() - surface.viewport()->y(), 1);
        EXPECT_NEAR(shown[i].rowHeight, surface.fontMetrics().height(), 2);
    }
    EXPECT_GT(shown[2].top - shown[1].top, 2 * shown[0].rowHeight);
}

TEST_F(EditSurfaceView, TheMarginIsAsWideAsItsHighestNumber)
{
    surface.setLineNumbers(true);
    EXPECT_TRUE(surface.lineNumbers());
    const int digit = surface.fontMetrics().horizontalAdvance(u'8');
    surface.setText(lines(9));
    const int narrow = surface.margin()->width();
    EXPECT_EQ(surface.viewport()->x(), surface.margin()->geometry().right() + 1);
    surface.setText(lines(10));
    EXPECT_EQ(surface.margin()->width(), narrow + digit);
    surface.setText(lines(1000));
    EXPECT_EQ(surface.margin()->width(), narrow + 3 * digit);
    surface.setLineNumbers(false);
    EXPECT_FALSE(surface.lineNumbers());
    EXPECT_TRUE(surface.margin()->isHidden());
    EXPECT_LT(surface.viewport()->x(), narrow);
}

TEST_F(EditSurfaceView, TheMarginShowsTheNumbersOfTheLinesOnView)
{
    surface.setText(lines(300));
    settle();
    const QImage top = surface.margin()->grab().toImage();
    surface.scrollToLine(100);
    settle();
    EXPECT_NE(surface.margin()->grab().toImage(), top);
    surface.scrollToLine(0);
    settle();
    EXPECT_EQ(surface.margin()->grab().toImage(), top);
}

TEST_F(EditSurfaceView, AClickOnTheMarginGivesTheFocus)
{
    surface.clearFocus();
    ASSERT_FALSE(surface.hasFocus());
    QTest::mouseClick(surface.margin(), Qt::LeftButton, {}, {3, 20});
    EXPECT_TRUE(surface.hasFocus());
}

TEST_F(EditSurfaceView, AHiddenSelectionIsNotPainted)
{
    surface.clearFocus(); // no caret in the pictures
    surface.setText(QStringLiteral("some <b>text</b>\r\nand more"));
    surface.setFormat(5, 3, {0x0000FFU, true, {}});
    const QImage plain = picture();
    select(2, 12);
    const QImage selected = picture();
    ASSERT_NE(selected, plain);
    surface.setHideSelection(true);
    EXPECT_TRUE(surface.HideSelection());
    EXPECT_EQ(picture(), plain);
    EXPECT_EQ(selection(), Selection(2, 12));
    surface.setHideSelection(false);
    EXPECT_EQ(picture(), selected);
}

TEST_F(EditSurfaceView, ASelectedLineBreakIsSeenBehindItsLine)
{
    surface.setText(QStringLiteral("ab\r\n\r\n\u05D0\u05D1\r\ncd"));
    const QRgb selected = surface.palette().color(QPalette::Highlight).rgb();
    const auto behind = [&](qsizetype lineEnd, int pixels) {
        settle();
        const QPoint place = surface.positionOfCharacter(lineEnd).center() - surface.viewport()->pos();
        return picture().pixel(place + QPoint(pixels, 0)) == selected;
    };
    for (const bool wraps : {false, true}) {
        surface.setWrapToWindow(wraps);
        select(1, 9); // up to the "c"
        EXPECT_TRUE(behind(2, 2));
        EXPECT_TRUE(behind(4, 2)) << "of an empty line";
        EXPECT_TRUE(behind(8, -2)) << "of a line from right to left";
        EXPECT_FALSE(behind(12, 2)) << "of a line whose break is not selected";
        surface.setHideSelection(true);
        EXPECT_FALSE(behind(4, 2));
        surface.setHideSelection(false);
        select(1, 1);
        EXPECT_FALSE(behind(2, 2));
    }
}

TEST_F(EditSurfaceView, ASelectionKeepsItsColoursBesideADialog)
{
    QPalette theme = surface.palette();
    theme.setColor(QPalette::Active, QPalette::Highlight, Qt::darkGreen);
    theme.setColor(QPalette::Inactive, QPalette::Highlight, Qt::lightGray);
    theme.setColor(QPalette::Active, QPalette::HighlightedText, Qt::yellow);
    theme.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    surface.setPalette(theme);
    EXPECT_EQ(surface.palette().color(QPalette::Inactive, QPalette::Highlight), QColor(Qt::darkGreen));
    EXPECT_EQ(surface.palette().color(QPalette::Inactive, QPalette::HighlightedText), QColor(Qt::yellow));
}

TEST_F(EditSurfaceView, NothingIsPaintedWhilePaintingIsHeld)
{
    surface.setText(lines(100));
    settle();
    PaintCounter paints(surface.viewport());
    surface.setPaintingHeld(true);
    surface.setSelText(QStringLiteral("new"));
    surface.setFormat(0, 3, {0x0000FFU, {}, {}});
    surface.scrollToLine(20);
    settle();
    EXPECT_EQ(paints.count, 0);
    surface.setPaintingHeld(false);
    settle();
    EXPECT_EQ(paints.count, 1);
}

TEST_F(EditSurfaceView, FormatsThatChangeNothingDrawNothing)
{
    surface.setText(lines(100));
    surface.setFormat(0, 100, {0x0000FFU, {}, {}});
    surface.clearFocus(); // a caret that blinks would be drawn
    settle();
    PaintCounter paints(surface.viewport());
    surface.setFormats({{0, 100, {0x000001U, {}, {}}}, {0, 100, {0x0000FFU, {}, {}}}});
    settle();
    EXPECT_EQ(paints.count, 0);
}

TEST_F(EditSurfaceView, AColourIsPainted)
{
    surface.setText(QStringLiteral("MMMM"));
    surface.setFormat(0, 4, {0x0000FFU, true, {}});
    surface.clearFocus();
    const QImage image = picture();
    bool red = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            red = red || image.pixelColor(x, y) == QColor(255, 0, 0);
    }
    EXPECT_TRUE(red);
}

TEST_F(EditSurfaceView, TabsAreFourCharactersWide)
{
    surface.setText(QStringLiteral("\tx\ty"));
    for (const int size : {surface.font().pointSize(), 20}) {
        surface.setFont(QFont(surface.font().family(), size));
        const double blank = QFontMetricsF(surface.font()).horizontalAdvance(u' ');
        const int start = surface.positionOfCharacter(0).left();
        EXPECT_NEAR(surface.positionOfCharacter(1).left() - start, 4 * blank, 1) << size;
        EXPECT_NEAR(surface.positionOfCharacter(3).left() - start, 8 * blank, 1) << size;
    }
}

TEST_F(EditSurfaceView, RowsStandWhereAnotherFontHasThem)
{
    surface.setText(QStringLiteral("word\r\n").repeated(1000)); // whose end, far away, is not laid out for the bars
    const QList<EditSurface::VisibleLine> before = surface.visibleLines();
    surface.setFont(QFont(surface.font().family(), 3 * surface.font().pointSize()));
    const QList<EditSurface::VisibleLine> after = surface.visibleLines();
    EXPECT_LT(after.size(), before.size());
    EXPECT_GT(after.at(1).top, before.at(2).top);
}

TEST_F(EditSurfaceView, TheFontHasOneWidthForAllCharacters)
{
    EXPECT_EQ(surface.fontMetrics().horizontalAdvance(u'i'), surface.fontMetrics().horizontalAdvance(u'W'));
}

TEST_F(EditSurfaceView, DefaultColoursFollowTheGroundAndAnUsersOwnStay)
{
    constexpr ColourValue Navy = 8388608;
    constexpr ColourValue Own = 255;
    const auto drawn = [this](int position) { return drawnColour(position); };
    surface.setText(QStringLiteral("\u2588\u2588"));
    surface.setFormat(0, 1, {Navy, true, {}});
    surface.setFormat(1, 1, {Own, {}, {}});
    EXPECT_EQ(drawn(0), QColor(0, 0, 128));
    int changes = 0;
    QObject::connect(&surface, &EditSurface::Change, &surface, [&changes] { ++changes; });
    QPalette dark = surface.palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    const QPalette light = surface.palette();
    surface.setPalette(dark);
    EXPECT_GT(drawn(0).lightness(), 128);
    EXPECT_EQ(drawn(1), QColor(255, 0, 0));
    EXPECT_EQ(surface.formatOf(0, 1), (TextFormat{Navy, true, false})) << "the value is as it was given";
    surface.setPalette(light);
    EXPECT_EQ(drawn(0), QColor(0, 0, 128));
    EXPECT_EQ(changes, 0);
}

TEST_F(EditSurfaceView, BreaksLinesWithoutBlanksAnywhere)
{
    QElapsedTimer taken;
    taken.start();
    surface.setWrapToWindow(true);
    surface.setText(QStringLiteral("<div>").repeated(100'000));
    surface.show();
    settle();
    surface.setSelText(QStringLiteral("x"));
    settle();
    EXPECT_LT(taken.elapsed(), 2000) << "milliseconds; a layout of the whole line takes several times as long";
    EXPECT_GT(surface.visibleLines().size(), 0);
    EXPECT_GT(surface.positionOfCharacter(300).top(), surface.positionOfCharacter(0).top());
}
} // namespace
