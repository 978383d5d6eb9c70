#include "shell/paletteList.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace
{
/// How a word is found in a text, the best way first.
enum class Fit { AtStart, AtWord, Within, Scattered };

bool isScattered(QStringView word, QStringView text)
{
    qsizetype at = 0;
    for (const QChar letter : word) {
        at = text.indexOf(letter, at, Qt::CaseInsensitive);
        if (at < 0)
            return false;
        ++at;
    }
    return true;
}

std::optional<Fit> fitOf(QStringView word, QStringView text)
{
    std::optional<Fit> best;
    for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
        if (at == 0)
            return Fit::AtStart;
        if (!text[at - 1].isLetterOrNumber())
            return Fit::AtWord;
        best = Fit::Within;
    }
    if (!best && isScattered(word, text))
        best = Fit::Scattered;
    return best;
}

/// Of several words, the one that fits worst counts.
std::optional<Fit> fitOfAll(const QList<QStringView> &words, QStringView text)
{
    Fit worst = Fit::AtStart;
    for (const QStringView word : words) {
        const std::optional<Fit> fit = fitOf(word, text);
        if (!fit)
            return std::nullopt;
        worst = std::max(worst, *fit);
    }
    return worst;
}
} // namespace

QList<qsizetype> paletteMatches(QStringView letters, const QList<PaletteEntry> &entries)
{
    const QList<QStringView> words = letters.split(u' ', Qt::SkipEmptyParts);
    using Match = std::tuple<Fit, qsizetype, qsizetype>; // how it fits, its length, its index
    QList<Match> matches;
    for (qsizetype i = 0; i < entries.size(); ++i)
        if (const std::optional<Fit> fit = fitOfAll(words, entries[i].text))
            matches.append(Match(*fit, words.isEmpty() ? 0 : entries[i].text.size(), i));
    std::sort(matches.begin(), matches.end());
    QList<qsizetype> order;
    for (const Match &match : matches)
        order.append(std::get<2>(match));
    return order;
}
