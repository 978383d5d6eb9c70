// What authors expect of a text widget beyond the contract: composing, reading aloud, gestures of the mouse, marks; and
// lines that no widget likes.
#include "surface/signMargin.h"
#include "surfaceFixture.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QScrollBar>

namespace
{
class EditSurfaceWidget : public EditSurfaceTest
{
protected:
    QPoint placeOf(qsizetype position)
    {
        return surface.positionOfCharacter(position).center() - surface.viewport()->pos();
    }
    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    /// How long the text takes to be set and shown, and a key in it, in milliseconds.
    std::pair<qint64, qint64> timesOf(const QString &text, qsizetype caret)
    {
        QElapsedTimer taken;
        taken.start();
        surface.setText(text);
        settle();
        const qint64 setting = taken.elapsed();
        surface.setSelStart(caret);
        settle();
        constexpr int keys = 10;
        taken.restart();
        for (int i = 0; i < keys; ++i) {
            sendCharacter(u'x');
            settle();
        }
        return {setting, taken.elapsed() / keys};
    }
};

TEST_F(EditSurfaceWidget, ADoubleClickSelectsAWordAndAThirdItsLine)
{
    surface.setText(QStringLiteral("one two-three four\r\nfive"));
    const QPoint place = placeOf(5);
    QTest::mouseClick(surface.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(surface.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(surface.SelText(), QStringLiteral("two"));
    QTest::mousePress(surface.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(surface.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(surface.SelText(), QStringLiteral("one two-three four\r\n"));
}

TEST_F(EditSurfaceWidget, HomeGoesToTheStartAndFromThereToTheFirstCharacter)
{
    surface.setText(QStringLiteral("\t  <b>"));
    surface.setSelStart(5);
    sendKey(Qt::Key_Home, {}, QString());
    EXPECT_EQ(surface.SelStart(), 0);
    sendKey(Qt::Key_Home, {}, QString());
    EXPECT_EQ(surface.SelStart(), 3);
    sendKey(Qt::Key_Home, {}, QString());
    EXPECT_EQ(surface.SelStart(), 0);
}

TEST_F(EditSurfaceWidget, PagesKeepTheColumnAndThePlaceOnView)
{
    QStringList lines;
    for (int i = 0; i < 300; ++i)
        lines << (i % 7 == 3 ? QStringLiteral("x") : QStringLiteral("a longer line"));
    surface.setText(lines.join(u'\n'));
    surface.setSelStart(6);
    for (int i = 0; i < 3; ++i)
        sendKey(Qt::Key_PageDown, {}, QString());
    const qsizetype line = surface.lineFromCharacter(surface.SelStart());
    EXPECT_GT(line, 30);
    EXPECT_GT(surface.firstVisibleLine(), 30);
    for (int i = 0; i < 3; ++i)
        sendKey(Qt::Key_PageUp, {}, QString());
    EXPECT_EQ(surface.SelStart(), 6);
    EXPECT_EQ(surface.firstVisibleLine(), 0);
}

TEST_F(EditSurfaceWidget, APageOfWholeRowsIsFollowedByTheNextOne)
{
    surface.setText(QStringLiteral("line\n").repeated(100));
    settle();
    const int first = surface.positionOfCharacter(0).top() - surface.viewport()->y();
    const int height = surface.positionOfCharacter(6).top() - surface.positionOfCharacter(0).top();
    constexpr int rows = 10;
    surface.resize(500, first + rows * height + surface.height() - surface.viewport()->height());
    settle();
    ASSERT_EQ(surface.viewport()->height(), first + rows * height) << "the last row is no row that is cut";
    sendKey(Qt::Key_PageDown, {}, QString());
    EXPECT_EQ(surface.firstVisibleLine(), rows);
    sendKey(Qt::Key_PageDown, {}, QString());
    EXPECT_EQ(surface.firstVisibleLine(), 2 * rows);
    sendKey(Qt::Key_PageUp, {}, QString());
    EXPECT_EQ(surface.firstVisibleLine(), rows);
    for (int i = 0; i < 100 / rows; ++i)
        sendKey(Qt::Key_PageDown, {}, QString());
    EXPECT_EQ(surface.SelStart(), surface.textLength()); // where a page ends with the text, its caret goes there
}

TEST_F(EditSurfaceWidget, CharactersThatBelongTogetherArePassedInOne)
{
    const QString family = QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467");
    surface.setText(u'a' + family + QStringLiteral("e\u0301b"));
    const qsizetype places[] = {1, 1 + family.size(), 3 + family.size(), 4 + family.size()};
    for (const qsizetype place : places) {
        sendKey(Qt::Key_Right, {}, QString());
        EXPECT_EQ(surface.SelStart(), place);
    }
    sendKey(Qt::Key_Left, {}, QString());
    sendKey(Qt::Key_Left, {}, QString());
    EXPECT_EQ(surface.SelStart(), places[1]);
}

TEST_F(EditSurfaceWidget, KeysFollowTheEyeInTextFromRightToLeft)
{
    surface.setText(QStringLiteral("\u05D0\u05D1\u05D2"));
    sendKey(Qt::Key_Left, {}, QString());
    EXPECT_EQ(surface.SelStart(), 1);
    EXPECT_LT(surface.positionOfCharacter(2).left(), surface.positionOfCharacter(1).left());
}

TEST_F(EditSurfaceWidget, ComposedTextIsShownAtTheCaretAndItsPlaceIsTold)
{
    surface.setText(QStringLiteral("ab"));
    surface.setSelStart(1);
    const int before = surface.positionOfCharacter(2).left();
    QInputMethodEvent composing(QStringLiteral("nihao"), {});
    QApplication::sendEvent(&surface, &composing);
    EXPECT_GT(surface.positionOfCharacter(2).left(), before);
    const QRect caret = surface.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    EXPECT_GT(caret.left(), surface.positionOfCharacter(1).left());
    EXPECT_EQ(surface.inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("ab"));
    EXPECT_EQ(surface.inputMethodQuery(Qt::ImCursorPosition).toInt(), 1);
    QInputMethodEvent given(QString(), {});
    QApplication::sendEvent(&surface, &given);
    EXPECT_EQ(surface.positionOfCharacter(2).left(), before);
}

TEST_F(EditSurfaceWidget, AssistiveTechnologyReadsAndWrites)
{
    surface.setText(QStringLiteral("one two\r\nthree\r\n"));
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&surface);
    ASSERT_TRUE(seen && seen->textInterface() && seen->editableTextInterface());
    QAccessibleTextInterface &text = *seen->textInterface();
    EXPECT_EQ(text.characterCount(), 14);
    int start = 0;
    int end = 0;
    EXPECT_EQ(text.textAtOffset(9, QAccessible::LineBoundary, &start, &end), QStringLiteral("three\n"));
    EXPECT_EQ(std::pair(start, end), std::pair(8, 14));
    EXPECT_EQ(text.textAtOffset(5, QAccessible::WordBoundary, &start, &end), QStringLiteral("two"));
    EXPECT_EQ(text.textAtOffset(4, QAccessible::CharBoundary, &start, &end), QStringLiteral("t"));
    EXPECT_EQ(text.textBeforeOffset(9, QAccessible::LineBoundary, &start, &end), QStringLiteral("one two\n"));
    text.setCursorPosition(8);
    EXPECT_EQ(surface.SelStart(), 9);
    text.setSelection(0, 0, 3);
    EXPECT_EQ(surface.SelText(), QStringLiteral("one"));
    seen->editableTextInterface()->replaceText(8, 13, QStringLiteral("four"));
    EXPECT_EQ(surface.Text(), QStringLiteral("one two\r\nfour\r\n"));
    surface.setLocked(true);
    seen->editableTextInterface()->deleteText(0, 3);
    EXPECT_EQ(surface.Text(), QStringLiteral("one two\r\nfour\r\n"));
}

TEST_F(EditSurfaceWidget, AssistiveTechnologyIsToldWhatIsWrong)
{
    surface.setText(QStringLiteral("a\r\nfour more"));
    surface.setMarkedRanges(MarkOwner::Check, {{3, 4, MarkKind::Error}});
    const QAccessibleTextInterface &text = *QAccessible::queryAccessibleInterface(&surface)->textInterface();
    const struct {
        int offset;
        int end;
        bool wrong;
    } rows[] = {{0, 2, false}, {2, 6, true}, {4, 6, true}, {6, 11, false}};
    for (const auto &row : rows) {
        int start = 0;
        int end = 0;
        EXPECT_EQ(text.attributes(row.offset, &start, &end).contains(QLatin1String("invalid:true;")), row.wrong);
        EXPECT_EQ(end, row.end) << row.offset;
    }
}

TEST_F(EditSurfaceWidget, MarksGoWithTheirText)
{
    surface.setText(QStringLiteral("one two three"));
    surface.setMarkedRanges(MarkOwner::Check,
                            {{4, 3, MarkKind::Error, QStringLiteral("why")}, {8, 100, MarkKind::Hint}});
    surface.setMarkedRanges(MarkOwner::Tags, {{0, 3, MarkKind::Pair}, {-1, 3, MarkKind::Pair}});
    surface.setSelStart(0);
    surface.setSelText(QStringLiteral(">> "));
    const MarkedRange one{3, 3, MarkKind::Pair};
    EXPECT_EQ(surface.markedRanges(),
              QList<MarkedRange>({one, {7, 3, MarkKind::Error, QStringLiteral("why")}, {11, 5, MarkKind::Hint}}));
    select(6, 5);
    surface.setSelText(QString());
    EXPECT_EQ(surface.markedRanges(), QList<MarkedRange>({one, {6, 5, MarkKind::Hint}}));
    surface.setMarkedRanges(MarkOwner::Structure, {{7, 1, MarkKind::Hint}});
    surface.setMarkedRanges(MarkOwner::Check, {});
    EXPECT_EQ(surface.markedRanges(), QList<MarkedRange>({one, {7, 1, MarkKind::Hint}}));
    surface.setText(QStringLiteral("one"));
    EXPECT_TRUE(surface.markedRanges().isEmpty());
}

TEST_F(EditSurfaceWidget, AMarkOfAPlaceGoesWithIt)
{
    surface.setText(QStringLiteral("ab"));
    surface.setMarkedRanges(MarkOwner::Check, {{2, 0, MarkKind::Error}, {3, 0, MarkKind::Error}});
    surface.setSelText(QStringLiteral("x"));
    EXPECT_EQ(surface.markedRanges(), QList<MarkedRange>({{3, 0, MarkKind::Error}}));
}

TEST_F(EditSurfaceWidget, TheFirstErrorBringsTheSignsBesideTheText)
{
    surface.setText(QStringLiteral("one\r\ntwo"));
    surface.setMarkedRanges(MarkOwner::Search, {{0, 3, MarkKind::Match}});
    EXPECT_TRUE(surface.signs()->isHidden());
    const int before = surface.viewport()->x();
    surface.setMarkedRanges(MarkOwner::Check, {{5, 0, MarkKind::Error, QStringLiteral("why")}});
    EXPECT_FALSE(surface.signs()->isHidden());
    EXPECT_EQ(surface.viewport()->x(), before + surface.signs()->widthNeeded());
    EXPECT_EQ(tipOf(surface.marksOfLine(1)), QStringLiteral("why"));
    EXPECT_EQ(tipOf(surface.marksOfLine(0)), QString());
    const int row = surface.positionOfCharacter(5).height();
    QTest::mouseClick(surface.signs(), Qt::LeftButton, {}, QPoint(3, surface.positionOfCharacter(5).top() + row / 2));
    EXPECT_EQ(surface.SelStart(), 5);
    surface.setMarkedRanges(MarkOwner::Check, {});
    EXPECT_FALSE(surface.signs()->isHidden()) << "the text would move to and fro";
}

TEST_F(EditSurfaceWidget, SignsTellErrorsFromHintsWithoutColours)
{
    surface.setText(QStringLiteral("one\r\ntwo\r\nthree"));
    surface.setMarkedRanges(MarkOwner::Check, {{0, 3, MarkKind::Error}, {5, 3, MarkKind::Hint}});
    settle();
    const QImage picture = surface.signs()->grab().toImage();
    const QColor ground = surface.palette().color(QPalette::Window);
    const auto middle = [&](qsizetype position) {
        return QPoint(surface.signs()->width() / 2, surface.positionOfCharacter(position).center().y());
    };
    EXPECT_EQ(picture.pixelColor(middle(0)), surface.markColour(MarkKind::Error));
    EXPECT_EQ(picture.pixelColor(middle(5)), ground) << "a ring is empty";
    EXPECT_EQ(picture.pixelColor(middle(10)), ground);
}

TEST_F(EditSurfaceWidget, AColourHasASquareBehindItThatCanBeClicked)
{
    surface.setText(QStringLiteral("color: #ff8000; x"));
    const int before = surface.positionOfCharacter(14).left();
    const MarkedRange mark{7, 7, MarkKind::Colour, {}, 0x0080FF};
    QList<MarkedRange> clicked;
    SurfaceHooks hooks;
    hooks.squareClicked = [&](const MarkedRange &square) { clicked.append(square); };
    surface.setHooks(hooks);
    surface.setMarkedRanges(MarkOwner::Colours, {mark});
    settle();
    const QRect square = surface.squareOf(mark);
    EXPECT_GT(surface.positionOfCharacter(14).left(), before);
    EXPECT_GT(square.left(), before - 1);
    EXPECT_LE(square.right(), surface.positionOfCharacter(14).left());
    const QColor drawn = surface.grab().toImage().pixelColor(square.center());
    EXPECT_EQ(drawn, QColor(0xFF, 0x80, 0x00));
    surface.setSelStart(0);
    QTest::mouseClick(surface.viewport(), Qt::LeftButton, {}, square.center() - surface.viewport()->pos());
    EXPECT_EQ(clicked, QList<MarkedRange>({mark}));
    EXPECT_EQ(surface.SelStart(), 0);
    surface.setMarkedRanges(MarkOwner::Colours, {});
    EXPECT_EQ(surface.positionOfCharacter(14).left(), before);
}

TEST_F(EditSurfaceWidget, TheGroundOfACurrentLineGoesFromSideToSide)
{
    surface.setText(QStringLiteral("one\r\ntwo"));
    surface.setMarkedRanges(MarkOwner::Tags, {{6, 0, MarkKind::CurrentLine}});
    settle();
    const QImage picture = surface.viewport()->grab().toImage();
    const int right = surface.viewport()->width() - 2;
    const auto colourAt = [&](qsizetype position) {
        return picture.pixelColor(right, surface.positionOfCharacter(position).center().y());
    };
    EXPECT_NE(colourAt(6), colourAt(0));
    EXPECT_EQ(colourAt(0), surface.palette().color(QPalette::Base));
}

TEST_F(EditSurfaceWidget, CtrlAndTheWheelMakeTheTextLarger)
{
    surface.setText(QStringLiteral("one"));
    const int before = surface.positionOfCharacter(3).left();
    const QFont font = surface.font();
    const auto turn = [&](int delta) {
        const QPointF place(20, 20);
        QWheelEvent wheel(place, surface.viewport()->mapToGlobal(place), {}, {0, delta}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(surface.viewport(), &wheel);
    };
    turn(60);
    EXPECT_EQ(surface.zoom(), 0);
    turn(60);
    EXPECT_EQ(surface.zoom(), 1);
    turn(480);
    EXPECT_GT(surface.positionOfCharacter(3).left(), before);
    EXPECT_EQ(surface.font(), font);
    turn(-600);
    EXPECT_EQ(surface.zoom(), 0);
    EXPECT_EQ(surface.positionOfCharacter(3).left(), before);
}

TEST_F(EditSurfaceWidget, WrappedTextFromRightToLeftStandsAtTheRight)
{
    surface.setText(QStringLiteral("\u05D0\u05D1\u05D2\r\nabc"));
    surface.setWrapToWindow(true);
    settle();
    const int middle = surface.viewport()->width() / 2 + surface.viewport()->x();
    EXPECT_GT(surface.positionOfCharacter(0).left(), middle);
    EXPECT_LT(surface.positionOfCharacter(0).left(), surface.viewport()->geometry().right());
    EXPECT_LT(surface.positionOfCharacter(3).left(), surface.positionOfCharacter(0).left());
    EXPECT_LT(surface.positionOfCharacter(5).left(), middle);
    EXPECT_EQ(surface.characterFromPosition(surface.positionOfCharacter(1).center() - QPoint(3, 0)), 1);
}

TEST_F(EditSurfaceWidget, WrappingKeepsTheTopWhenRowsAboveTurnOutToBeOthers)
{
    surface.setText(QStringLiteral("\u4E2D\u6587 some words \t\t\t more\r\n").repeated(400));
    surface.setWrapToWindow(true);
    settle();
    surface.scrollToLine(200);
    settle();
    surface.verticalScrollBar()->setValue(surface.verticalScrollBar()->value() + 1);
    const qsizetype top = surface.firstVisibleLine();
    surface.verticalScrollBar()->setValue(0);
    settle();
    surface.scrollToLine(top);
    settle();
    EXPECT_EQ(surface.firstVisibleLine(), top);
}

TEST_F(EditSurfaceWidget, LongLinesCostWhatIsSeenOfThem)
{
    for (const bool wrap : {false, true}) {
        surface.setWrapToWindow(wrap);
        const auto [setting, key] = timesOf(QStringLiteral("<td>cell</td>").repeated(80'000), 500'000);
        EXPECT_LT(setting, 1000) << wrap;
        EXPECT_LT(key, 60) << wrap; // of a program that was built for tests, on a busy machine
        const QRect caret = surface.positionOfCharacter(surface.SelStart());
        EXPECT_TRUE(surface.rect().intersects(caret)) << wrap;
        const qsizetype found = surface.characterFromPosition(caret.center() + QPoint(2, 0));
        EXPECT_EQ(found, surface.SelStart()) << wrap;
    }
}

TEST_F(EditSurfaceWidget, ALineOfTwentyMillionCharactersIsShown)
{
    const auto [setting, key] = timesOf(QString(20'000'000, u'x'), 19'999'990);
    EXPECT_LT(setting, 5000);
    EXPECT_LT(key, 2000);
    EXPECT_EQ(surface.textLength(), 20'000'010);
}

TEST_F(EditSurfaceWidget, AHundredThousandMarksOnALetterAreShown)
{
    const QString wide = QStringLiteral("\U000E0101"); // a mark of two code units
    for (const QString &mark : {QString(QChar(0x301)), wide, QString(QChar(0x200B))}) {
        for (const bool wrap : {false, true}) {
            surface.setWrapToWindow(wrap);
            const auto [setting, key] = timesOf(u'e' + mark.repeated(100'000), 50'000);
            EXPECT_LT(setting, 1000) << wrap;
            EXPECT_LT(key, 200) << wrap << qPrintable(QString::number(mark[0].unicode(), 16));
        }
    }
}

TEST_F(EditSurfaceWidget, AFewMarksStayOnTheirLetter)
{
    const QString letter = u'e' + QString(8, QChar(0x301));
    surface.setText(letter + QStringLiteral("x"));
    const int width = surface.positionOfCharacter(9).left() - surface.positionOfCharacter(0).left();
    surface.setText(QStringLiteral("ex"));
    EXPECT_EQ(width, surface.positionOfCharacter(1).left() - surface.positionOfCharacter(0).left());
}
} // namespace
