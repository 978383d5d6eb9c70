#include "texttools/rootConversion.h"

#include "common/text.h"

#include <QList>
#include <algorithm>

namespace
{
/// The parts of a link around a position, without its quotes.
struct Link {
    qsizetype start = 0;
    qsizetype end = 0;
};

bool endsLink(QChar c)
{
    return c == u'"' || c == u'<' || c == u'>' || c == u'\r' || c == u'\n';
}

std::optional<Link> linkAround(QStringView text, qsizetype position)
{
    Link link{position, position};
    while (link.start > 0 && !endsLink(text[link.start - 1]))
        --link.start;
    while (link.end < text.size() && !endsLink(text[link.end]))
        ++link.end;
    const bool isQuoted =
        link.start > 0 && text[link.start - 1] == u'"' && link.end < text.size() && text[link.end] == u'"';
    return isQuoted ? std::optional(link) : std::nullopt;
}

/// Puts the new root in the old one's place and notes where each of them ends.
QString withNewRoots(const QString &text, const RootConversion &conversion, QList<qsizetype> &ends)
{
    const QString lower = LCase(text);
    const QString old = LCase(conversion.oldRoot);
    QString result;
    result.reserve(text.size());
    qsizetype copied = 0;
    for (qsizetype place = lower.indexOf(old); place >= 0; place = lower.indexOf(old, copied)) {
        result += QStringView(text).sliced(copied, place - copied);
        result += conversion.newRoot;
        ends += result.size();
        copied = place + old.size();
    }
    return result += QStringView(text).sliced(copied);
}
} // namespace

ConvertedText convertRoot(const QString &text, const RootConversion &conversion)
{
    if (conversion.oldRoot.isEmpty())
        return {text};
    QList<qsizetype> ends;
    ConvertedText converted{.text = withNewRoots(text, conversion, ends)};
    converted.count = ends.size();
    for (const qsizetype end : ends) {
        converted.caret = end;
        const std::optional<Link> link = linkAround(converted.text, end);
        if (!link || conversion.from == conversion.to)
            continue;
        const QString::iterator first = converted.text.begin() + link->start;
        const QString::iterator last = converted.text.begin() + link->end;
        if (std::find(first, last, conversion.from) != last)
            converted.caret = link->end + 1;
        std::replace(first, last, conversion.from, conversion.to);
    }
    return converted;
}

QString withSeparator(const QString &root, QChar separator)
{
    return root.endsWith(separator) ? root : root + separator;
}
