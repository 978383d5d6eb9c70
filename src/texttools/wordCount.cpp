#include "texttools/wordCount.h"

#include "common/linkPrefixes.h"
#include "common/tags.h"
#include "common/text.h"

#include <QStringList>

namespace
{
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
        const QString shown = Trim(withoutTags(line)); // tags that go over its end and other white space are text
        counts.words += wordsIn(shown);
        counts.characters += shown.size();
    }
    return counts;
}
