#pragma once

#include <QStringView>

/// The number of blanks that a new line after the caret starts with, to keep the line's indentation: those in front of
/// the caret's line, as far as the caret. `caret` counts from 0. In a document's first line the first character is not
/// looked at, for there is no break of two characters in front of it.
qsizetype leadingBlanksBefore(QStringView text, qsizetype caret);
