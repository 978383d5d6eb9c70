#include "common/lineBreaks.h"

#include "common/likeCharacters.h"

namespace
{
constexpr char16_t lineFeed = u'\n';
constexpr char16_t carriageReturn = u'\r';
} // namespace

qsizetype nextBreak(QStringView text, qsizetype from)
{
    const auto next = [text](qsizetype place) { return firstLike<0xFFF8, 8>(text, place); }; // 8 to 15: few but tabs
    qsizetype i = next(from);
    while (i < text.size() && text[i] != lineFeed && text[i] != carriageReturn)
        i = next(i + 1);
    return i;
}

LineBreaks lineBreaksOf(QStringView text)
{
    LineBreaks breaks;
    for (qsizetype i = nextBreak(text, 0); i < text.size(); i = nextBreak(text, i + 1)) {
        if (text[i] == lineFeed) {
            ++breaks.lf;
        } else if (i + 1 < text.size() && text[i + 1] == lineFeed) {
            ++breaks.crLf;
            ++i;
        } else {
            ++breaks.cr;
        }
    }
    return breaks;
}
