#include "surface/formatRuns.h"

#include <algorithm>

namespace
{
void lay(TextFormat &under, const TextFormat &over)
{
    if (over.colour)
        under.colour = over.colour;
    if (over.bold)
        under.bold = over.bold;
    if (over.underline)
        under.underline = over.underline;
}

template <typename T>
void keepCommon(std::optional<T> &common, T value)
{
    if (common != value)
        common.reset();
}
} // namespace

Look merged(Look look, const TextFormat &change)
{
    look.colour = change.colour.value_or(look.colour);
    look.bold = change.bold.value_or(look.bold);
    look.underline = change.underline.value_or(look.underline);
    return look;
}

void FormatRuns::reset(qsizetype length)
{
    m_front.assign(1, {});
    m_back.clear();
    m_back.shrink_to_fit();
    m_length = length;
}

qsizetype FormatRuns::start(size_t run) const
{
    return run < m_front.size() ? m_front[run].place : m_length - m_back[count() - 1 - run].place;
}

const Look &FormatRuns::look(size_t run) const
{
    return run < m_front.size() ? m_front[run].look : m_back[count() - 1 - run].look;
}

/// The last run that starts at or before the position.
size_t FormatRuns::runAt(qsizetype position) const
{
    size_t known = 0;
    for (size_t end = count(); end - known > 1;) {
        const size_t middle = known + (end - known) / 2;
        (start(middle) <= position ? known : end) = middle;
    }
    return known;
}

/// Has the runs that start before the position counted from the text's start, and the others from its end.
void FormatRuns::moveGapTo(qsizetype position)
{
    while (!m_back.empty() && m_length - m_back.back().place < position) {
        m_front.push_back({m_length - m_back.back().place, m_back.back().look});
        m_back.pop_back();
    }
    while (!m_front.empty() && m_front.back().place >= position) {
        m_back.push_back({m_length - m_front.back().place, m_front.back().look});
        m_front.pop_back();
    }
}

/// Lets a run start behind those in front of the gap, unless it looks like the last of them.
void FormatRuns::append(qsizetype position, const Look &look)
{
    if (m_front.empty() || m_front.back().look != look)
        m_front.push_back({position, look});
}

void FormatRuns::replace(qsizetype position, qsizetype removed, qsizetype added, const Look &look)
{
    const qsizetype end = position + removed;
    const bool endsText = end >= m_length;
    const Look behind = endsText ? Look() : lookAt(end);
    moveGapTo(position);
    while (!m_back.empty() && m_length - m_back.back().place <= end)
        m_back.pop_back();
    m_length += added - removed;
    if (added > 0)
        append(position, look);
    if (!endsText)
        append(position + added, behind);
    if (m_front.empty())
        m_front.push_back({});
}

Look FormatRuns::lookAt(qsizetype position) const
{
    return look(runAt(position));
}

TextFormat FormatRuns::common(qsizetype from, qsizetype to) const
{
    std::optional<TextFormat> common;
    forEachRun(from, to, [&](qsizetype, qsizetype, const Look &look) {
        if (!common)
            common = {look.colour, look.bold, look.underline};
        keepCommon(common->colour, look.colour);
        keepCommon(common->bold, look.bold);
        keepCommon(common->underline, look.underline);
    });
    return common.value_or(TextFormat());
}

/// The ranges without overlaps, in their order in the text, with what they come to together.
std::vector<FormatRuns::Segment> FormatRuns::flattened(const QList<FormatRange> &ranges, qsizetype length)
{
    std::vector<Segment> cut;
    std::vector<qsizetype> edges; // first those where ranges start, which mostly come in their order
    std::vector<qsizetype> ends;
    const auto count = static_cast<size_t>(ranges.size());
    cut.reserve(count);
    edges.reserve(2 * count);
    ends.reserve(count);
    for (const FormatRange &range : ranges) {
        if (range.start < 0 || range.length <= 0 || range.start >= length)
            continue;
        cut.push_back({range.start, range.start + std::min(range.length, length - range.start), range.format});
        edges.push_back(cut.back().from);
        ends.push_back(cut.back().to);
    }
    for (std::vector<qsizetype> *places : {&edges, &ends}) {
        if (!std::is_sorted(places->begin(), places->end()))
            std::sort(places->begin(), places->end());
    }
    const auto starts = static_cast<std::ptrdiff_t>(edges.size());
    edges.insert(edges.end(), ends.begin(), ends.end());
    std::inplace_merge(edges.begin(), edges.begin() + starts, edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    std::vector<Segment> segments;
    segments.reserve(edges.size());
    for (size_t i = 0; i + 1 < edges.size(); ++i)
        segments.push_back({edges[i], edges[i + 1], {}});
    size_t first = 0;
    for (const Segment &range : cut) {
        if (edges[first] > range.from)
            first = 0;
        constexpr size_t near = 8; // edges that are looked at one by one, from the range before on
        for (size_t steps = 0; edges[first] < range.from; ++first) {
            if (++steps > near) {
                const auto rest = edges.begin() + static_cast<std::ptrdiff_t>(first);
                first = static_cast<size_t>(std::lower_bound(rest, edges.end(), range.from) - edges.begin());
                break;
            }
        }
        for (size_t i = first; i < segments.size() && segments[i].from < range.to; ++i)
            lay(segments[i].format, range.format);
    }
    return segments;
}

std::vector<TextStretch> FormatRuns::apply(const QList<FormatRange> &ranges)
{
    std::vector<TextStretch> changed;
    const std::vector<Segment> segments = flattened(ranges, m_length);
    if (segments.empty())
        return changed;
    const qsizetype from = segments.front().from;
    const qsizetype to = segments.back().to;
    std::vector<Run> runs;
    size_t next = 0;
    forEachRun(from, to, [&](qsizetype start, qsizetype end, const Look &look) {
        while (segments[next].to <= start)
            ++next;
        for (size_t i = next; i < segments.size() && segments[i].from < end; ++i) {
            const qsizetype place = std::max(start, segments[i].from);
            const Look wanted = merged(look, segments[i].format);
            if (runs.empty() || runs.back().look != wanted)
                runs.push_back({place, wanted});
            if (wanted == look)
                continue;
            if (!changed.empty() && changed.back().to == place)
                changed.back().to = std::min(end, segments[i].to);
            else
                changed.push_back({place, std::min(end, segments[i].to)});
        }
    });
    if (changed.empty())
        return changed;
    const Look behind = to < m_length ? lookAt(to) : Look();
    moveGapTo(from);
    while (!m_back.empty() && m_length - m_back.back().place <= to)
        m_back.pop_back();
    for (const Run &run : runs)
        append(run.place, run.look);
    if (to < m_length)
        append(to, behind);
    return changed;
}
