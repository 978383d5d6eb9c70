#include "document/paintList.h"

#include <algorithm>

namespace
{
// Ranges for each character of the text, far above what a page needs that was not made to fill the memory. What is
// visible never needs more than one.
constexpr qsizetype MostRanges = 4;

// A paint in one byte, so that a character's paint is one byte too: three bits of colour, then two for each attribute,
// of which 0 stands for "unchanged", 1 for off and 2 for on.
constexpr unsigned ColourBits = 0x07;
constexpr unsigned BoldShift = 3;
constexpr unsigned UnderlineShift = 5;
constexpr unsigned AttributeBits = 0x03;

constexpr unsigned packed(std::optional<bool> attribute)
{
    return attribute ? (*attribute ? 2 : 1) : 0;
}

constexpr std::optional<bool> unpacked(unsigned attribute)
{
    return attribute == 0 ? std::optional<bool>() : attribute == 2;
}

constexpr quint8 codeOf(const Paint &paint)
{
    return static_cast<quint8>(static_cast<unsigned>(paint.colour) | packed(paint.bold) << BoldShift |
                               packed(paint.underline) << UnderlineShift);
}

constexpr Paint paintOf(quint8 code)
{
    return {static_cast<ColourRole>(code & ColourBits), unpacked(code >> BoldShift & AttributeBits),
            unpacked(code >> UnderlineShift & AttributeBits)};
}

// The bits of what lies under a paint that can still be seen through it.
constexpr quint8 seenThrough(const Paint &paint)
{
    return static_cast<quint8>((paint.colour == ColourRole::Unchanged ? ColourBits : 0U) |
                               (paint.bold ? 0U : AttributeBits << BoldShift) |
                               (paint.underline ? 0U : AttributeBits << UnderlineShift));
}

void lay(const PaintRange &range, std::vector<quint8> &characters)
{
    const quint8 kept = seenThrough(range.paint);
    const quint8 laid = codeOf(range.paint);
    quint8 *character = characters.data() + range.start;
    for (qsizetype i = 0; i < range.length; ++i)
        character[i] = static_cast<quint8>((character[i] & kept) | laid);
}

std::vector<PaintRange> runsOf(const std::vector<quint8> &characters)
{
    std::vector<PaintRange> runs;
    for (auto start = characters.begin(); start != characters.end();) {
        const auto end = std::find_if(start, characters.end(), [code = *start](quint8 other) { return other != code; });
        if (*start != 0)
            runs.push_back({start - characters.begin(), end - start, paintOf(*start)});
        start = end;
    }
    return runs;
}

ColourValue colourOf(ColourRole role, const ColouringOptions &options)
{
    switch (role) {
    case ColourRole::Tag:
        return options.ColourCodeTag;
    case ColourRole::Attribute:
        return options.ColourCodeAttribute;
    case ColourRole::Value:
        return options.ColourCodeValue;
    case ColourRole::Comment:
        return options.ColourCodeComment;
    case ColourRole::AspCode:
        return options.ColourASPCode;
    case ColourRole::Link:
        return options.ColourCodeURL;
    case ColourRole::Unchanged:
    case ColourRole::Text:
        break;
    }
    return WindowTextColour;
}
} // namespace

TextFormat textFormat(const Paint &paint, const ColouringOptions &options)
{
    TextFormat format{{}, paint.bold, paint.underline};
    if (paint.colour != ColourRole::Unchanged)
        format.colour = colourOf(paint.colour, options);
    return format;
}

void PaintList::add(qsizetype start, qsizetype length, const Paint &paint)
{
    length = std::min(length, m_textLength - start);
    if (length <= 0)
        return;
    if (std::ssize(m_ranges) >= MostRanges * m_textLength)
        m_ranges = visible();
    m_ranges.push_back({start, length, paint});
}

std::vector<PaintRange> PaintList::visible() const
{
    if (m_ranges.size() < 2)
        return m_ranges;
    std::vector<quint8> characters(static_cast<std::size_t>(m_textLength), 0);
    for (const PaintRange &range : m_ranges)
        lay(range, characters);
    return runsOf(characters);
}

QList<FormatRange> PaintList::formats(const ColouringOptions &options) const
{
    QList<FormatRange> formats;
    for (const PaintRange &range : visible())
        formats.append({range.start, range.length, textFormat(range.paint, options)});
    return formats;
}
