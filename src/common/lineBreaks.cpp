#include "common/lineBreaks.h"

#include <algorithm>

namespace
{
constexpr char16_t lineFeed = u'\n';
constexpr char16_t carriageReturn = u'\r';
// Counters of a character's width let the compiler compare many characters at a time; they hold the count of a part.
constexpr qsizetype partLength = 1 << 15;
} // namespace

LineBreaks lineBreaksOf(QStringView text)
{
    if (text.isEmpty())
        return {};
    const char16_t *const units = text.utf16();
    qsizetype feeds = units[0] == lineFeed;
    qsizetype returns = units[0] == carriageReturn;
    qsizetype pairs = 0;
    for (qsizetype start = 1; start < text.size(); start += partLength) {
        const qsizetype end = std::min(start + partLength, text.size());
        quint16 feedsHere = 0;
        quint16 returnsHere = 0;
        quint16 pairsHere = 0;
        for (qsizetype i = start; i < end; ++i) {
            const bool isFeed = units[i] == lineFeed;
            const bool isBehindReturn = units[i - 1] == carriageReturn;
            feedsHere = static_cast<quint16>(feedsHere + isFeed);
            returnsHere = static_cast<quint16>(returnsHere + (units[i] == carriageReturn));
            pairsHere = static_cast<quint16>(pairsHere + (isFeed & isBehindReturn));
        }
        feeds += feedsHere;
        returns += returnsHere;
        pairs += pairsHere;
    }
    return {.crLf = pairs, .lf = feeds - pairs, .cr = returns - pairs};
}
