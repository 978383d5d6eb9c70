#include "texttools/findText.h"

#include "common/text.h"

#include <algorithm>

namespace
{
bool isSame(QStringView text, QStringView find)
{
    return std::equal(find.begin(), find.end(), text.begin(), [](QChar a, QChar b) { return UCase(a) == UCase(b); });
}

bool standsAt(QStringView text, QStringView find, qsizetype place, QChar first)
{
    return UCase(text[place]) == first && isSame(text.mid(place, find.size()), find);
}

std::optional<QChar> characterAt(QStringView text, qsizetype place)
{
    return place < 0 || place >= text.size() ? std::nullopt : std::optional(text[place]);
}

qsizetype rawSearch(QStringView text, const FindOptions &options, qsizetype start)
{
    if (options.direction == SearchDirection::Up)
        return lastIndexOfText(text, options.find, start, options.matchCase);
    return indexOfText(text, options.find, std::max<qsizetype>(start, 1) - 1, options.matchCase);
}

bool passesFilters(QStringView text, const FindOptions &options, qsizetype place, TagPlaces &tags)
{
    const bool isWord =
        !options.wholeWords || isWordEdge(characterAt(text, place - 1), characterAt(text, place + options.find.size()));
    return isWord && (options.type == SearchType::EntireDocument || passesTagFilter(options.type, tags.at(place)));
}
} // namespace

bool isSingleCharacterUpwards(const FindOptions &options)
{
    return options.type != SearchType::EntireDocument && options.direction == SearchDirection::Up &&
           options.find.size() < 2;
}

qsizetype searchStart(const FindOptions &options, const FindState &state, const TextSelection &selection)
{
    const bool up = options.direction == SearchDirection::Up;
    const qsizetype back = up ? -options.find.size() : 0;
    if (state.ContinueSearch)
        return back + state.NextPosition;
    if (options.direction == SearchDirection::All && state.NextPosition == 0)
        return back + 1;
    const qsizetype end = selection.start + selection.length;
    if (selection.length == 0)
        return up ? end : std::max<qsizetype>(end, 1);
    const qsizetype step = selection.length == 1 ? (up ? -1 : 1) : 0;
    return end + back + step;
}

qsizetype startBehindRejected(const FindOptions &options, qsizetype place)
{
    if (options.direction != SearchDirection::Up)
        return place + 1;
    // One character would be met again from where longer texts go on.
    return options.find.size() == 1 ? place - 1 : place + 1 - options.find.size();
}

qsizetype SearchText(QStringView text, const FindOptions &options, qsizetype start, FindState &state)
{
    TagPlaces tags(text);
    while (true) {
        const qsizetype place = rawSearch(text, options, start);
        if (place < 0) {
            state = {};
            return 0;
        }
        if (passesFilters(text, options, place, tags)) {
            state = {.ContinueSearch = false, .NextPosition = place + 2, .FoundMatch = true};
            return place + 1;
        }
        start = startBehindRejected(options, place + 1);
    }
}

QList<qsizetype> allMatches(QStringView text, const FindOptions &options)
{
    QList<qsizetype> matches;
    TagPlaces tags(text);
    for (qsizetype from = 0;;) {
        const qsizetype place = indexOfText(text, options.find, from, options.matchCase);
        if (place < 0)
            return matches;
        if (passesFilters(text, options, place, tags))
            matches.append(place);
        from = place + 1;
    }
}

std::optional<RoundStep> stepRound(const QList<qsizetype> &matches, const FindOptions &options, const FindState &state,
                                   const TextSelection &selection)
{
    if (matches.isEmpty())
        return std::nullopt;
    const bool up = options.direction == SearchDirection::Up;
    const bool isFresh = options.direction == SearchDirection::All && state.NextPosition == 0;
    const qsizetype length = options.find.size();
    const auto found = std::lower_bound(matches.begin(), matches.end(), selection.start);
    const bool isSelected =
        !isFresh && found != matches.end() && *found == selection.start && selection.length == length;
    qsizetype index = found - matches.begin();
    if (up)
        index = isSelected
                    ? index - 1
                    : std::upper_bound(matches.begin(), matches.end(), selection.start - length) - matches.begin() - 1;
    else
        index = isSelected
                    ? index + 1
                    : std::lower_bound(matches.begin(), matches.end(), searchStart(options, state, selection) - 1) -
                          matches.begin();
    const bool wentRound = index < 0 || index >= matches.size();
    if (wentRound)
        index = up ? matches.size() - 1 : 0;
    return RoundStep{index, wentRound};
}

