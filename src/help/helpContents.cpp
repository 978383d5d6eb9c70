#include "help/helpContents.h"

#include <algorithm>

namespace
{
qsizetype leadingTabs(const QString &line)
{
    qsizetype count = 0;
    while (count < line.size() && line[count] == u'\t')
        ++count;
    return count;
}

QStringList keywordsOf(const QString &column)
{
    QStringList keywords;
    for (const QString &word : column.split(u';', Qt::SkipEmptyParts))
        if (!word.trimmed().isEmpty())
            keywords += word.trimmed();
    return keywords;
}

HelpEntry entryOf(const QString &line)
{
    const QStringList columns = line.split(u'\t');
    return {columns.value(0).trimmed(), columns.value(1).trimmed(), keywordsOf(columns.value(2)), {}};
}

QStringList linesOf(const QString &text)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines)
        if (line.endsWith(u'\r'))
            line.chop(1);
    return lines;
}

/// The list that a line of that level belongs to: the children of the last entry one level up.
QList<HelpEntry> &listAt(QList<HelpEntry> &top, qsizetype level)
{
    QList<HelpEntry> *list = &top;
    for (; level > 0 && !list->isEmpty(); --level)
        list = &list->last().children;
    return *list;
}

HelpEntry *entryWithPage(QList<HelpEntry> &entries, const QString &page)
{
    for (HelpEntry &entry : entries) {
        if (entry.page == page)
            return &entry;
        if (HelpEntry *found = entryWithPage(entry.children, page))
            return found;
    }
    return nullptr;
}

void collect(QList<HelpIndexRow> &rows, const QList<HelpEntry> &entries)
{
    for (const HelpEntry &entry : entries) {
        if (!entry.page.isEmpty())
            for (const QString &word : QStringList(entry.title) + entry.keywords)
                rows.append({word, entry.page});
        collect(rows, entry.children);
    }
}

bool comesBefore(const HelpIndexRow &one, const HelpIndexRow &other)
{
    const int order = one.word.compare(other.word, Qt::CaseInsensitive);
    if (order != 0)
        return order < 0;
    return one.word != other.word ? one.word < other.word : one.page < other.page;
}
} // namespace

QList<HelpEntry> parseHelpContents(const QString &text)
{
    QList<HelpEntry> contents;
    for (const QString &line : linesOf(text)) {
        const qsizetype level = leadingTabs(line);
        const HelpEntry entry = entryOf(line.sliced(level));
        if (!entry.title.isEmpty() && !line.startsWith(u'#'))
            listAt(contents, level).append(entry);
    }
    return contents;
}

QList<HelpEntry> parseHelpReference(const QString &text)
{
    QList<HelpEntry> reference;
    for (const QString &line : linesOf(text)) {
        const HelpEntry entry = entryOf(line);
        if (!entry.title.isEmpty() && !entry.page.isEmpty())
            reference.append(entry);
    }
    return reference;
}

void addHelpReference(QList<HelpEntry> &contents, const QString &page, const QList<HelpEntry> &reference)
{
    HelpEntry *entry = entryWithPage(contents, page);
    (entry ? entry->children : contents).append(reference);
}

QList<HelpIndexRow> helpIndex(const QList<HelpEntry> &contents)
{
    QList<HelpIndexRow> rows;
    collect(rows, contents);
    std::sort(rows.begin(), rows.end(), comesBefore);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}
