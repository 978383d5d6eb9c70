#include "common/longLines.h"

#include <QChar>
#include <algorithm>

namespace
{
constexpr qsizetype LongestWithBlanks = 10'000;
// Eight million characters in a line take some seconds and 200 MB; the widget below ends the program at about 200
// million.
constexpr qsizetype LongestShown = 8'000'000;
constexpr qsizetype MostMarksShown = 20'000; // half a second; no writing has more than a few

bool isMark(QChar c)
{
    return c.unicode() >= 0x300 && c.isMark();
}
} // namespace

LineExtremes lineExtremesOf(QStringView text)
{
    LineExtremes extremes;
    qsizetype line = 0;
    qsizetype marks = 0;
    for (const QChar c : text) {
        line = c == u'\n' || c == u'\r' ? 0 : line + 1;
        marks = isMark(c) ? marks + 1 : 0;
        extremes.longestLine = std::max(extremes.longestLine, line);
        extremes.mostMarks = std::max(extremes.mostMarks, marks);
    }
    return extremes;
}

bool hasLongLines(const LineExtremes &extremes)
{
    return extremes.longestLine > LongestWithBlanks;
}

bool canBeShown(const LineExtremes &extremes)
{
    return extremes.longestLine <= LongestShown && extremes.mostMarks <= MostMarksShown;
}
