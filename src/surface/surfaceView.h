#pragma once

#include "surface/lineLayouts.h"
#include "surface/rowCounts.h"

#include <QRectF>
#include <QSizeF>
#include <compare>

/// A row as it is drawn. Without wrapping a line is one row, and its piece and row are 0.
struct RowPlace {
    qsizetype line = 0;
    int piece = 0;
    int row = 0;                                        ///< in the piece
    auto operator<=>(const RowPlace &) const = default; // NOLINT(modernize-use-nullptr)
};

/// A row that is on view, in pixels of the view.
struct ShownRow {
    RowPlace place;
    qreal top = 0;
    qreal height = 0;
};

/// Which part of a text is on view, and where its characters stand there.
///
/// The view is tied to its top row and to how much of that is above the view; nothing else is kept in pixels of the
/// whole text. So what lies above it may turn out to be longer or shorter than estimated, and the view stays.
class SurfaceView
{
public:
    static constexpr qreal margin = 4; ///< left of the text, right of it where it wraps, above its first row

    SurfaceView(const SurfaceText &text, const FormatRuns &looks, const TextMarks &marks,
                std::function<QColor(ColourValue)> colour);

    LineLayouts &layouts() { return m_layouts; }
    const LineLayouts &layouts() const { return m_layouts; }
    bool wraps() const { return m_layouts.wraps(); }

    /// How lines are laid out; the wrap width follows the view's size if `wrap` is set. The top row stays the one that
    /// holds the same character.
    void setStyle(const QFont &font, qreal tabDistance, bool wrap);
    void setSize(const QSizeF &size);
    const QSizeF &size() const { return m_size; }
    /// A view that nobody sees can be scrolled to any row.
    void setShown(bool shown)
    {
        m_shown = shown;
        m_bottomTop.reset();
    }

    void textLoaded();
    /// `removed` lines from `line` on have given way to `added` ones. The view stays at the number of its top line.
    void linesReplaced(qsizetype line, qsizetype removed, qsizetype added);

    const RowPlace &top() const { return m_top; }
    qreal left() const { return m_left; } ///< pixels of the rows that are left of the view
    void setLeft(qreal left) { m_left = left; }
    void scrollTo(const RowPlace &row, qreal hidden = 0); ///< as far as the text allows
    void scrollToRow(qsizetype number);                   ///< of all rows, as far as known
    void scrollByPixels(qreal down);
    qsizetype rowNumber(const RowPlace &row) const; ///< among all rows, as far as known
    qsizetype rowNumber() const { return rowNumber(m_top); }
    qsizetype lastTopRow(); ///< the number of the row that is the top one where the text is scrolled to its end
    int rowsOnView() const; ///< of the style's own font
    qreal widest();         ///< width of the text as far as known, both margins included; 0 where it wraps

    std::vector<ShownRow> rows() { return shownRows(); } ///< on view, from the top; the last one may be cut
    RowPlace rowOf(qsizetype position);
    bool next(RowPlace &row); ///< false at the text's end
    bool previous(RowPlace &row);
    qreal heightOf(const RowPlace &row);
    qsizetype rowStart(const RowPlace &row);
    qsizetype rowEnd(const RowPlace &row); ///< in front of the break, or of the blank at which the row wraps
    /// Where a piece of a row starts, in pixels from the left of the view.
    qreal pieceX(qsizetype line, int piece);
    /// The caret in front of a character, in pixels of the view. Outside of the view its height there is estimated.
    QRectF caretRect(qsizetype position, qsizetype preeditCaret = 0);
    qreal topOf(const RowPlace &place);
    /// The square behind a marked colour, in pixels of the view.
    QRectF squareOf(const MarkedRange &mark);
    /// The height of all rows of a line that is laid out in one; nothing for a longer line that wraps.
    std::optional<qreal> lineHeight(qsizetype line);
    /// The position in a row that a place of the view, in pixels, stands for.
    qsizetype positionInRow(const RowPlace &row, qreal x,
                            QTextLine::CursorPosition by = QTextLine::CursorBetweenCharacters);
    RowPlace rowAt(qreal y); ///< the nearest one on view
    /// Scrolls up or down until the row is on view; true if it had to.
    bool show(const RowPlace &wanted);
    bool rightToLeft(qsizetype position);

private:
    /// What the rows on view were found by.
    struct Found {
        RowPlace top;
        qreal hidden = 0;
        qreal height = 0; // of the view
        quint64 layouts = 0;
        bool operator==(const Found &) const = default;
    };

    const std::vector<ShownRow> &shownRows();
    const LinePiece &pieceAt(qsizetype line, int number);
    QTextLine textLine(const RowPlace &row);
    qreal topMargin(const RowPlace &row) const { return row.line == 0 ? margin : 0; }
    RowPlace lastRow();
    const RowPlace &bottomTop();
    RowPlace foundBottomTop();
    void keepInText();
    void keepTopInLine();
    void countRows();
    std::vector<quint32> estimatedRows(qsizetype line, qsizetype count) const;
    void estimateWidth();

    const SurfaceText &m_text;
    LineLayouts m_layouts;
    RowCounts m_rows;                    ///< of the lines, where they wrap
    std::optional<RowPlace> m_bottomTop; ///< nothing while lines, their rows or the size may have changed
    QSizeF m_size;
    RowPlace m_top;
    qreal m_hidden = 0; ///< pixels of the top row above the view
    qreal m_left = 0;
    qreal m_widest = 0;
    bool m_wrap = false;
    bool m_shown = false;
    std::vector<ShownRow> m_shownRows; ///< asked for several times by every key
    Found m_found;                     ///< what they were found by
};
