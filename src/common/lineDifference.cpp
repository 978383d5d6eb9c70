#include "common/lineDifference.h"

#include <QList>
#include <vector>

namespace
{
/// More differing lines than this are not put in order one by one.
constexpr qsizetype MostSteps = 2000;

QList<QStringView> linesOf(QStringView text)
{
    QList<QStringView> lines;
    qsizetype start = 0;
    while (start <= text.size()) {
        qsizetype end = start;
        while (end < text.size() && text[end] != u'\r' && text[end] != u'\n')
            ++end;
        lines << text.sliced(start, end - start);
        const bool pair = end + 1 < text.size() && text[end] == u'\r' && text[end + 1] == u'\n';
        start = end + (pair ? 2 : 1);
    }
    return lines;
}

/// The shortest way from one list of lines to another: for each count of steps, how far along the old lines the best
/// way of each diagonal comes.
class ShortestWay
{
public:
    ShortestWay(const QList<QStringView> &from, const QList<QStringView> &to) : m_from(from), m_to(to) {}

    QStringList steps()
    {
        if (!find())
            return all();
        QStringList told;
        qsizetype x = m_from.size();
        qsizetype y = m_to.size();
        for (qsizetype step = static_cast<qsizetype>(m_reached.size()) - 1; step > 0; --step) {
            const bool added = comesByAdding(m_reached[static_cast<size_t>(step - 1)], step, x - y);
            const qsizetype before = added ? x - y + 1 : x - y - 1;
            const qsizetype cameFrom = at(m_reached[static_cast<size_t>(step - 1)], step - 1, before);
            if (added)
                told.prepend(QStringLiteral("+ ") + m_to[cameFrom - before].toString());
            else
                told.prepend(QStringLiteral("- ") + m_from[cameFrom].toString());
            x = cameFrom;
            y = cameFrom - before;
        }
        return told;
    }

private:
    using Row = std::vector<qsizetype>; ///< of a step: the diagonals from -step to step, every second one

    static qsizetype at(const Row &row, qsizetype step, qsizetype diagonal)
    {
        return row[static_cast<size_t>((diagonal + step) / 2)];
    }

    static bool comesByAdding(const Row &before, qsizetype step, qsizetype diagonal)
    {
        if (diagonal == -step)
            return true;
        return diagonal != step && at(before, step - 1, diagonal - 1) < at(before, step - 1, diagonal + 1);
    }

    bool find()
    {
        for (qsizetype step = 0; step <= MostSteps; ++step) {
            Row row(static_cast<size_t>(step + 1));
            for (qsizetype diagonal = -step; diagonal <= step; diagonal += 2) {
                qsizetype x = 0;
                if (step > 0) {
                    const Row &before = m_reached.back();
                    x = comesByAdding(before, step, diagonal) ? at(before, step - 1, diagonal + 1)
                                                              : at(before, step - 1, diagonal - 1) + 1;
                }
                while (x < m_from.size() && x - diagonal < m_to.size() && m_from[x] == m_to[x - diagonal])
                    ++x;
                row[static_cast<size_t>((diagonal + step) / 2)] = x;
                if (x >= m_from.size() && x - diagonal >= m_to.size()) {
                    m_reached.push_back(std::move(row));
                    return true;
                }
            }
            m_reached.push_back(std::move(row));
        }
        return false;
    }

    QStringList all() const
    {
        QStringList told;
        for (const QStringView line : m_from)
            told << QStringLiteral("- ") + line.toString();
        for (const QStringView line : m_to)
            told << QStringLiteral("+ ") + line.toString();
        return told;
    }

    const QList<QStringView> &m_from;
    const QList<QStringView> &m_to;
    std::vector<Row> m_reached;
};
} // namespace

QStringList lineDifference(const QString &oldText, const QString &newText)
{
    QList<QStringView> from = linesOf(oldText);
    QList<QStringView> to = linesOf(newText);
    while (!from.isEmpty() && !to.isEmpty() && from.constLast() == to.constLast()) {
        from.removeLast();
        to.removeLast();
    }
    qsizetype alike = 0;
    while (alike < from.size() && alike < to.size() && from[alike] == to[alike])
        ++alike;
    from = from.mid(alike);
    to = to.mid(alike);
    return ShortestWay(from, to).steps();
}