bool passesTagFilter(SearchType type, TagEnd end)
{
    switch (end) {
    case TagEnd::Before:
    case TagEnd::Missing: // told as a place in front of every match
        return type != SearchType::TagsOnly;
    case TagEnd::Behind:
        return type != SearchType::TextOnly;
    case TagEnd::NoTag:
    case TagEnd::At:
        break;
    }
    return true;
}

TagEnd TagPlaces::at(qsizetype place)
{
    lookBack(place);
    if (m_bracket < 0 && m_side == Side::NoTag)
        return TagEnd::NoTag;
    if (m_bracket < 0 && m_side == Side::Closed)
        return TagEnd::Before;
    const qsizetype end = endOf(m_bracket < 0 ? m_from : m_bracket);
    if (end < 0)
        return TagEnd::Missing;
    return end < place ? TagEnd::Before : end == place ? TagEnd::At : TagEnd::Behind;
}

void TagPlaces::restart(qsizetype from, Side side)
{
    m_from = m_at = from;
    m_side = side;
    m_bracket = -1;
}

TagPlaces::Side TagPlaces::behind(Side side, QStringView passed)
{
    const qsizetype bracket = passed.lastIndexOf(u'<');
    if (bracket >= 0)
        return passed.sliced(bracket).contains(u'>') ? Side::Closed : Side::Open;
    return side == Side::Open && passed.contains(u'>') ? Side::Closed : side;
}

void TagPlaces::lookBack(qsizetype place)
{
    const auto lastBracket = [&](qsizetype from, qsizetype to) {
        const qsizetype found = m_text.sliced(from, to - from).lastIndexOf(u'<');
        return found < 0 ? found : from + found;
    };
    if (place >= m_at) {
        if (const qsizetype later = lastBracket(m_at, place + 1); later >= 0)
            m_bracket = later;
    } else if (m_bracket > place) {
        m_bracket = lastBracket(m_from, place + 1);
    }
    m_at = place;
}

qsizetype TagPlaces::endOf(qsizetype bracket)
{
    const bool isKnown = m_endSought >= 0 && bracket >= m_endSought && (m_end < 0 || bracket <= m_end);
    if (!isKnown) {
        m_end = m_text.indexOf(u'>', bracket);
        m_endSought = bracket;
    }
    return m_end;
}

qsizetype indexOfText(QStringView text, QStringView find, qsizetype from, bool matchCase)
{
    if (find.isEmpty() || from >= text.size())
        return -1;
    if (matchCase)
        return text.indexOf(find, from);
    const QChar first = UCase(find[0]);
    for (qsizetype place = from; place + find.size() <= text.size(); ++place)
        if (standsAt(text, find, place, first))
            return place;
    return -1;
}

qsizetype lastIndexOfText(QStringView text, QStringView find, qsizetype end, bool matchCase)
{
    if (find.isEmpty() || end > text.size() || end < find.size())
        return -1;
    const QChar first = matchCase ? find[0] : UCase(find[0]);
    for (qsizetype place = end - find.size(); place >= 0; --place) {
        if (matchCase ? text[place] == first && text.sliced(place).startsWith(find)
                      : standsAt(text, find, place, first))
            return place;
    }
    return -1;
}

bool isWordEdge(std::optional<QChar> before, std::optional<QChar> behind)
{
    constexpr char16_t FirstOfAWord = 33;
    const bool isParted = !before || *before == u'\n' || *before == u' ';
    return isParted && (!behind || behind->unicode() < FirstOfAWord);
}
