#pragma once

#include <QtGlobal>

#include <vector>

/// How many rows each line of a wrapped text has, as far as is known or estimated, and where in the text's rows a line
/// stands. Lines and rows count from 0. Sums take time in proportion to the lines of a block and to the number of
/// blocks, both some hundreds in a large text.
class RowCounts
{
public:
    void reset(std::vector<quint32> rows);
    void set(qsizetype line, quint32 rows);
    /// `removed` lines from `line` on give way to others.
    void replace(qsizetype line, qsizetype removed, const std::vector<quint32> &rows);
    void clear() { reset({}); }

    quint32 rowsOf(qsizetype line) const { return m_rows[static_cast<size_t>(line)]; }
    qsizetype before(qsizetype line) const;
    qsizetype total() const { return before(static_cast<qsizetype>(m_rows.size())); }
    /// The line that a row belongs to, cut to the first and the last line.
    qsizetype lineOf(qsizetype row) const;

private:
    static constexpr size_t blockSize = 512;
    void sumUp(size_t firstBlock);

    std::vector<quint32> m_rows;
    std::vector<qsizetype> m_sums; ///< of the rows of each block of lines
};
