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
