#pragma once

#include "document/lineChange.h"

#include <QStringView>

/// What keys do to whole lines: those that hold a character of the selection, or the caret's. Texts have every line
/// break as CR LF, and selections lie inside them.

/// Moves the lines one line up or down, with their selection. Nothing changes at the text's start or end.
LineChange movedLines(QStringView text, TextSelection selection, bool up);
/// Puts a copy below the lines, which is then selected as they were.
LineChange doubledLines(QStringView text, TextSelection selection);
/// Takes the lines away; the last ones of the text with the break in front of them. The caret keeps its column.
LineChange removedLines(QStringView text, TextSelection selection);

/// How a stretch of source is commented.
enum class CommentSigns { Html, Css, Script };

/// What stands at a position, counted from 0: a script or a style of the page goes by its own signs, and so does a file
/// of that kind (by the ending of `path`, which may be empty).
CommentSigns commentSignsAt(QStringView text, qsizetype position, const QString &path);

/// Makes a comment of the lines, or lines of their comment, by the signs of what stands at the first of them. HTML and
/// CSS take one pair of signs around all lines; lines of a script take one sign each. There is one blank inside of each
/// sign. Nothing changes where there is nothing but blanks.
LineChange toggledComment(QStringView text, TextSelection selection, const QString &path);
