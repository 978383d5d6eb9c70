#pragma once

#include <QString>
#include <optional>

/// Where the caret goes for a line of the text, both counted as the user does, lines from 1 and positions from 0:
/// behind the line feed in front of the line. A line that the text has not gives its end.
qsizetype caretOfLine(const QString &text, qint64 line);

/// What a field for a number says; nothing for an empty one. Numbers beyond what a text can hold are cut to the largest
/// number there is, so that they are larger than every count.
std::optional<qint64> numberIn(const QString &field);
