#include "texttools/pageShift.h"

#include <algorithm>

PageShift PageShift::between(QStringView older, QStringView newer)
{
    const qsizetype both = std::min(older.size(), newer.size());
    const auto *const front = std::mismatch(older.utf16(), older.utf16() + both, newer.utf16()).first;
    const qsizetype start = front - older.utf16();
    qsizetype same = 0; // at the end
    while (same < both - start && older[older.size() - 1 - same] == newer[newer.size() - 1 - same])
        ++same;
    return {start, older.size() - same, newer.size() - same};
}

// What is put in right at the start of a range moves it; right behind its end, it does not make it longer.
html::Range PageShift::moved(html::Range range) const
{
    const qsizetype end = range.start + range.length;
    const qsizetype from = range.start >= oldEnd ? range.start + by() : range.start <= start ? range.start : -1;
    if (from < 0 || range.length == 0)
        return {from, 0};
    const qsizetype to = end <= start ? end : end >= oldEnd ? end + by() : -1;
    return to < 0 ? html::Range{-1, 0} : html::Range{from, to - from};
}
