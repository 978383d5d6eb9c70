#include "texttools/pageProblems.h"

#include <algorithm>

PageProblem &PageProblems::add(PageProblem::Kind kind, const char *rule, html::Range range, const QString &message,
                               const QString &remedy)
{
    m_nowhere = {};
    if (++m_counts[rule] > MostOfARule)
        return m_nowhere;
    m_found.append({range.start, range.length, QString::fromLatin1(rule), message, remedy, kind, {}});
    return m_found.last();
}

QList<PageProblem> PageProblems::takeSorted()
{
    std::stable_sort(m_found.begin(), m_found.end(),
                     [](const PageProblem &a, const PageProblem &b) { return a.start < b.start; });
    return std::move(m_found);
}
