#include "texttools/pageCheck.h"

#include "texttools/pageChecker.h"

namespace
{
QString counted(int count, const char *one, const char *many)
{
    return QString::number(count) + u' ' + QLatin1String(count == 1 ? one : many);
}
} // namespace

QList<PageProblem> checkPage(const QString &text, const PageRules &rules, const PageCheckContext &context)
{
    return PageChecker(rules).check(text, context);
}

QString problemsCounted(const QList<PageProblem> &problems)
{
    int errors = 0;
    for (const PageProblem &problem : problems)
        errors += problem.kind == PageProblem::Kind::Error ? 1 : 0;
    const int hints = static_cast<int>(problems.size()) - errors;
    QStringList parts;
    if (errors > 0)
        parts.append(counted(errors, "error", "errors"));
    if (hints > 0)
        parts.append(counted(hints, "hint", "hints"));
    return parts.isEmpty() ? QStringLiteral("Nothing found.") : parts.join(QStringLiteral(", "));
}

QString withFix(const QString &text, const PageProblem &problem)
{
    QString result = text;
    for (const PageFix &fix : problem.fix)
        result.replace(fix.start, fix.length, fix.text);
    return result;
}
