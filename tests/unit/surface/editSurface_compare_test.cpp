// The surface beside Qt's own plain text widget: the same edits, selections, moves and wraps come to the same text,
// caret and selection.
#include "surfaceFixture.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QTextBlock>

namespace
{
/// The widget that the surface is compared with, set up as a source editor.
class PlainPeer final : public QPlainTextEdit
{
public:
    PlainPeer()
    {
        setUndoRedoEnabled(false);
        setLineWrapMode(NoWrap);
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        setTabStopDistance(4 * QFontMetricsF(font()).horizontalAdvance(u' '));
    }
    qsizetype caret() const { return widened(textCursor().position()); }
    qsizetype anchor() const { return widened(textCursor().anchor()); }
    /// Its text and places with breaks of two characters.
    QString text() const { return toPlainText().replace(u'\n', QStringLiteral("\r\n")); }
    qsizetype widened(int position) const { return position + document()->findBlock(position).blockNumber(); }
    void select(int from, int to)
    {
        QTextCursor cursor = textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
    }
};

struct KeyStroke {
    int key;
    Qt::KeyboardModifiers modifiers;
    QString text;
};

class BesidePlainText : public EditSurfaceTest
{
protected:
    BesidePlainText()
    {
        peer.resize(surface.size());
        for (QAbstractScrollArea *area : std::initializer_list<QAbstractScrollArea *>{&surface, &peer}) {
            // Each lays out another part of the text beforehand, and so finds out at another time that it needs bars.
            area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
            area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        }
        surface.setLineNumbers(false);
        peer.show();
        QApplication::processEvents();
        setAnew();
    }

    static int steps()
    {
        bool given = false;
        const int number = qEnvironmentVariableIntValue("TAGWRIGHTER_COMPARED_STEPS", &given);
        return given ? number : 2000;
    }

    int below(int end) { return m_random.bounded(end); }

    QString piece()
    {
        static const QStringList pieces = {
            QStringLiteral("a"),
            QStringLiteral("word "),
            QStringLiteral("<b class=\"x\">"),
            QStringLiteral("\n"),
            QStringLiteral("\n\n"),
            QStringLiteral("    "),
            QStringLiteral("one two, three; four-five. ").repeated(6),
            QString(90, u'x'),
            QStringLiteral("\u00E9e\u0301"),
            QStringLiteral("\U0001F600"),
            QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467"),
            QStringLiteral("\u4E2D\u6587"),
        };
        return pieces[below(static_cast<int>(pieces.size()))];
    }

    void setAnew()
    {
        QString text;
        for (int i = below(60); i > 0; --i)
            text += piece();
        surface.setText(text);
        peer.setPlainText(text);
        peer.select(0, 0);
    }

    void selectAnywhere()
    {
        const int last = peer.document()->characterCount() - 1;
        const int from = below(last + 1);
        const int to = below(2) ? from : std::min(from + below(40), last);
        peer.select(from, to);
        surface.setSelStart(peer.widened(from));
        surface.setSelLength(peer.widened(to) - peer.widened(from));
    }

