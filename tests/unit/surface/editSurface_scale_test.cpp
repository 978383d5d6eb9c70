// What holds at every scale of the screen, fractional ones included: ctest runs these tests at several.
#include "surfaceFixture.h"

#include <QBackingStore>

namespace
{
class EditSurfaceScale : public EditSurfaceTest
{
protected:
    EditSurfaceScale() : flash(QApplication::cursorFlashTime())
    {
        QApplication::setCursorFlashTime(0); // the caret stays where it is drawn
        surface.setLineNumbers(true);
    }
    ~EditSurfaceScale() override { QApplication::setCursorFlashTime(flash); }

    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    /// What came to stand on the screen piece by piece, beside what one painting of the whole shows.
    void expectNoTraces(const char *after)
    {
        settle();
        const QPaintDevice *store = surface.backingStore()->paintDevice(); // what the screen is given
        ASSERT_EQ(store->devType(), QInternal::Image);
        const QImage onScreen = *static_cast<const QImage *>(store);
        const QImage anew = surface.grab().toImage();
        ASSERT_EQ(onScreen.size(), anew.size());
        EXPECT_EQ(onScreen.convertToFormat(QImage::Format_RGB32), anew.convertToFormat(QImage::Format_RGB32)) << after;
    }

    void typeAndLook()
    {
        surface.setText(QStringLiteral("one gjpq\r\ntwo gjpq \u00C4\u00C5\r\nthree gjpq\r\nfour\r\n").repeated(10));
        surface.setFormat(10, 3, {.colour = 0xff, .bold = true, .underline = true});
        expectNoTraces("the text");
        surface.setSelStart(14);
        expectNoTraces("a jump");
        for (const QChar c : QStringLiteral("gj\u00C5"))
            sendCharacter(c);
        expectNoTraces("letters");
        sendKey(Qt::Key_Backspace, {}, QStringLiteral("\b"));
        expectNoTraces("a high letter that is gone");
        sendKey(Qt::Key_Down, {}, QString());
        expectNoTraces("a move");
        sendKey(Qt::Key_Left, Qt::ShiftModifier, QString());
        expectNoTraces("a selection");
        sendKey(Qt::Key_Right, {}, QString());
        sendKey(Qt::Key_Backspace, {}, QStringLiteral("\b"));
        expectNoTraces("a removal");
        sendCharacter(u'\r');
        expectNoTraces("a new line");
        surface.setMarkedRanges(MarkOwner::Tags, {{10, 3, MarkKind::Pair}});
        sendCharacter(u'x');
        expectNoTraces("marks");
        surface.setText(QStringLiteral("one\r\ntwo\r\nthree\r\n"));
        surface.setSelStart(6);
        surface.setSelText(QStringLiteral("a\u0302\u0301\u0323\u0331")); // marks above one another and below
        expectNoTraces("a letter with marks");
        sendCharacter(u' ');
        expectNoTraces("a blank behind it");
        surface.setSelLength(0);
        sendKey(Qt::Key_Up, {}, QString());
        sendCharacter(u'j');
        expectNoTraces("a letter above it");
    }

    int flash;
};

TEST_F(EditSurfaceScale, EachCharacterIsFoundWhereItStands)
{
    const QString text = QStringLiteral("a\u00E4m\u05D0\u05D1 \U0001F600x\r\nsecond\tline\r\nthird");
    for (const bool wraps : {false, true}) {
        surface.setWrapToWindow(wraps);
        surface.setText(text);
        settle();
        for (qsizetype place = 12; place < text.size(); ++place) { // the first line goes two ways
            if (text[place] == u'\r' || text[place] == u'\n')
                continue;
            const QRect caret = surface.positionOfCharacter(place);
            EXPECT_EQ(surface.characterFromPosition(caret.center() + QPoint(2, 0)), place);
        }
        const int first = surface.positionOfCharacter(0).top();
        const int height = surface.positionOfCharacter(0).height();
        EXPECT_GE(surface.positionOfCharacter(12).top(), first + height - 1) << "lines do not overlap";
    }
}

TEST_F(EditSurfaceScale, KeysLeaveNoTraces)
{
    typeAndLook();
}

TEST_F(EditSurfaceScale, LettersThatAreHigherThanTheirRowsLeaveNone)
{
    surface.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 9));
    typeAndLook();
}
} // namespace
