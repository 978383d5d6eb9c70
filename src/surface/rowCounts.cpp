#include "surface/rowCounts.h"

#include <algorithm>
#include <iterator>
#include <numeric>

void RowCounts::reset(std::vector<quint32> rows)
{
    m_rows = std::move(rows);
    sumUp(0);
}

void RowCounts::set(qsizetype line, quint32 rows)
{
    const auto index = static_cast<size_t>(line);
    m_sums[index / blockSize] += qsizetype(rows) - m_rows[index];
    m_rows[index] = rows;
}

void RowCounts::replace(qsizetype line, qsizetype removed, const std::vector<quint32> &rows)
{
    if (removed == std::ssize(rows)) {
        for (qsizetype i = 0; i < removed; ++i)
            set(line + i, rows[static_cast<size_t>(i)]);
        return;
    }
    const auto at = m_rows.erase(m_rows.begin() + line, m_rows.begin() + line + removed);
    m_rows.insert(at, rows.begin(), rows.end());
    sumUp(static_cast<size_t>(line) / blockSize);
}

qsizetype RowCounts::before(qsizetype line) const
{
    const qsizetype block = line / qsizetype(blockSize);
    const qsizetype first = block * qsizetype(blockSize);
    return std::accumulate(m_sums.begin(), m_sums.begin() + block, qsizetype(0)) +
           std::accumulate(m_rows.begin() + first, m_rows.begin() + line, qsizetype(0));
}

qsizetype RowCounts::lineOf(qsizetype row) const
{
    qsizetype left = std::max(row, qsizetype(0));
    size_t block = 0;
    while (block + 1 < m_sums.size() && left >= m_sums[block])
        left -= m_sums[block++];
    size_t line = block * blockSize;
    while (line + 1 < m_rows.size() && left >= m_rows[line])
        left -= m_rows[line++];
    return static_cast<qsizetype>(line);
}

void RowCounts::sumUp(size_t firstBlock)
{
    m_sums.resize((m_rows.size() + blockSize - 1) / blockSize);
    for (size_t block = firstBlock; block < m_sums.size(); ++block) {
        const auto first = m_rows.begin() + static_cast<qsizetype>(block * blockSize);
        const auto last = m_rows.begin() + static_cast<qsizetype>(std::min((block + 1) * blockSize, m_rows.size()));
        m_sums[block] = std::accumulate(first, last, qsizetype(0));
    }
}
