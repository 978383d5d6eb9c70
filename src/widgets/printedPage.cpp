#include "widgets/printedPage.h"

#include "services/printing.h"
#include "widgets/themeColour.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <algorithm>

namespace printed
{
namespace
{
constexpr int FootLines = 2; ///< an empty one, and the one that tells title and page

/// The theme of paper: black on white, whatever the desktop's is.
QPalette paperPalette()
{
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    return palette;
}

qsizetype lastNumber(const PrintJob &job)
{
    qsizetype last = 0;
    for (const PrintedPage &page : job.pages)
        for (const PrintedLine &line : page.lines)
            last = std::max<qsizetype>(last, line.number);
    return last;
}

QFont fontOf(const QFont &font, const TextFormat &format)
{
    QFont styled = font;
    styled.setBold(format.bold.value_or(false));
    styled.setUnderline(format.underline.value_or(false));
    return styled;
}

/// Draws a line's text with its base line at `place`.
void drawText(QPainter &painter, const QFont &font, const PrintedLine &line, QPointF place)
{
    painter.setFont(font);
    painter.setPen(Qt::black);
    if (line.formats.isEmpty()) {
        painter.drawText(place, line.text);
        return;
    }
    for (const FormatRange &part : line.formats) {
        const QString text = line.text.mid(part.start, part.length);
        painter.setFont(fontOf(font, part.format));
        painter.setPen(shownColour(part.format.colour.value_or(WindowTextColour), paperPalette()));
        painter.drawText(place, text);
        place.rx() += painter.fontMetrics().horizontalAdvance(text);
    }
}

void drawFoot(QPainter &painter, const PrintJob &job, int page, const QSizeF &size)
{
    painter.setFont(job.font);
    painter.setPen(Qt::black);
    const qreal height = QFontMetricsF(job.font, painter.device()).lineSpacing();
    const QRectF foot(0, size.height() - height, size.width(), height);
    const QString number = QStringLiteral("%1 / %2").arg(page + 1).arg(job.pages.size());
    const qreal room = size.width() - painter.fontMetrics().horizontalAdvance(number + u' ');
    painter.drawText(foot, Qt::AlignLeft | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(job.title, Qt::ElideMiddle, qRound(room)));
    painter.drawText(foot, Qt::AlignRight | Qt::TextSingleLine, number);
}
} // namespace

Paper measuredPaper(const QSizeF &size, const QFontMetricsF &metrics, qreal pixels)
{
    return {.size = size,
            .lineHeight = metrics.lineSpacing() / pixels,
            .textWidth = [metrics, pixels](const QString &text) { return metrics.horizontalAdvance(text) / pixels; }};
}

Paper usualPaper(const QFont &font)
{
    constexpr qreal PointsPerInch = 72;
    const QSizeF size = QPageSize::size(QPageSize::A4, QPageSize::Point) - QSizeF(2 * Margin, 2 * Margin);
    return measuredPaper(size, QFontMetricsF(font),
                         QGuiApplication::primaryScreen()->logicalDotsPerInchY() / PointsPerInch);
}

int linesOfPage(qreal height, qreal lineHeight)
{
    return lineHeight > 0 ? std::max(static_cast<int>(height / lineHeight) - FootLines, 1) : 1;
}

qreal numberColumn(qsizetype lines, qreal digit)
{
    return static_cast<qreal>(QString::number(lines).size() + 2) * digit;
}

void drawPage(QPainter &painter, const PrintJob &job, int page, const QSizeF &paper, qreal pixels)
{
    const QFontMetricsF metrics(job.font, painter.device());
    const qreal digit = metrics.horizontalAdvance(u'0');
    const qreal column = job.lineNumbers ? numberColumn(lastNumber(job), digit) : 0;
    qreal base = metrics.ascent();
    for (const PrintedLine &line : job.pages[page].lines) {
        if (job.lineNumbers && line.number > 0) {
            const QString number = QString::number(line.number);
            painter.setFont(job.font);
            painter.setPen(Qt::darkGray);
            painter.drawText(QPointF(column - 2 * digit - metrics.horizontalAdvance(number), base), number);
        }
        drawText(painter, job.font, line, QPointF(column, base));
        base += metrics.lineSpacing();
    }
    drawFoot(painter, job, page, paper * pixels);
}
} // namespace printed
