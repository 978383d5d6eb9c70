// What the edit surface's characters look like: the formats that are set, and the colours that they are drawn with.
#include "surface/editSurface.h"

#include "common/darkGround.h"
#include "widgets/themeColour.h"

#include <algorithm>

TextFormat EditSurface::selectionFormat() const
{
    if (!m_selection.isEmpty())
        return m_looks.common(m_selection.from(), m_selection.to());
    const Look look = lookAtCaret();
    return {look.colour, look.bold, look.underline};
}

void EditSurface::setSelectionFormat(const TextFormat &format)
{
    if (m_selection.isEmpty())
        m_nextLook = merged(lookAtCaret(), format);
    else
        setFormat(SelStart(), SelLength(), format);
}

TextFormat EditSurface::formatOf(qsizetype start, qsizetype length) const
{
    if (start < 0 || length < 0)
        return {};
    const qsizetype from = m_text.snapped(start);
    const qsizetype to = m_text.snapped(from + std::min(length, m_text.length() - from));
    if (from < to)
        return m_looks.common(from, to);
    const Look look = lookForText(from);
    return {look.colour, look.bold, look.underline};
}

bool EditSurface::setFormat(qsizetype start, qsizetype length, const TextFormat &format)
{
    setFormats({{start, length, format}});
    return start >= 0 && length >= 0;
}

void EditSurface::setFormats(const QList<FormatRange> &ranges)
{
    QList<FormatRange> snapped;
    snapped.reserve(ranges.size());
    // Most ranges lie in the line of the one before, whose bounds need not be looked for again.
    const auto snap = [this, from = qsizetype(0), to = qsizetype(-1)](qsizetype position) mutable {
        if (position < from || position > to) {
            const qsizetype line = m_text.lineAt(position);
            from = m_text.lineStart(line);
            to = m_text.lineEnd(line);
        }
        return std::min(position, to);
    };
    auto snapStart = snap;
    auto snapEnd = snap;
    for (const FormatRange &range : ranges) {
        if (range.start < 0 || range.length < 0)
            continue;
        const qsizetype from = snapStart(range.start);
        const qsizetype room = m_text.length() - std::min(range.start, m_text.length());
        snapped.append({from, snapEnd(range.start + std::min(range.length, room)) - from, range.format});
    }
    const std::vector<TextStretch> changed = m_looks.apply(snapped);
    if (!changed.empty() && m_view.layouts().forgetStretches(changed))
        viewport()->update(); // the margins follow if a row turns out to be as high as none before
}

/// What a character that is put in at a position looks like: as the one in front of it, and at the start of a line as
/// the one behind it.
Look EditSurface::lookForText(qsizetype position) const
{
    const qsizetype line = m_text.lineAt(position);
    const bool startsLine = position == m_text.lineStart(line) && m_text.lineLength(line) > 0;
    if (startsLine)
        return m_looks.lookAt(position);
    return position > 0 ? m_looks.lookAt(position - 1) : Look();
}

Look EditSurface::lookAtCaret() const
{
    return m_nextLook ? *m_nextLook : lookForText(m_selection.caret);
}

bool EditSurface::isOnDarkGround() const
{
    return palette().color(QPalette::Base).lightness() < palette().color(QPalette::Text).lightness();
}

/// What a dialog beside the text has selected is seen as well as what the user has.
void EditSurface::keepSelectionColours()
{
    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setBrush(QPalette::Inactive, role, colours.brush(QPalette::Active, role));
    if (colours != palette())
        setPalette(colours);
}

void EditSurface::followGround()
{
    m_darkGround = isOnDarkGround();
    m_view.layouts().forgetAll(); // their formats hold colours
    updateAll();
}

/// The colour that a value is drawn with.
QColor EditSurface::colourFor(ColourValue colour) const
{
    if (isSystemColour(colour))
        return palette().color(themeRole(colour));
    const ColourValue drawn = isOnDarkGround() ? readableOnDark(colour) : readableOnLight(colour);
    return QColor(redOf(drawn), greenOf(drawn), blueOf(drawn));
}
