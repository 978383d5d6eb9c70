#include "texttools/pageProblems.h"

PageProblem &PageProblems::add(PageProblem::Kind kind, const char *rule, html::Range range, const QString &message,
                               const QString &remedy)
{
    m_nowhere = {};
    if (!wants(rule))
        return m_nowhere;
    ++m_counts[rule];
    m_found.append({range.start, range.length, QString::fromLatin1(rule), message, remedy, kind, {}});
    return m_found.last();
}
