#pragma once

#include "surface/formatRuns.h"
#include "surface/surfaceText.h"
#include "surface/textMarks.h"

#include <QColor>
#include <QFont>
#include <QTextLayout>
#include <bitset>
#include <cmath>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>

/// How lines are laid out.
struct LayoutStyle {
    QFont font;
    qreal tabDistance = 80; ///< pixels
    qreal wrapWidth = 0;    ///< pixels that a row may take; 0: a row is as long as its line
    bool operator==(const LayoutStyle &) const = default;
};

/// Text that an input method composes at a place of a line, and which is not part of the text yet.
struct Preedit {
    qsizetype line = -1;
    qsizetype column = 0;
    QString text;
    QList<QTextLayout::FormatRange> formats; ///< counted from the start of the composed text
};

/// Which letters a text holds, by their codes, but for blanks. 0 stands for all from which on letters may come from
/// other fonts or stand above others, and for what is drawn as a box: nobody measures these.
using MeasuredLetters = std::bitset<0x300>;

/// A part of a line that is laid out in one: the whole line, if it is not a long one.
struct LinePiece {
    qsizetype start = 0; ///< in its line
    qsizetype length = 0;
    qsizetype preeditAt = -1; ///< where in the piece text is composed; -1: nowhere
    MeasuredLetters letters;
    std::unique_ptr<QTextLayout> layout;
    qreal width = 0;  ///< of its widest row, in pixels
    qreal height = 0; ///< of all its rows

    int rowCount() const { return layout->lineCount(); }
    /// The place in the layout of a place in the piece, and back. Both differ behind composed text.
    int inLayout(qsizetype place) const;
    qsizetype fromLayout(int place) const;
};

/// The layouts of the lines that somebody looks at. They are made when they are asked for and kept until they are
/// forgotten; how much of a text lies between two lines costs nothing.
///
/// A line of more than two thousand characters is laid out in pieces of about a thousand, so that it costs what is seen
/// of it. What pieces that were never laid out take is estimated by the width of a letter.
class LineLayouts
{
public:
    /// Behind values that are marked as colours, room is left for a square.
    LineLayouts(const SurfaceText &text, const FormatRuns &looks, const TextMarks &marks,
                std::function<QColor(ColourValue)> colour);

    const LayoutStyle &style() const { return m_style; }
    void setStyle(const LayoutStyle &style); ///< forgets all layouts
    bool wraps() const { return m_style.wrapWidth > 0; }
    qreal rowHeight() const { return m_rowHeight; }                    ///< of a row in the style's own font, in pixels
    qreal advance() const { return m_advance; }                        ///< of a letter of the style's font, in pixels
    qreal squareSide() const { return std::round(m_rowHeight * 0.6); } ///< of a colour's square, in pixels
    qreal squareRoom() const { return squareSide() + 4; }              ///< what a row leaves for one

    int pieceCount(qsizetype line) const;
    qsizetype pieceStart(qsizetype line, int piece) const; ///< in the line; for the count of pieces the line's length
    int pieceOf(qsizetype line, qsizetype column) const;   ///< the last one that starts at or before the column
    const LinePiece &piece(qsizetype line, int piece);     ///< laid out, if it is not yet
    quint64 laidOutCount() const { return m_laidOut; }     ///< of pieces, ever
    /// Counts how often lines were laid out, or forgotten but by keepOnly: while it stays, the rows of what was kept
    /// are as high as they were.
    quint64 changeCount() const { return m_laidOut + m_forgotten; }
    /// Where a piece of a row that is not wrapped starts, in pixels from the row's start.
    qreal pieceLeft(qsizetype line, int piece) const;
    /// The piece of a row that is not wrapped in which a place, counted in pixels, lies.
    int pieceAtPixel(qsizetype line, qreal x);
    qreal lineWidth(qsizetype line) const; ///< in pixels, as far as is known
    qreal heightOf(qsizetype line);        ///< of a row that is not wrapped
    /// How far what is drawn of a line may stand out of its rows, above and below, in pixels: fonts have signs that are
    /// higher than the rows that they ask for. `ratio`: of the screen's pixels to these.
    qreal reachOf(qsizetype line, qreal ratio) const;
    qreal farthestReach() const { return std::ceil(m_rowHeight / 3); }
    int rowsOf(qsizetype line) const; ///< of a wrapped line, as far as is known
    int rowsBefore(qsizetype line, int piece) const;
    int estimatedRows(qsizetype length) const; ///< of a line of that many characters

    void forgetAll();
    /// Forgets lines that gave way to others, and keeps those behind them under their new numbers.
    void replaceLines(qsizetype line, qsizetype removed, qsizetype added);
    /// Forgets the lines in which characters came to look different; true if there were any.
    bool forgetStretches(const std::vector<TextStretch> &stretches);
    void keepOnly(qsizetype firstLine, qsizetype lastLine); ///< forgets all others
    void setPreedit(const Preedit &preedit);
    const Preedit &preedit() const { return m_preedit; }

private:
    struct Size {
        qsizetype length = 0;
        qreal width = 0;
        int rows = 0;
    };
    struct Fit {
        qreal ratio = 0;
        bool keepsIn = false;
    };
    struct Line {
        std::unordered_map<int, LinePiece> pieces;
        std::map<int, Size> sizes; ///< of the pieces that were laid out once
        qreal advance = 0;         ///< of a character, by the first piece that was laid out
        mutable Fit fit;           ///< of its letters in its rows, as it was asked for last
    };

    struct Fits {
        qreal ratio = 0;
        MeasuredLetters known; ///< which were measured
        MeasuredLetters fitting;
    };

    const QFont &fontFor(const QString &text) const;
    QString drawnText(QString text, qsizetype skipped) const;
    bool fit(const MeasuredLetters &letters) const;
    bool fits(QChar letter, const QFont &font) const;
    LinePiece laidOut(qsizetype line, int number) const;
    QList<QTextLayout::FormatRange> formatsOf(qsizetype line, const LinePiece &piece) const;
    const QTextCharFormat &formatOf(const Look &look) const;
    const Line *known(qsizetype line) const;

    const SurfaceText &m_text;
    const FormatRuns &m_looks;
    const TextMarks &m_marks;
    std::function<QColor(ColourValue)> m_colour;
    LayoutStyle m_style;
    mutable std::optional<QFont> m_plainFont; ///< for text that needs no shaper, once it is asked for
    mutable QChar m_sign; ///< drawn for what a layout would take for its own marks, once one is needed
    mutable Fits m_fits;
    mutable std::vector<std::pair<Look, QTextCharFormat>> m_formats; ///< of the looks that were met
    Preedit m_preedit;
    quint64 m_laidOut = 0;
    quint64 m_forgotten = 0;
    qreal m_rowHeight = 1;
    qreal m_advance = 1;
    qsizetype m_columns = 1; ///< letters of that width that a wrapped row holds
    std::unordered_map<qsizetype, Line> m_lines;
};
