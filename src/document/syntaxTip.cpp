#include "document/syntaxTip.h"

#include "common/text.h"

#include <QScopedValueRollback>
#include <QTextCursor>
#include <algorithm>

namespace
{
QTextCharFormat boldFormat()
{
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    return format;
}

QTextCharFormat italicFormat()
{
    QTextCharFormat format;
    format.setFontItalic(true);
    return format;
}
} // namespace

TipFormats tipFormats(QStringView syntax)
{
    TipFormats formats;
    const qsizetype blank = syntax.indexOf(u' ');
    formats.bold = {1, (blank < 0 ? syntax.size() : blank) - 1};
    // A place counted from 1 is taken as a start counted from 0.
    for (qsizetype open = Find(syntax, u"[").value_or(0); open > 0; open = Find(syntax, u"[", open + 1).value_or(0)) {
        const qsizetype length = Find(syntax, u"]", open).value_or(0) - open + 1;
        if (length >= 0)
            formats.italic.append({open, length});
    }
    return formats;
}

SyntaxTip::SyntaxTip(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setForegroundRole(QPalette::PlaceholderText); // the frame's
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setFocusPolicy(Qt::TabFocus);
    viewport()->setCursor(Qt::ArrowCursor);
    connect(this, &QPlainTextEdit::textChanged, this, &SyntaxTip::pickOut);
}

void SyntaxTip::setSyntax(const QString &syntax)
{
    setPlainText(syntax);
}

int SyntaxTip::sideways() const
{
    return 2 * (frameWidth() + qRound(document()->documentMargin()));
}

void SyntaxTip::setCut(bool cut)
{
    setVerticalScrollBarPolicy(cut ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void SyntaxTip::mousePressEvent(QMouseEvent *)
{
    Q_EMIT clicked();
}

void SyntaxTip::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    Q_EMIT gotFocus();
}

void SyntaxTip::pickOut()
{
    if (m_pickingOut)
        return;
    const QScopedValueRollback<bool> pickingOut(m_pickingOut, true);
    const TipFormats formats = tipFormats(toPlainText());
    const auto last = document()->characterCount() - 1;
    const auto merge = [&](const TextSelection &range, const QTextCharFormat &format) {
        QTextCursor cursor(document());
        cursor.setPosition(std::min(static_cast<int>(range.start), last));
        cursor.setPosition(std::min(static_cast<int>(range.start + range.length), last), QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    };
    merge(formats.bold, boldFormat());
    for (const TextSelection &range : formats.italic)
        merge(range, italicFormat());
}
