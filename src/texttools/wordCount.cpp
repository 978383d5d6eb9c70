#include "texttools/wordCount.h"

#include "common/tags.h"

#include <QStringList>

namespace
{
constexpr QStringView AddressStarts[] = {u"http:", u"https:", u"news:", u"file://", u"ftp:", u"mailto:"};

/// Tags that begin and end in the line are taken out of it.
QString withoutTags(const QString &line)
{
    QString rest;
    qsizetype position = 0;
    while (const auto tag = NextTagFrom(position, line)) {
        rest += QStringView(line).sliced(position, tag->start - position);
        position = tag->start + tag->length;
    }
    return rest += QStringView(line).sliced(position);
}

/// Without the blanks at its ends; other white space is text.
QStringView trimmed(QStringView line)
{
    while (line.startsWith(u' '))
        line = line.sliced(1);
    while (line.endsWith(u' '))
        line.chop(1);
    return line;
}

qsizetype wordsIn(QStringView line)
{
    qsizetype words = line.size() > 1 ? 1 : 0; // the last one, which no blank ends in a trimmed line
    for (qsizetype i = 0; i + 1 < line.size(); ++i)
        if (line[i] == u' ' && line[i + 1] != u' ')
            ++words;
    return words;
}
} // namespace

TextCounts countText(const QString &text)
{
    TextCounts counts;
    for (const QStringView start : AddressStarts)
        counts.hyperlinks += text.count(start);
    counts.elements = text.count(u'<');
    for (QString line : text.split(u'\r')) {
        if (line.startsWith(u'\n'))
            line.remove(0, 1);
        const QString shown = withoutTags(line);
        counts.words += wordsIn(trimmed(shown));
        counts.characters += trimmed(shown).size();
    }
    return counts;
}
