#pragma once

#include "document/lineChange.h"
#include "services/editorSettings.h"

/// Indentation as today's editors do it: by whole lines and by the width that is set. Texts have every line break as
/// CR LF, and selections lie inside them.

/// Moves the lines of the selection one step inwards. A line is in the selection if a character of it is; empty lines
/// stay empty. What was selected stays selected, from the line's start if the selection began there.
LineChange indentedLines(QStringView text, TextSelection selection, const IndentStyle &style);
/// Takes one step, or what there is of it, from the front of the lines of the selection, or of the caret's line.
LineChange outdentedLines(QStringView text, TextSelection selection, const IndentStyle &style);
/// Goes from the caret to the next stop, by blanks or a tab.
LineChange filledToNextStop(QStringView text, qsizetype caret, const IndentStyle &style);
/// One step as it is written.
QString indentStep(const IndentStyle &style);
/// The blanks and tabs in front of the caret's line, as far as the caret.
QString indentationBefore(QStringView text, qsizetype caret);
