#pragma once

#include "common/html/tokenizer.h"
#include "texttools/pageCheck.h"

#include <QHash>

/// Gathers what a check finds, and keeps it to a number that one can read.
class PageProblems
{
public:
    /// Tells whether one more of the rule is wanted, so that nobody words what nobody reads.
    bool wants(const char *rule) { return m_counts.value(rule) < MostOfARule; }
    /// The problem that was added last may get a fix; where it was not wanted, that goes nowhere.
    PageProblem &error(const char *rule, html::Range range, const QString &message, const QString &remedy = {})
    {
        return add(PageProblem::Kind::Error, rule, range, message, remedy);
    }
    PageProblem &hint(const char *rule, html::Range range, const QString &message, const QString &remedy = {})
    {
        return add(PageProblem::Kind::Hint, rule, range, message, remedy);
    }
    /// In the order of the text.
    QList<PageProblem> takeSorted();

private:
    PageProblem &add(PageProblem::Kind kind, const char *rule, html::Range range, const QString &message,
                     const QString &remedy);

    QList<PageProblem> m_found;
    QHash<QByteArray, int> m_counts;
    PageProblem m_nowhere;
};
