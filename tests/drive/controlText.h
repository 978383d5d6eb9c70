#pragma once

#include <QString>
#include <optional>

class QPlainTextEdit;
class QWidget;

namespace drive
{
/// A text and the selection in it. Positions count characters from 0; a line break counts as two.
struct ControlText {
    QString text;
    qsizetype selStart = 0;
    qsizetype selLength = 0;
    QString selText;
};

/// What stands in a text box, a text area, an editable combo, a colour picker or the edit surface; nothing for others.
std::optional<ControlText> textOfControl(const QWidget &control);

/// The text area or edit surface that is typed into.
QPlainTextEdit *textAreaOf(QWidget &control);
} // namespace drive
