#include "common/dialogFilter.h"

namespace
{
bool matchesEverything(const QString &pattern)
{
    return pattern == QLatin1String("*.*") || pattern == u'*';
}

// Shell wildcards, "*" and "?" alone: no pattern of a filter has brackets, and a name may.
bool matchesPattern(QStringView name, QStringView pattern)
{
    qsizetype n = 0;
    qsizetype p = 0;
    qsizetype star = -1;
    qsizetype starName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            star = p++;
            starName = n;
        } else if (p < pattern.size() && (pattern[p] == u'?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (star >= 0) {
            p = star + 1;
            n = ++starName;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

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

bool matchesFilterRow(const DialogFilterRow &row, const QString &fileName)
{
    const QString name = fileName.toLower();
    for (const QString &pattern : row.patterns) {
        if (matchesEverything(pattern) || matchesPattern(name, pattern.toLower()))
            return true;
    }
    return false;
}
