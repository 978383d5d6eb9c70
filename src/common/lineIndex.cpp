#include "common/lineIndex.h"

#include "common/lineBreaks.h"

#include <algorithm>

namespace
{
constexpr qsizetype breakLength = 2;

std::vector<qsizetype> startsIn(QStringView text, qsizetype offset)
{
    std::vector<qsizetype> starts;
    for (qsizetype i = text.indexOf(u'\n'); i >= 0; i = text.indexOf(u'\n', i + 1))
        starts.push_back(offset + i + 1);
    return starts;
}
} // namespace

bool LineIndex::reset(QStringView text)
{
    std::vector<qsizetype> starts{0};
    for (qsizetype i = nextBreak(text, 0); i < text.size(); i = nextBreak(text, i + breakLength)) {
        if (!text.sliced(i).startsWith(u"\r\n"))
            return false;
        starts.push_back(i + breakLength);
    }
    m_length = text.size();
    m_front.clear();
    m_back.assign(starts.rbegin(), starts.rend());
    m_back.shrink_to_fit(); // the text before may have been a large one
    for (qsizetype &start : m_back)
        start = m_length - start;
    return true;
}

void LineIndex::replace(qsizetype position, qsizetype removed, QStringView inserted)
{
    const qsizetype first = lineAt(position);
    const qsizetype gone = lineAt(position + removed) - first;
    moveGapTo(first + 1);
    m_back.resize(m_back.size() - static_cast<size_t>(gone));
    const std::vector<qsizetype> starts = startsIn(inserted, position);
    m_front.insert(m_front.end(), starts.begin(), starts.end());
    m_length += inserted.size() - removed;
}

qsizetype LineIndex::lineStart(qsizetype line) const
{
    const auto index = static_cast<size_t>(line);
    if (index < m_front.size())
        return m_front[index];
    return m_length - m_back[m_front.size() + m_back.size() - 1 - index];
}

qsizetype LineIndex::lineEnd(qsizetype line) const
{
    return line + 1 < lineCount() ? lineStart(line + 1) - breakLength : m_length;
}

qsizetype LineIndex::lineAt(qsizetype position) const
{
    return lastLineNotBehind([&](qsizetype line) { return lineStart(line) <= position; });
}

qsizetype LineIndex::toNarrow(qsizetype wide) const
{
    const qsizetype line = lineAt(wide);
    return std::clamp(wide, qsizetype(0), lineEnd(line)) - line;
}

qsizetype LineIndex::toWide(qsizetype narrow) const
{
    const qsizetype cut = std::clamp(narrow, qsizetype(0), narrowLength());
    return cut + lastLineNotBehind([&](qsizetype line) { return lineStart(line) - line <= cut; });
}

void LineIndex::moveGapTo(qsizetype line)
{
    while (static_cast<qsizetype>(m_front.size()) < line) {
        m_front.push_back(m_length - m_back.back());
        m_back.pop_back();
    }
    while (static_cast<qsizetype>(m_front.size()) > line) {
        m_back.push_back(m_length - m_front.back());
        m_front.pop_back();
    }
}

/// The last line for which `isNotBehind` holds, which it does for the lines up to some place; 0 where it holds for
/// none.
template <typename Before>
qsizetype LineIndex::lastLineNotBehind(Before isNotBehind) const
{
    qsizetype known = 0;
    for (qsizetype end = lineCount(); end - known > 1;) {
        const qsizetype middle = known + (end - known) / 2;
        (isNotBehind(middle) ? known : end) = middle;
    }
    return known;
}
