#include "files/localPaths.h"

#include "common/paths.h"
#include "common/text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace
{
/// A range of a text; `end` is behind its last character.
struct Range {
    qsizetype start = 0;
    qsizetype end = 0;
};

/// Finds the marks of full local paths from the start of a page on. Each kind of mark is sought once only, so that a
/// page without one of them is not read to its end for every mark of another.
class MarkSearch
{
public:
    explicit MarkSearch(const QString &page) : m_page(page) {}

    /// The next mark at or behind `from`, which never goes back; -1 if there is none.
    qsizetype next(qsizetype from)
    {
        qsizetype nearest = -1;
        for (Kind &kind : m_kinds) {
            if (kind.place != None && kind.place < from)
                kind.place = find(kind, from);
            if (kind.place >= 0 && (nearest < 0 || kind.place < nearest))
                nearest = kind.place;
        }
        return nearest;
    }

private:
    static constexpr qsizetype None = -1;
    static constexpr qsizetype NotSought = -2;

    struct Kind {
        QString mark;
        qsizetype offset = 0;        ///< of the place that is told, within the mark
        qsizetype place = NotSought; ///< found last
    };

    qsizetype find(const Kind &kind, qsizetype from) const
    {
        const qsizetype found = m_page.indexOf(kind.mark, std::max<qsizetype>(from - kind.offset, 0));
        return found < 0 ? None : found + kind.offset;
    }

    const QString &m_page;
    // A path of this system has no mark inside: it starts with its separator, just behind a quotation mark.
    std::array<Kind, 3> m_kinds{Kind{QStringLiteral(":\\")}, Kind{QStringLiteral("\\\\")},
                                Kind{QStringLiteral("\"/"), 1}};
};

/// What stands around a place between the nearest `open` before it and the nearest `close` behind it, without the two;
/// nothing if one of them is missing.
std::optional<Range> between(const QString &page, qsizetype place, QChar open, QChar close)
{
    const qsizetype before = place > 0 ? page.lastIndexOf(open, place - 1) : -1;
    const qsizetype behind = before < 0 ? -1 : page.indexOf(close, place + 1);
    return behind < 0 ? std::nullopt : std::optional(Range{before + 1, behind});
}

bool startsAsPath(const QString &candidate)
{
    if (candidate.isEmpty())
        return false;
    const QChar first = LCase(candidate[0]);
    const bool ownPath = first == u'/' && !candidate.startsWith(QStringLiteral("//")); // not an address without scheme
    return (first >= u'a' && first <= u'z') || first == u'\\' || ownPath;
}

/// Whether a place stands inside a tag: no ">" outside double quotes ends it before.
bool isInsideTag(const QString &page, qsizetype place)
{
    if (!between(page, place, u'<', u'>'))
        return false;
    bool quoted = false;
    for (qsizetype at = page.lastIndexOf(u'<', place - 1); at < place; ++at) {
        if (page[at] == u'"')
            quoted = !quoted;
        else if (page[at] == u'>' && !quoted)
            return false;
    }
    return true;
}

/// The quoted text around a mark, if it stands in a tag.
std::optional<Range> quotedInTag(const QString &page, qsizetype mark)
{
    if (!isInsideTag(page, mark))
        return std::nullopt;
    return between(page, mark, u'"', u'"');
}
} // namespace

ReducedPage reduceLocalPaths(const QString &page, const std::function<bool(const QString &)> &isFile)
{
    ReducedPage reduced;
    qsizetype copied = 0;
    MarkSearch marks(page);
    qsizetype mark = marks.next(0);
    while (mark >= 0 && reduced.files.size() < MostAccompanyingFiles) {
        qsizetype onwards = mark + 1;
        const std::optional<Range> quoted = quotedInTag(page, mark);
        const QString candidate = quoted ? page.mid(quoted->start, quoted->end - quoted->start) : QString();
        if (startsAsPath(candidate) && quoted->start >= copied && isFile(candidate)) {
            if (!reduced.files.contains(candidate))
                reduced.files.append(candidate);
            reduced.text += page.mid(copied, quoted->start - copied) + FolderMark + FileNameOnly(candidate);
            copied = quoted->end;
            onwards = quoted->end; // the path is done with, whatever other marks are in it
        }
        mark = marks.next(onwards);
    }
    reduced.text += page.mid(copied);
    return reduced;
}

QList<qsizetype> folderMarks(const QString &text)
{
    QList<qsizetype> places;
    for (qsizetype place = text.indexOf(FolderMark); place >= 0; place = text.indexOf(FolderMark, place + 1))
        places.append(place);
    return places;
}
