#include "texttools/replaceRun.h"

#include <algorithm>

ReplaceRun::ReplaceRun(const QString &text, const FindOptions &options, const QString &replacement, qsizetype start)
    : m_text(text), m_options(options), m_replacement(replacement), m_tags(m_text)
{
    m_search = isUpwards() ? start : std::max<qsizetype>(start, 1) - 1;
}

bool ReplaceRun::advance()
{
    while (true) {
        const qsizetype place = isUpwards() ? lastIndexOfText(m_text, m_options.find, m_search, m_options.matchCase)
                                            : indexOfText(m_text, m_options.find, m_search, m_options.matchCase);
        if (place < 0)
            return false;
        if (isSought(place)) {
            replaceAt(place);
            return true;
        }
        const qsizetype start = startBehindRejected(m_options, place + 1);
        m_search = isUpwards() ? start : start - 1;
    }
}

bool ReplaceRun::isSought(qsizetype place)
{
    if (m_options.wholeWords && !isWordEdge(characterBefore(place), characterBehind(place + m_options.find.size())))
        return false;
    return m_options.type == SearchType::EntireDocument || passesTagFilter(m_options.type, tagEndAt(place));
}

std::optional<QChar> ReplaceRun::characterBefore(qsizetype place) const
{
    const bool isBehindChange = m_count > 0 && !isUpwards() && place == m_end;
    if (isBehindChange && !m_pieces.isEmpty())
        return m_pieces.last().back();
    const qsizetype before = (isBehindChange ? m_start : place) - 1;
    return before < 0 ? std::nullopt : std::optional(m_text[before]);
}

std::optional<QChar> ReplaceRun::characterBehind(qsizetype end) const
{
    const bool isBeforeChange = m_count > 0 && isUpwards() && end == m_start;
    if (isBeforeChange && !m_pieces.isEmpty())
        return m_pieces.last().front();
    const qsizetype behind = isBeforeChange ? m_end : end;
    return behind >= m_text.size() ? std::nullopt : std::optional(m_text[behind]);
}

/// Downwards the text from m_end on is as it was, and m_side stands for all in front of it. Upwards everything in front
/// of m_start is as it was; a ">" that the text has further on may have been replaced.
TagEnd ReplaceRun::tagEndAt(qsizetype place)
{
    const TagEnd end = m_tags.at(place);
    if (m_count == 0 || !isUpwards() || (end != TagEnd::Behind && end != TagEnd::Missing))
        return end;
    const bool isUntouched = QStringView(m_text).sliced(place, m_start - place).contains(u'>');
    return isUntouched || m_endsBehind ? TagEnd::Behind : TagEnd::Missing;
}

void ReplaceRun::replaceAt(qsizetype place)
{
    if (isUpwards())
        replaceUpwards(place);
    else
        replaceDownwards(place);
    ++m_count;
}

void ReplaceRun::replaceDownwards(qsizetype place)
{
    if (m_count == 0)
        m_start = m_end = place;
    const QString between = m_text.mid(m_end, place - m_end);
    const qsizetype end = place + m_options.find.size();
    if (m_options.type != SearchType::EntireDocument) {
        const QStringView passed = m_count == 0 ? QStringView(m_text).first(place) : QStringView(between);
        m_side = TagPlaces::behind(TagPlaces::behind(m_side, passed), m_replacement);
        m_tags.restart(end, m_side);
    }
    make({between, m_replacement});
    m_end = m_search = end;
}

void ReplaceRun::replaceUpwards(qsizetype place)
{
    const QStringView text(m_text);
    const qsizetype end = place + m_options.find.size();
    if (m_count == 0) {
        m_end = m_start = end;
        m_endsBehind = text.sliced(end).contains(u'>');
    }
    const QString between = m_text.mid(end, m_start - end);
    m_endsBehind = m_endsBehind || between.contains(u'>') || m_replacement.contains(u'>');
    make({between, m_replacement});
    m_start = m_search = place;
}

void ReplaceRun::make(const QStringList &pieces)
{
    for (const QString &piece : pieces) {
        m_made += piece.size();
        if (!piece.isEmpty())
            m_pieces += piece;
    }
}

ReplaceRun::Change ReplaceRun::change() const
{
    QString text;
    text.reserve(m_made);
    if (isUpwards())
        std::for_each(m_pieces.rbegin(), m_pieces.rend(), [&](const QString &piece) { text += piece; });
    else
        for (const QString &piece : m_pieces)
            text += piece;
    return {m_start, m_end - m_start, text};
}

qsizetype ReplaceRun::lastPlace() const
{
    return isUpwards() ? m_start : m_start + m_made - m_replacement.size();
}

qsizetype ReplaceRun::nextStart() const
{
    return isUpwards() ? m_start : m_start + m_made + 1;
}
