#include "texttools/pageMarks.h"

#include "common/textSurface.h"

#include <algorithm>

namespace
{
constexpr qsizetype MostMarks = 1000;

MarkedRange markOf(const PageProblem &problem)
{
    const QString tip = problem.remedy.isEmpty() ? problem.message : problem.message + u'\n' + problem.remedy;
    const MarkKind kind = problem.kind == PageProblem::Kind::Error ? MarkKind::Error : MarkKind::Hint;
    return {problem.start, problem.length, kind, tip, {}};
}
} // namespace

void showPageMarks(TextSurface &surface, const QList<PageProblem> &problems)
{
    QList<MarkedRange> marks;
    for (const PageProblem &problem : problems.first(std::min(problems.size(), MostMarks)))
        marks.append(markOf(problem));
    surface.setMarkedRanges(MarkOwner::Check, marks);
}
