#pragma once

#include <QStringView>

/// What makes the lines of a text costly to lay out.
struct LineExtremes {
    qsizetype longestLine = 0; ///< characters
    qsizetype mostMarks = 0;   ///< combining marks in a row
};
LineExtremes lineExtremesOf(QStringView text);

/// Whether lines are so long that looking for blanks to break them at takes more than the lines are worth.
bool hasLongLines(const LineExtremes &extremes);
/// Whether the text can be shown at all with the time and memory there is.
bool canBeShown(const LineExtremes &extremes);
