#pragma once

#include <QSizeF>

class QFont;
class QFontMetricsF;
class QPainter;
struct Paper;
struct PrintJob;

/// How a page is laid out on paper, in points: the lines from the top, the line numbers before them where the job has
/// them, and a foot with the title and the page's number.
namespace printed
{
/// What stays free around it, unless the user chooses otherwise.
constexpr qreal Margin = 36;

/// Paper of that size within its margins, in points, on which text is measured by `metrics`; `pixels` is their length
/// of one point.
Paper measuredPaper(const QSizeF &size, const QFontMetricsF &metrics, qreal pixels);
/// Paper of the size A4 with that margin, where no printer is there to ask; text is measured as on the screen.
Paper usualPaper(const QFont &font);

/// The lines that fit over the foot, at least one.
int linesOfPage(qreal height, qreal lineHeight);
/// The room that the line numbers take up before the text, where `lines` is the last number and `digit` a digit's
/// width.
qreal numberColumn(qsizetype lines, qreal digit);

/// Draws a page, counted from 0, from the painter's origin. `pixels` is the painter's length of one point; the
/// painter's device tells the size of fonts.
void drawPage(QPainter &painter, const PrintJob &job, int page, const QSizeF &paper, qreal pixels);
} // namespace printed
