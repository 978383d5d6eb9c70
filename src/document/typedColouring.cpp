#include "document/typedColouring.h"

#include <algorithm>

namespace
{
bool isAngleBracket(QChar c)
{
    return c == u'<' || c == u'>';
}
} // namespace

bool CaretInsideTag(const TextPart &text, qsizetype caret, QStringView typed)
{
    if (typed == u">")
        return false;
    // Most tags are near; a long look back is taken in ever longer steps.
    qsizetype step = 128;
    for (qsizetype end = caret; end > 0; step *= 4) {
        const qsizetype start = std::max<qsizetype>(0, end - step);
        const QString part = text(start, end - start);
        const auto bracket = std::find_if(part.rbegin(), part.rend(), isAngleBracket);
        if (bracket != part.rend())
            return *bracket == u'<';
        end = start;
    }
    return false;
}

TypedResult TypedColouring::keyPress(QStringView typed, qsizetype caret, const TextPart &text,
                                     const ColouringOptions &options)
{
    TypedResult result;
    if (caret != m_lastKeyCaret + 1) // the caret was moved otherwise than by typing
        clearFlags();
    m_lastKeyCaret = caret;
    if (typed == u"<")
        openTag(result.format, options);
    if (typed == u">") {
        clearFlags();
        return {true, {WindowTextColour, false, {}}};
    }
    if (typed == u" " && mayOpen(typed, caret, text))
        openAttribute(result.format, options);
    if (m_valueOpen && (typed == u" " || typed == u"\"")) {
        m_valueOpen = false;
        result.format.colour = options.ColourCodeAttribute;
    }
    // Behind the step above on purpose: a closing quote inside a tag opens the value again.
    if ((typed == u"=" || typed == u"\"") && mayOpen(typed, caret, text)) {
        m_valueOpen = true;
        result.format.colour = options.ColourCodeValue;
    }
    return result;
}

TextFormat TypedColouring::leaveTag()
{
    clearFlags();
    return {WindowTextColour, {}, {}};
}

void TypedColouring::clearFlags()
{
    m_tagOpen = false;
    m_attributeOpen = false;
    m_valueOpen = false;
}

// The look back costs most and comes last.
bool TypedColouring::mayOpen(QStringView typed, qsizetype caret, const TextPart &text) const
{
    return !m_valueOpen && (m_tagOpen || CaretInsideTag(text, caret, typed));
}

void TypedColouring::openTag(TextFormat &format, const ColouringOptions &options)
{
    m_tagOpen = true;
    format.colour = options.ColourCodeTag;
    format.bold = true;
}

void TypedColouring::openAttribute(TextFormat &format, const ColouringOptions &options)
{
    m_attributeOpen = true;
    format.colour = options.ColourCodeAttribute;
    format.bold = false;
}
