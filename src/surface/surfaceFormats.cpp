#include "surface/surfaceFormats.h"

#include "surface/surfaceText.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

namespace
{
constexpr int ColourProperty = QTextFormat::UserProperty + 2; // the value as given, however it is drawn

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

/// The ranges without overlaps, in their order in the text, with what they come to together.
std::vector<SurfaceFormats::Range> flattened(const QList<SurfaceFormats::Range> &ranges)
{
    std::vector<int> edges;
    for (const SurfaceFormats::Range &range : ranges) {
        edges.push_back(range.from);
        edges.push_back(range.to);
    }
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    std::vector<SurfaceFormats::Range> segments;
    for (size_t i = 0; i + 1 < edges.size(); ++i)
        segments.push_back({edges[i], edges[i + 1], {}});
    for (const SurfaceFormats::Range &range : ranges) {
        auto i = static_cast<size_t>(std::lower_bound(edges.begin(), edges.end(), range.from) - edges.begin());
        for (; i < segments.size() && segments[i].from < range.to; ++i)
            lay(segments[i].format, range.format);
    }
    return segments;
}
} // namespace

void SurfaceFormats::apply(const QList<Range> &ranges)
{
    if (ranges.size() == 1 && changesNoLook(ranges.first().format))
        return;
    const std::vector<Change> changes = changesFor(flattened(ranges));
    if (changes.empty())
        return;
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    for (const Change &change : changes) {
        cursor.setPosition(change.from);
        cursor.setPosition(change.to, QTextCursor::KeepAnchor);
        cursor.setCharFormat(formatOf(change.look));
    }
    cursor.endEditBlock();
}

void SurfaceFormats::redraw()
{
    std::vector<Change> runs;
    forEachRun(0, m_document->characterCount(), [&](int from, int to, const Look &look) {
        if (look.colour != WindowTextColour)
            runs.push_back({from, to, look});
    });
    m_charFormats.clear();
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    for (const Change &run : runs) {
        cursor.setPosition(run.from);
        cursor.setPosition(run.to, QTextCursor::KeepAnchor);
        cursor.setCharFormat(formatOf(run.look));
    }
    cursor.endEditBlock();
}

TextFormat SurfaceFormats::read(int from, int to) const
{
    if (from >= to)
        return at(from);
    std::optional<TextFormat> common;
    forEachRun(from, to, [&](int, int, const Look &look) {
        if (!common)
            common = {look.colour, look.bold, look.underline};
        keepCommon(common->colour, look.colour);
        keepCommon(common->bold, look.bold);
        keepCommon(common->underline, look.underline);
    });
    return common.value_or(TextFormat());
}

TextFormat SurfaceFormats::read(const QTextCharFormat &format) const
{
    const Look look = lookOf(format);
    return {look.colour, look.bold, look.underline};
}

TextFormat SurfaceFormats::at(int position) const
{
    QTextCursor cursor(m_document);
    cursor.setPosition(position);
    return read(cursor.charFormat());
}

QTextCharFormat SurfaceFormats::changed(const QTextCharFormat &format, const TextFormat &change) const
{
    return formatOf(merged(lookOf(format), change));
}

SurfaceFormats::Look SurfaceFormats::lookOf(const QTextCharFormat &format)
{
    Look look;
    if (format.hasProperty(ColourProperty))
        look.colour = format.property(ColourProperty).toUInt();
    look.bold = format.fontWeight() >= QFont::Bold;
    look.underline = format.fontUnderline();
    look.hidden = static_cast<quint16>(format.intProperty(HiddenCharacterProperty));
    return look;
}

SurfaceFormats::Look SurfaceFormats::merged(Look look, const TextFormat &change)
{
    look.colour = change.colour.value_or(look.colour);
    look.bold = change.bold.value_or(look.bold);
    look.underline = change.underline.value_or(look.underline);
    return look;
}

SurfaceFormats::Look SurfaceFormats::lookOf(int formatIndex) const
{
    const auto known = m_looks.constFind(formatIndex);
    if (known != m_looks.constEnd())
        return *known;
    return *m_looks.insert(formatIndex, lookOf(m_document->allFormats().at(formatIndex).toCharFormat()));
}

const QTextCharFormat &SurfaceFormats::formatOf(const Look &look) const
{
    const quint64 key =
        quint64(look.colour) << 32U | quint64(look.hidden) << 16U | quint64(look.bold) << 1U | quint64(look.underline);
    const auto known = m_charFormats.constFind(key);
    if (known != m_charFormats.constEnd())
        return *known;
    QTextCharFormat format;
    if (look.colour != WindowTextColour) {
        format.setForeground(m_painted(look.colour));
        format.setProperty(ColourProperty, look.colour);
    }
    if (look.bold)
        format.setFontWeight(QFont::Bold);
    if (look.underline)
        format.setFontUnderline(true);
    if (look.hidden)
        format.setProperty(HiddenCharacterProperty, int(look.hidden));
    return *m_charFormats.insert(key, format);
}

/// Whether all characters look as the format would have them look already, as far as the document's store of formats
/// tells without a walk through its text: a document that was never coloured holds one format.
bool SurfaceFormats::changesNoLook(const TextFormat &format) const
{
    const QList<QTextFormat> formats = m_document->allFormats();
    return std::all_of(formats.begin(), formats.end(), [&](const QTextFormat &known) {
        const Look look = lookOf(known.toCharFormat());
        return !known.isCharFormat() || merged(look, format) == look;
    });
}

/// What has to be changed for the segments, neighbours that come to look the same in one.
std::vector<SurfaceFormats::Change> SurfaceFormats::changesFor(const std::vector<Range> &segments) const
{
    std::vector<Change> changes;
    if (segments.empty())
        return changes;
    size_t next = 0;
    forEachRun(segments.front().from, segments.back().to, [&](int from, int to, const Look &look) {
        while (segments[next].to <= from)
            ++next;
        for (size_t i = next; i < segments.size() && segments[i].from < to; ++i) {
            const Look wanted = merged(look, segments[i].format);
            const int start = std::max(from, segments[i].from);
            const int end = std::min(to, segments[i].to);
            if (wanted == look)
                continue;
            if (!changes.empty() && changes.back().to == start && changes.back().look == wanted)
                changes.back().to = end;
            else
                changes.push_back({start, end, wanted});
        }
    });
    return changes;
}

/// Visits the runs of one format in a range, cut to it, in their order. A break belongs to the runs, too: its format is
/// what a character typed into an empty line takes.
template <typename Visit>
void SurfaceFormats::forEachRun(int from, int to, Visit visit) const
{
    const auto visitCut = [&](int start, int end, int formatIndex) {
        if (std::max(start, from) < std::min(end, to))
            visit(std::max(start, from), std::min(end, to), lookOf(formatIndex));
    };
    for (QTextBlock block = m_document->findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
        visitCut(block.position() - 1, block.position(), block.charFormatIndex());
        for (auto i = block.begin(); !i.atEnd(); ++i) {
            const QTextFragment fragment = i.fragment();
            visitCut(fragment.position(), fragment.position() + fragment.length(), fragment.charFormatIndex());
        }
    }
}
