#include "controlText.h"

#include "common/textSurface.h"
#include "widgets/controlWatch.h"
#include "widgets/controls.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

namespace drive
{
namespace
{
ControlText textOf(const QLineEdit &edit)
{
    const qsizetype start = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
    return {edit.text(), start, edit.selectedText().size(), edit.selectedText()};
}

ControlText textOf(const TextSurface &surface)
{
    return {surface.Text(), surface.SelStart(), surface.SelLength(), surface.SelText()};
}

/// A position of the widget, which counts a break as one, in the program's counting.
qsizetype widened(const QString &text, int position)
{
    qsizetype at = 0;
    for (int counted = 0; counted < position && at < text.size(); ++counted)
        at += text[at] == u'\r' ? 2 : 1;
    return at;
}

ControlText textOf(const QPlainTextEdit &area)
{
    const QString text = ui::textOf(area);
    const QTextCursor cursor = area.textCursor();
    const qsizetype start = widened(text, cursor.selectionStart());
    const qsizetype length = widened(text, cursor.selectionEnd()) - start;
    return {text, start, length, text.mid(start, length)};
}
} // namespace

QPlainTextEdit *textAreaOf(QWidget &control)
{
    return qobject_cast<QPlainTextEdit *>(&control);
}

std::optional<ControlText> textOfControl(const QWidget &control)
{
    auto &changeable = const_cast<QWidget &>(control);
    if (const auto *surface = dynamic_cast<const TextSurface *>(&control))
        return textOf(*surface);
    if (const QLineEdit *edit = lineEditOf(&changeable))
        return textOf(*edit);
    if (const QPlainTextEdit *area = textAreaOf(changeable))
        return textOf(*area);
    return {};
}
} // namespace drive
