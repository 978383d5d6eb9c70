#include "surface/surfaceView.h"

#include <algorithm>

SurfaceView::SurfaceView(const SurfaceText &text, const FormatRuns &looks, const TextMarks &marks,
                         std::function<QColor(ColourValue)> colour)
    : m_text(text), m_layouts(text, looks, marks, std::move(colour))
{
}

void SurfaceView::setStyle(const QFont &font, qreal tabDistance, bool wrap)
{
    keepTopInLine();
    const qsizetype anchor = rowStart(m_top);
    m_wrap = wrap;
    const qreal width = std::max(m_size.width() - 2 * margin, 1.0);
    const LayoutStyle style{font, tabDistance, wrap ? width : 0};
    if (style == m_layouts.style())
        return;
    m_layouts.setStyle(style);
    m_bottomTop.reset();
    countRows();
    estimateWidth();
    m_top = rowOf(anchor);
    m_hidden = 0;
    keepInText();
}

void SurfaceView::setSize(const QSizeF &size)
{
    m_size = size;
    m_bottomTop.reset();
    if (m_wrap)
        setStyle(m_layouts.style().font, m_layouts.style().tabDistance, true);
    keepInText();
}

void SurfaceView::textLoaded()
{
    m_layouts.forgetAll();
    m_bottomTop.reset();
    countRows();
    m_widest = 0;
    estimateWidth();
    m_top = {};
    m_hidden = 0;
    m_left = 0;
}

/// Estimates the rows of all lines anew.
void SurfaceView::countRows()
{
    if (wraps())
        m_rows.reset(estimatedRows(0, m_text.lineCount()));
    else
        m_rows.clear();
}

std::vector<quint32> SurfaceView::estimatedRows(qsizetype line, qsizetype count) const
{
    std::vector<quint32> rows;
    rows.reserve(static_cast<size_t>(count));
    for (qsizetype i = line; i < line + count; ++i)
        rows.push_back(static_cast<quint32>(m_layouts.estimatedRows(m_text.lineLength(i))));
    return rows;
}

/// Takes the longest line for the widest one, until a line that is on view turns out to be wider.
void SurfaceView::estimateWidth()
{
    if (wraps())
        return;
    qsizetype longest = 0;
    for (qsizetype line = 0; line < m_text.lineCount(); ++line)
        longest = std::max(longest, m_text.lineLength(line));
    m_widest = std::max(m_widest, static_cast<qreal>(longest) * m_layouts.advance());
}

void SurfaceView::linesReplaced(qsizetype line, qsizetype removed, qsizetype added)
{
    m_layouts.replaceLines(line, removed, added);
    const bool one = removed == 1 && added == 1 && (!wraps() || m_layouts.pieceCount(line) == 1);
    const quint32 rowsBefore = one && wraps() ? m_rows.rowsOf(line) : 0;
    if (one && wraps())
        pieceAt(line, 0); // which counts its rows
    else if (wraps())
        m_rows.replace(line, removed, estimatedRows(line, added));
    else
        for (qsizetype i = line; i < line + added; ++i)
            m_widest = std::max(m_widest, static_cast<qreal>(m_text.lineLength(i)) * m_layouts.advance());
    if (m_top.line >= line)
        keepTopInLine();
    const bool atBottomTop = m_bottomTop && m_bottomTop->line == line;
    if (one && !atBottomTop && (!wraps() || m_rows.rowsOf(line) == rowsBefore)) // the text's end stays where it is
        return;
    m_bottomTop.reset();
    keepInText();
}

/// Lays a piece out, and takes notice of how many rows it turns out to have.
const LinePiece &SurfaceView::pieceAt(qsizetype line, int number)
{
    const quint64 before = m_layouts.laidOutCount();
    const LinePiece &piece = m_layouts.piece(line, number);
    if (wraps() && m_layouts.laidOutCount() == before)
        return piece;
    if (!wraps())
        m_widest = std::max(m_widest, m_layouts.lineWidth(line));
    else if (const auto rows = static_cast<quint32>(std::max(m_layouts.rowsOf(line), 1)); rows != m_rows.rowsOf(line)) {
        m_rows.set(line, rows);
        m_bottomTop.reset();
    }
    return piece;
}

QTextLine SurfaceView::textLine(const RowPlace &row)
{
    return pieceAt(row.line, row.piece).layout->lineAt(row.row);
}

bool SurfaceView::next(RowPlace &row)
{
    if (wraps()) {
        if (row.row + 1 < pieceAt(row.line, row.piece).rowCount()) {
            ++row.row;
            return true;
        }
        if (row.piece + 1 < m_layouts.pieceCount(row.line)) {
            row = {row.line, row.piece + 1, 0};
            return true;
        }
    }
    if (row.line + 1 >= m_text.lineCount())
        return false;
    row = {row.line + 1, 0, 0};
    return true;
}

