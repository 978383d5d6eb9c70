#include "common/tags.h"

#include "common/text.h"

namespace
{
/// The tag whose "<" stands at `open`, counted from 1; 0 stands for none.
std::optional<TagSpan> tagAt(qsizetype open, const QString &text)
{
    if (open < 1)
        return {};
    const qsizetype close = Find(text, u">", open).value_or(0);
    if (close < 1)
        return {};
    const qsizetype length = close - open + 1;
    return TagSpan{text.mid(open - 1, length), open - 1, length};
}
} // namespace

std::optional<TagSpan> NextTagFrom(qsizetype position, const QString &text)
{
    return tagAt(Find(text, u"<", position + 1).value_or(0), text);
}

std::optional<TagSpan> PreviousTagFrom(qsizetype position, const QString &text)
{
    // A search from the very start is a failed step.
    return tagAt(FindBack(text, u"<", position).value_or(0), text);
}
