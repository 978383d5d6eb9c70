#include "common/dialogFilter.h"

namespace
{
QStringList patternsOf(const QString &text)
{
    QStringList patterns;
    for (const QString &part : text.split(u';')) {
        const QString pattern = part.trimmed();
        if (!pattern.isEmpty())
            patterns += pattern;
    }
    return patterns.isEmpty() ? QStringList{QStringLiteral("*.*")} : patterns;
}
} // namespace

QList<DialogFilterRow> parseDialogFilter(const QString &filter)
{
    QList<DialogFilterRow> rows;
    if (filter.isEmpty())
        return rows;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i < parts.size(); i += 2)
        rows += DialogFilterRow{parts[i], patternsOf(parts.value(i + 1))};
    return rows;
}
