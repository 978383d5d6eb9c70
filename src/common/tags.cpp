#include "common/tags.h"

#include "common/text.h"

std::optional<TagSpan> NextTagFrom(qsizetype position, const QString &text)
{
    const qsizetype open = Find(text, u"<", position + 1).value_or(0);
    const qsizetype close = open < 1 ? 0 : Find(text, u">", open).value_or(0);
    if (close < 1)
        return {};
    const qsizetype length = close - open + 1;
    return TagSpan{text.mid(open - 1, length), open - 1, length};
}

QString withoutTags(const QString &text)
{
    QString rest;
    rest.reserve(text.size());
    qsizetype copied = 0;
    while (true) {
        const qsizetype open = text.indexOf(u'<', copied);
        const qsizetype close = open < 0 ? -1 : text.indexOf(u'>', open);
        if (close < 0)
            return rest += QStringView(text).sliced(copied);
        rest += QStringView(text).sliced(copied, open - copied);
        copied = close + 1;
    }
}