    void press(const KeyStroke &stroke)
    {
        m_pressed += QStringLiteral(" %1").arg(QKeySequence(stroke.key | stroke.modifiers).toString());
        sendKey(stroke.key, stroke.modifiers, stroke.text);
        QKeyEvent event(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
        QApplication::sendEvent(&peer, &event);
        const bool byRows = stroke.key == Qt::Key_Up || stroke.key == Qt::Key_Down;
        if (byRows && selection() != peerSelection())
            askAgain(stroke.modifiers & Qt::ShiftModifier);
    }

    /// Which place of a row is at a column, the peer may answer otherwise than its caret is drawn if that row was asked
    /// for nothing before. Where the two differ, what it answers when it is asked again counts.
    void askAgain(bool keepAnchor)
    {
        QTextCursor cursor = peer.textCursor();
        const int column = cursor.verticalMovementX();
        const QTextLine row = cursor.block().layout()->lineForTextPosition(cursor.positionInBlock());
        if (column < 0 || !row.isValid())
            return;
        const int again = cursor.block().position() + row.xToCursor(column);
        if (again == cursor.position())
            return;
        ++m_askedAgain;
        cursor.setPosition(again, keepAnchor ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
        cursor.setVerticalMovementX(column);
        peer.setTextCursor(cursor);
    }

    void move()
    {
        static constexpr int keys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                       Qt::Key_Down, Qt::Key_Home,  Qt::Key_End};
        const int key = keys[below(6)];
        const auto shift = below(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
        const bool control = key != Qt::Key_Up && key != Qt::Key_Down && below(3) == 0;
        // Home at the start of a line goes to the first character here, and stays there.
        if (key == Qt::Key_Home && !control && peer.textCursor().atBlockStart())
            return;
        for (int i = 1 + below(3); i > 0; --i) {
            if (key != Qt::Key_Home || i == 1)
                press({key, shift | (control ? Qt::ControlModifier : Qt::NoModifier), QString()});
        }
    }

    void edit()
    {
        static const KeyStroke strokes[] = {
            {Qt::Key_X, Qt::NoModifier, QStringLiteral("x")},
            {Qt::Key_Less, Qt::ShiftModifier, QStringLiteral("<")},
            {Qt::Key_Space, Qt::NoModifier, QStringLiteral(" ")},
            {Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r")},
            {Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b")},
            {Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f")},
            {Qt::Key_Backspace, Qt::ControlModifier, QStringLiteral("\x7f")},
            {Qt::Key_Delete, Qt::ControlModifier, QStringLiteral("\x7f")},
            {Qt::Key_K, Qt::ControlModifier, QStringLiteral("\x0b")},
            {Qt::Key_A, Qt::ControlModifier, QStringLiteral("\x01")},
            {Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t")},
        };
        int kind = below(14);
        if (kind == 9 && below(8) != 0) // seldom everything
            kind = 0;
        // A key that this desktop has no use for leaves the column alone, which forgetColumn() could not tell.
        if (kind == 8 && QKeySequence::keyBindings(QKeySequence::DeleteEndOfLine).isEmpty())
            kind = 0;
        if (kind < 11)
            return press(strokes[kind]);
        const QString text = piece();
        surface.setSelText(text);
        peer.textCursor().insertText(text);
    }

    void paste()
    {
        const bool cut = below(2);
        if (cut && peer.textCursor().hasSelection()) {
            sendKey(Qt::Key_X, Qt::ControlModifier, QStringLiteral("\x18"));
            peer.textCursor().removeSelectedText();
            return;
        }
        QApplication::clipboard()->setText(piece());
        press({Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16")});
    }

    void wrap()
    {
        const bool on = below(2) == 1;
        surface.setWrapToWindow(on);
        peer.setLineWrapMode(on ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
        const int width = 300 + below(4) * 100;
        surface.resize(width, 300);
        peer.resize(width, 300);
        QApplication::processEvents();
        selectAnywhere();
    }

    /// The peer's column for moves up and down is the one that its caret had before the text or its rows changed.
    void forgetColumn()
    {
        const QTextCursor cursor = peer.textCursor();
        peer.select(cursor.anchor(), cursor.position());
    }

    Selection peerSelection() const
    {
        const QTextCursor cursor = peer.textCursor();
        const qsizetype from = peer.widened(cursor.selectionStart());
        return {from, peer.widened(cursor.selectionEnd()) - from};
    }

    QString step(int number)
    {
        QString done = stepOnce(number);
        if (done != QStringLiteral("move"))
            forgetColumn();
        return done;
    }

    QString stepOnce(int number)
    {
        if (number % 500 == 499 || peer.document()->characterCount() > 20000)
            return setAnew(), QStringLiteral("set");
        const int kind = below(100);
        if (kind < 2)
            return wrap(), QStringLiteral("wrap");
        if (kind < 20)
            return selectAnywhere(), QStringLiteral("select");
        if (kind < 60)
            return move(), QStringLiteral("move");
        if (kind < 95)
            return edit(), QStringLiteral("edit");
        return paste(), QStringLiteral("paste");
    }

    PlainPeer peer;
    QString m_pressed;
    int m_askedAgain = 0;
    QRandomGenerator m_random{20260712};
};

TEST_F(BesidePlainText, TextCaretAndSelectionAreTheSame)
{
    for (int number = 0; number < steps(); ++number) {
        const qsizetype before = surface.SelStart();
        m_pressed.clear();
        const QString done = step(number) + m_pressed;
        ASSERT_EQ(selection(), peerSelection())
            << number << ' ' << done.toStdString() << " from " << before << " in \""
            << surface.textPart(std::max(before - 20, qsizetype(0)), 40).toStdString() << '"'
            << (surface.wrapToWindow() ? " wrapped" : "") << " of " << surface.viewport()->width() << " and "
            << peer.viewport()->width();
        const bool wholeText = number % 8 == 0 || done.startsWith(QStringLiteral("paste"));
        if (wholeText) {
            ASSERT_EQ(surface.Text(), peer.text()) << number << ' ' << done.toStdString();
        }
    }
    EXPECT_EQ(surface.Text(), peer.text());
    EXPECT_LE(m_askedAgain, steps() / 10'000) << "of which a mistake of the surface's would make many";
}
} // namespace
