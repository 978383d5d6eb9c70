#include "document/textSearch.h"

#include "common/text.h"

#include <algorithm>

namespace
{
bool isCaseless(QChar c)
{
    return c.toLower() == c && c.toUpper() == c;
}

bool standsInLCase(QStringView text, QStringView what, qsizetype place)
{
    if (place + what.size() > text.size())
        return false;
    return std::equal(what.begin(), what.end(), text.begin() + place, [](QChar a, QChar b) { return a == LCase(b); });
}
} // namespace

qsizetype FindInLCase(QStringView text, QStringView what, qsizetype start)
{
    // A character without case is sought by its code alone, which is fast; the others are compared only around it.
    const auto anchor = std::find_if(what.begin(), what.end(), isCaseless) - what.begin();
    Q_ASSERT(anchor < what.size());
    qsizetype place = start - 1 + anchor;
    while (place < text.size() && (place = text.indexOf(what[anchor], place)) >= 0) {
        if (standsInLCase(text, what, place - anchor))
            return place - anchor + 1;
        ++place;
    }
    return 0;
}

qsizetype NextOccurrence::Find(qsizetype start)
{
    if (!isKnown(start)) {
        m_found =
            m_mode == Case::Lower ? FindInLCase(m_text, m_what, start) : ::Find(m_text, m_what, start).value_or(0);
        m_from = start;
    }
    return m_found;
}
