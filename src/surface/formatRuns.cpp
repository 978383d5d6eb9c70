#include "surface/formatRuns.h"

#include <algorithm>
#include <limits>

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

/// Two layers as one, the second over the first.
FormatRuns::Layer FormatRuns::laidOver(const Layer &under, const Layer &over)
{
    Layer both;
    both.reserve(2 * (under.size() + over.size()));
    auto low = under.begin();
    auto high = over.begin();
    for (qsizetype place = 0; low != under.end() || high != over.end();) {
        constexpr qsizetype nowhere = std::numeric_limits<qsizetype>::max();
        const qsizetype lowFrom = low == under.end() ? nowhere : std::max(low->from, place);
        const qsizetype highFrom = high == over.end() ? nowhere : std::max(high->from, place);
        const qsizetype from = std::min(lowFrom, highFrom);
        const bool inLow = lowFrom == from;
        const bool inHigh = highFrom == from;
        place = std::min(inLow ? low->to : lowFrom, inHigh ? high->to : highFrom);
        both.push_back({from, place, inLow ? low->format : TextFormat()});
        if (inHigh)
            lay(both.back().format, high->format);
        if (inLow && low->to == place)
            ++low;
        if (inHigh && high->to == place)
            ++high;
    }
    return both;
}

/// The ranges without overlaps, in their order in the text, with what they come to together.
///
/// Mostly they are one for the whole text and then many in their order: two layers, in each of which none overlaps the
/// one before. As many as there may be, neighbours are laid over one another first, so that none is gone through often.
FormatRuns::Layer FormatRuns::flattened(const QList<FormatRange> &ranges, qsizetype length)
{
    std::vector<Layer> layers;
    for (const FormatRange &range : ranges) {
        if (range.start < 0 || range.length <= 0 || range.start >= length)
            continue;
        if (layers.empty() || layers.back().back().to > range.start)
            layers.emplace_back();
        const qsizetype to = range.start + std::min(range.length, length - range.start);
        layers.back().push_back({range.start, to, range.format});
    }
    while (layers.size() > 1) {
        size_t count = 0;
        for (size_t i = 0; i < layers.size(); i += 2)
            layers[count++] = i + 1 < layers.size() ? laidOver(layers[i], layers[i + 1]) : std::move(layers[i]);
        layers.resize(count);
    }
    return layers.empty() ? Layer() : std::move(layers.front());
}

std::vector<TextStretch> FormatRuns::apply(const QList<FormatRange> &ranges)
{
    std::vector<TextStretch> changed;
    const Layer layer = flattened(ranges, m_length);
    if (layer.empty())
        return changed;
    const qsizetype from = layer.front().from;
    const qsizetype to = layer.back().to;
    std::vector<Run> runs;
    runs.reserve(layer.size());
    auto segment = layer.begin();
    forEachRun(from, to, [&](qsizetype start, qsizetype end, const Look &look) {
        for (qsizetype place = start; place < end;) {
            while (segment->to <= place)
                ++segment;
            const bool isCovered = segment->from <= place;
            const qsizetype behind = std::min(end, isCovered ? segment->to : segment->from);
            const Look wanted = isCovered ? merged(look, segment->format) : look;
            if (runs.empty() || runs.back().look != wanted)
                runs.push_back({place, wanted});
            if (wanted != look && !changed.empty() && changed.back().to == place)
                changed.back().to = behind;
            else if (wanted != look)
                changed.push_back({place, behind});
            place = behind;
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
