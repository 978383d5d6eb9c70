#include "surface/textMarks.h"

#include <algorithm>
#include <iterator>

namespace
{
bool startsBefore(const MarkedRange &one, const MarkedRange &other)
{
    return one.start < other.start;
}
} // namespace

std::vector<TextStretch> TextMarks::set(MarkOwner owner, const QList<MarkedRange> &marks, qsizetype textLength)
{
    QList<MarkedRange> after;
    for (MarkedRange mark : marks) {
        if (mark.start < 0 || mark.length < 0 || mark.start > textLength)
            continue;
        mark.length = std::min(mark.length, textLength - mark.start);
        after.append(mark);
    }
    std::stable_sort(after.begin(), after.end(), startsBefore);
    QList<MarkedRange> before;
    for (const Owned &owned : m_marks) {
        if (owned.owner == owner)
            before.append(owned.mark);
    }
    // Those at the front and at the back that are as they were look as they did.
    auto [oldFirst, newFirst] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    auto oldLast = before.end();
    auto newLast = after.end();
    while (oldLast != oldFirst && newLast != newFirst && *std::prev(oldLast) == *std::prev(newLast)) {
        --oldLast;
        --newLast;
    }
    std::vector<TextStretch> changed;
    for (const auto &[first, last] : {std::pair(oldFirst, oldLast), std::pair(newFirst, newLast)}) {
        std::transform(first, last, std::back_inserter(changed), [](const MarkedRange &mark) {
            return TextStretch{mark.start, mark.start + mark.length};
        });
    }
    if (changed.empty())
        return changed;
    std::erase_if(m_marks, [owner](const Owned &owned) { return owned.owner == owner; });
    const auto others = static_cast<std::ptrdiff_t>(m_marks.size());
    std::transform(after.begin(), after.end(), std::back_inserter(m_marks), [owner](const MarkedRange &mark) {
        return Owned{mark, owner};
    });
    std::inplace_merge(m_marks.begin(), m_marks.begin() + others, m_marks.end(),
                       [](const Owned &one, const Owned &two) { return startsBefore(one.mark, two.mark); });
    noteLongest();
    return changed;
}

void TextMarks::move(qsizetype from, qsizetype to, qsizetype added)
{
    const auto moved = [&](qsizetype place, bool isEnd) {
        if (place < from || (isEnd && place == from))
            return place;
        return place >= to ? place + added - (to - from) : (isEnd ? from : from + added);
    };
    bool lost = false;
    const auto first = firstFrom(from - m_longest) - m_marks.cbegin();
    for (auto i = m_marks.begin() + first; i != m_marks.end(); ++i) {
        MarkedRange &mark = i->mark;
        if (mark.length == 0) {
            mark.start = moved(mark.start, false);
            continue;
        }
        const qsizetype end = moved(mark.start + mark.length, true);
        mark.start = moved(mark.start, false);
        mark.length = std::max(end - mark.start, qsizetype(0));
        lost = lost || mark.length == 0;
        m_longest = std::max(m_longest, mark.length);
        if (mark.length == 0)
            mark.start = -1;
    }
    if (lost)
        std::erase_if(m_marks, [](const Owned &owned) { return owned.mark.start < 0; });
}

void TextMarks::clear()
{
    m_marks.clear();
    m_longest = 0;
}

QList<MarkedRange> TextMarks::all() const
{
    QList<MarkedRange> marks;
    marks.reserve(static_cast<qsizetype>(m_marks.size()));
    for (const Owned &owned : m_marks)
        marks.append(owned.mark);
    return marks;
}

std::vector<TextMarks::Owned>::const_iterator TextMarks::firstFrom(qsizetype position) const
{
    return std::partition_point(m_marks.begin(), m_marks.end(),
                                [&](const Owned &owned) { return owned.mark.start < position; });
}

void TextMarks::noteLongest()
{
    m_longest = 0;
    for (const Owned &owned : m_marks)
        m_longest = std::max(m_longest, owned.mark.length);
}