bool SurfaceView::previous(RowPlace &row)
{
    if (row.row > 0) {
        --row.row;
        return true;
    }
    if (row.piece == 0 && row.line == 0)
        return false;
    if (row.piece > 0)
        --row.piece;
    else
        row = {row.line - 1, wraps() ? m_layouts.pieceCount(row.line - 1) - 1 : 0, 0};
    if (wraps())
        row.row = pieceAt(row.line, row.piece).rowCount() - 1;
    return true;
}

qreal SurfaceView::heightOf(const RowPlace &row)
{
    return wraps() ? textLine(row).height() : m_layouts.heightOf(row.line);
}

RowPlace SurfaceView::lastRow()
{
    RowPlace row{m_text.lineCount() - 1, 0, 0};
    if (wraps()) {
        row.piece = m_layouts.pieceCount(row.line) - 1;
        row.row = pieceAt(row.line, row.piece).rowCount() - 1;
    }
    return row;
}

int SurfaceView::rowsOnView() const
{
    return std::max(static_cast<int>((m_size.height() - margin - 1) / m_layouts.rowHeight()), 1);
}

/// The top row where the text is scrolled to its end.
const RowPlace &SurfaceView::bottomTop()
{
    if (const std::optional<RowPlace> known = m_bottomTop; known && wraps()) {
        if (known->row >= pieceAt(known->line, known->piece).rowCount()) // laid out anew since, with other rows
            m_bottomTop.reset();
    }
    if (!m_bottomTop) {
        const RowPlace found = foundBottomTop(); // which may learn of rows
        m_bottomTop = found;
    }
    return *m_bottomTop;
}

RowPlace SurfaceView::foundBottomTop()
{
    RowPlace row = lastRow();
    if (!m_shown)
        return row;
    const qreal room = m_size.height() - margin - 1;
    RowPlace before = row;
    for (qreal height = heightOf(row); previous(before) && (height += heightOf(before)) <= room;)
        row = before;
    return row;
}

qsizetype SurfaceView::rowNumber(const RowPlace &row) const
{
    return wraps() ? m_rows.before(row.line) + m_layouts.rowsBefore(row.line, row.piece) + row.row : row.line;
}

qsizetype SurfaceView::lastTopRow()
{
    const qsizetype total = wraps() ? m_rows.total() : m_text.lineCount();
    if (m_shown && rowNumber() + 3 * qsizetype(rowsOnView()) < total) // too far from the end to lay that out
        return total - rowsOnView();
    return rowNumber(bottomTop());
}

/// Lets the view begin no later than where the text's last row is its last one.
void SurfaceView::keepInText()
{
    if (m_top.line >= m_text.lineCount())
        m_top = lastRow();
    const qsizetype total = wraps() ? m_rows.total() : m_text.lineCount();
    if (rowNumber() + 3 * qsizetype(rowsOnView()) < total)
        return;
    const RowPlace last = bottomTop();
    if (m_top > last || (m_top == last && m_hidden > 0)) {
        m_top = last;
        m_hidden = 0;
    }
}

/// The top row's line may be another one since, or have been laid out anew with fewer rows.
void SurfaceView::keepTopInLine()
{
    if (!wraps() || m_top.line >= m_text.lineCount())
        return;
    m_top.piece = std::min(m_top.piece, m_layouts.pieceCount(m_top.line) - 1);
    m_top.row = std::min(m_top.row, pieceAt(m_top.line, m_top.piece).rowCount() - 1);
}

void SurfaceView::scrollTo(const RowPlace &row, qreal hidden)
{
    m_top = row;
    m_hidden = hidden;
    keepInText();
}

void SurfaceView::scrollToRow(qsizetype number)
{
    if (!wraps())
        return scrollTo({std::clamp(number, qsizetype(0), m_text.lineCount() - 1), 0, 0});
    RowPlace row{m_rows.lineOf(number), 0, 0};
    const auto inLine = static_cast<int>(std::max(number - m_rows.before(row.line), qsizetype(0)));
    int end = m_layouts.pieceCount(row.line);
    while (end - row.piece > 1) {
        const int middle = row.piece + (end - row.piece) / 2;
        (m_layouts.rowsBefore(row.line, middle) <= inLine ? row.piece : end) = middle;
    }
    const int inPiece = inLine - m_layouts.rowsBefore(row.line, row.piece);
    row.row = std::clamp(inPiece, 0, pieceAt(row.line, row.piece).rowCount() - 1);
    scrollTo(row);
}

void SurfaceView::scrollByPixels(qreal down)
{
    keepTopInLine();
    RowPlace row = m_top;
    qreal hidden = m_hidden + down;
    while (hidden < 0 && previous(row))
        hidden += heightOf(row);
    for (qreal height = heightOf(row); hidden >= height && next(row); height = heightOf(row))
        hidden -= height;
    scrollTo(row, std::max(hidden, 0.0));
}

qreal SurfaceView::widest()
{
    return wraps() ? 0 : m_widest + 2 * margin;
}
