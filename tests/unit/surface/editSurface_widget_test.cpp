// What authors expect of a text widget beyond the contract: composing, reading aloud, gestures of the mouse, marks; and
// lines that no widget likes.
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
    for (const bool wrap : {false, true}) {
        surface.setWrapToWindow(wrap);
        const auto [setting, key] = timesOf(u'e' + QString(100'000, QChar(0x301)), 50'000);
        EXPECT_LT(setting, 2000) << wrap;
        EXPECT_LT(key, 3000) << wrap; // each piece is as narrow as nothing, so that all of them are on view
    }
}
} // namespace
