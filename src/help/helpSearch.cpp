#include "help/helpSearch.h"

#include <QStringList>
#include <algorithm>

namespace
{
constexpr qsizetype contextBefore = 40;
constexpr qsizetype contextLength = 140;

struct Ranked {
    int rank = 0; ///< the smaller the better
    qsizetype count = 0;
    const HelpText *page = nullptr;
};

bool holdsAll(const QString &text, const QStringList &words)
{
    return std::all_of(words.begin(), words.end(),
                       [&](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

int rankOf(const HelpText &page, const QString &query, const QStringList &words)
{
    if (page.title.compare(query, Qt::CaseInsensitive) == 0)
        return 0;
    if (page.title.startsWith(query, Qt::CaseInsensitive))
        return 1;
    return holdsAll(page.title, words) ? 2 : 3;
}

qsizetype countOf(const QString &text, const QStringList &words)
{
    qsizetype count = 0;
    for (const QString &word : words)
        count += text.count(word, Qt::CaseInsensitive);
    return count;
}

bool comesBefore(const Ranked &one, const Ranked &other)
{
    if (one.rank != other.rank)
        return one.rank < other.rank;
    if (one.count != other.count)
        return one.count > other.count;
    const int order = one.page->title.compare(other.page->title, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : one.page->page < other.page->page;
}

/// Where the context is cut out of the text: at the query as a whole if it stands there, else at its first word.
qsizetype placeOf(const QString &text, const QString &query, const QStringList &words)
{
    qsizetype place = text.indexOf(query, 0, Qt::CaseInsensitive);
    for (const QString &word : words) {
        if (place >= 0)
            break;
        place = text.indexOf(word, 0, Qt::CaseInsensitive);
    }
    return qMax<qsizetype>(place, 0);
}

/// The text around the place, from the start of a word to the end of one where there are blanks to tell by.
QString contextAt(const QString &text, qsizetype place)
{
    qsizetype begin = qMax<qsizetype>(place - contextBefore, 0);
    const qsizetype blankBefore = begin > 0 ? text.indexOf(u' ', begin) : -1;
    if (blankBefore >= 0 && blankBefore < place)
        begin = blankBefore + 1;
    qsizetype end = qMin(begin + contextLength, text.size());
    const qsizetype blankBehind = end < text.size() ? text.lastIndexOf(u' ', end) : -1;
    if (blankBehind > place)
        end = blankBehind;
    const QString dots = QStringLiteral("…");
    return (begin > 0 ? dots : QString()) + text.sliced(begin, end - begin) + (end < text.size() ? dots : QString());
}
} // namespace

QList<HelpHit> searchHelp(const QList<HelpText> &pages, const QString &query)
{
    const QString sought = query.simplified();
    const QStringList words = sought.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    QList<Ranked> found;
    for (const HelpText &page : pages)
        if (holdsAll(page.title + u' ' + page.text, words))
            found.append({rankOf(page, sought, words), countOf(page.text, words), &page});
    std::sort(found.begin(), found.end(), comesBefore);
    QList<HelpHit> hits;
    for (const Ranked &hit : found)
        hits.append(
            {hit.page->page, hit.page->title, contextAt(hit.page->text, placeOf(hit.page->text, sought, words))});
    return hits;
}
