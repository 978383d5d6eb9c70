// Where in the view the rows, lines and positions of the text are.
#include "surface/surfaceView.h"

#include <algorithm>
#include <cmath>

/// The rows on view, which stay where they are until another question is asked that lays text out.
const std::vector<ShownRow> &SurfaceView::shownRows()
{
    keepTopInLine();
    const auto asked = [this] { return Found{m_top, m_hidden, m_size.height(), m_layouts.changeCount()}; };
    if (!m_shownRows.empty() && m_found == asked())
        return m_shownRows;
    std::vector<ShownRow> rows;
    RowPlace row = m_top;
    qreal top = -m_hidden + (row == RowPlace() ? margin : 0);
    do {
        const qreal height = heightOf(row);
        rows.push_back({row, top, height});
        top += height;
    } while (top < m_size.height() && next(row));
    m_shownRows = std::move(rows);
    m_found = asked(); // finding them has laid out those that were not
    return m_shownRows;
}

RowPlace SurfaceView::rowOf(qsizetype position)
{
    RowPlace row{m_text.lineAt(position), 0, 0};
    if (!wraps())
        return row;
    const qsizetype column = std::min(position - m_text.lineStart(row.line), m_text.lineLength(row.line));
    row.piece = m_layouts.pieceOf(row.line, column);
    const LinePiece &piece = pieceAt(row.line, row.piece);
    const QTextLine line = piece.layout->lineForTextPosition(piece.inLayout(column - piece.start));
    row.row = line.isValid() ? line.lineNumber() : 0;
    return row;
}

qsizetype SurfaceView::rowStart(const RowPlace &row)
{
    const qsizetype start = m_text.lineStart(row.line);
    if (!wraps())
        return start;
    const LinePiece &piece = pieceAt(row.line, row.piece);
    return start + piece.start + piece.fromLayout(piece.layout->lineAt(row.row).textStart());
}

qsizetype SurfaceView::rowEnd(const RowPlace &row)
{
    if (!wraps())
        return m_text.lineEnd(row.line);
    const LinePiece &piece = pieceAt(row.line, row.piece);
    const QTextLine line = piece.layout->lineAt(row.row);
    const qsizetype end =
        m_text.lineStart(row.line) + piece.start + piece.fromLayout(line.textStart() + line.textLength());
    if (end == m_text.lineEnd(row.line))
        return end;
    const bool atBlank = line.textLength() > 0 && m_text.mid(end - 1, 1)[0].isSpace();
    const bool pieceEnds = row.row + 1 == piece.rowCount(); // behind it, the caret stands in the next row
    return end - (atBlank || pieceEnds ? 1 : 0);
}

qreal SurfaceView::pieceX(qsizetype line, int piece)
{
    if (wraps())
        return margin;
    qreal left = margin - m_left;
    // A row from right to left stands at the right side, as long as it is not wider than the view.
    const LinePiece &first = pieceAt(line, 0);
    if (first.layout->text().isRightToLeft())
        left += std::max(m_size.width() - 2 * margin - m_layouts.lineWidth(line), 0.0);
    return left + m_layouts.pieceLeft(line, piece);
}

qreal SurfaceView::topOf(const RowPlace &place)
{
    const std::vector<ShownRow> &shown = shownRows();
    if (place >= shown.front().place && place <= shown.back().place) {
        const auto found =
            std::find_if(shown.begin(), shown.end(), [&](const ShownRow &row) { return row.place >= place; });
        return found->top;
    }
    return shown.front().top + static_cast<qreal>(rowNumber(place) - rowNumber()) * m_layouts.rowHeight();
}

QRectF SurfaceView::caretRect(qsizetype position, qsizetype preeditCaret)
{
    const RowPlace row = rowOf(position);
    const qsizetype column = position - m_text.lineStart(row.line);
    const int number = wraps() ? row.piece : m_layouts.pieceOf(row.line, column);
    const qreal x = pieceX(row.line, number);
    const LinePiece &piece = pieceAt(row.line, number);
    int place = piece.inLayout(column - piece.start);
    if (piece.preeditAt >= 0 && piece.preeditAt == column - piece.start)
        place += static_cast<int>(preeditCaret);
    const QTextLine line = piece.layout->lineAt(row.row);
    return {x + line.cursorToX(place), topOf(row), 1, line.height()};
}

QRectF SurfaceView::squareOf(const MarkedRange &mark)
{
    const qsizetype last = mark.start + mark.length - 1;
    const RowPlace row = rowOf(last);
    const qsizetype column = last - m_text.lineStart(row.line);
    const int number = wraps() ? row.piece : m_layouts.pieceOf(row.line, column);
    const qreal left = pieceX(row.line, number);
    const LinePiece &piece = pieceAt(row.line, number);
    const QTextLine line = piece.layout->lineAt(row.row);
    const qreal end = left + line.cursorToX(piece.inLayout(column - piece.start), QTextLine::Trailing);
    const qreal side = m_layouts.squareSide();
    const qreal gap = (m_layouts.squareRoom() - side) / 2;
    return {std::round(end - gap - side), std::round(topOf(row) + (line.height() - side) / 2), side, side};
}

std::optional<qreal> SurfaceView::lineHeight(qsizetype line)
{
    if (!wraps())
        return m_layouts.heightOf(line);
    return m_layouts.pieceCount(line) == 1 ? std::optional(pieceAt(line, 0).height) : std::nullopt;
}

qsizetype SurfaceView::positionInRow(const RowPlace &row, qreal x, QTextLine::CursorPosition by)
{
    const int number = wraps() ? row.piece : m_layouts.pieceAtPixel(row.line, x - pieceX(row.line, 0));
    const qreal left = pieceX(row.line, number);
    const LinePiece &piece = pieceAt(row.line, number);
    const int place = piece.layout->lineAt(row.row).xToCursor(x - left, by);
    const qsizetype column = std::clamp(piece.fromLayout(place), qsizetype(0), piece.length);
    return m_text.lineStart(row.line) + piece.start + column;
}

RowPlace SurfaceView::rowAt(qreal y)
{
    const std::vector<ShownRow> &shown = shownRows();
    const auto behind =
        std::find_if(shown.begin(), shown.end(), [&](const ShownRow &row) { return row.top + row.height > y; });
    return behind == shown.end() ? shown.back().place : behind->place;
}

bool SurfaceView::show(const RowPlace &wanted)
{
    for (const ShownRow &row : shownRows()) {
        if (row.place == wanted && row.top >= 0 && row.top + row.height <= m_size.height())
            return false;
    }
    if (wanted <= m_top) {
        m_top = wanted;
        m_hidden = 0;
        return true;
    }
    RowPlace row = wanted;
    RowPlace before = wanted;
    for (qreal height = heightOf(row); previous(before);) {
        height += heightOf(before);
        if (height + topMargin(before) > m_size.height())
            break;
        row = before;
    }
    m_top = row;
    m_hidden = 0;
    return true;
}

bool SurfaceView::rightToLeft(qsizetype position)
{
    const qsizetype line = m_text.lineAt(position);
    return pieceAt(line, 0).layout->text().isRightToLeft();
}
