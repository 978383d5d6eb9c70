#pragma once

#include "common/html/tokenizer.h"
#include "texttools/pageCheck.h"

#include <QHash>
#include <QSet>
#include <utility>

/// Gathers what a check finds, and keeps it to a number that one can read.
class PageProblems
{
public:
    using Counts = QHash<QByteArray, int>; ///< by the names of rules

    PageProblems() = default;
    /// Behind others, of which there are so many already.
    explicit PageProblems(Counts counts) : m_counts(std::move(counts)) {}

    /// Tells whether one more of the rule is wanted, so that nobody words what nobody reads.
    bool wants(const char *rule)
    {
        const bool wanted = m_counts.value(rule) < MostOfARule;
        if (!wanted)
            m_refused.insert(rule);
        return wanted;
    }
    /// The problem that was added last may get a fix; where it was not wanted, that goes nowhere.
    PageProblem &error(const char *rule, html::Range range, const QString &message, const QString &remedy = {})
    {
        return add(PageProblem::Kind::Error, rule, range, message, remedy);
    }
    PageProblem &hint(const char *rule, html::Range range, const QString &message, const QString &remedy = {})
    {
        return add(PageProblem::Kind::Hint, rule, range, message, remedy);
    }
    /// What has been found since it was taken last.
    QList<PageProblem> takeFound() { return std::exchange(m_found, {}); }
    /// The rules of which more was found than is wanted, since they were taken last.
    QSet<QByteArray> takeRefused() { return std::exchange(m_refused, {}); }

private:
    PageProblem &add(PageProblem::Kind kind, const char *rule, html::Range range, const QString &message,
                     const QString &remedy);

    QList<PageProblem> m_found;
    Counts m_counts;
    QSet<QByteArray> m_refused;
    PageProblem m_nowhere;
};
