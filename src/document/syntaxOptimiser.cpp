#include "document/syntaxOptimiser.h"

#include "common/text.h"
#include "document/indentation.h"
#include "document/textSearch.h"

#include <algorithm>
#include <array>

namespace
{
struct BlockElement {
    QStringView opening;
    QStringView closing;
};

// The first whose opening stands in a line is taken.
constexpr std::array BlockElements = {
    BlockElement{u"<head", u"</head"}, BlockElement{u"<title", u"</title"}, BlockElement{u"<body", u"</body"},
    BlockElement{u"<ul", u"</ul"},     BlockElement{u"<ol", u"</ol"},       BlockElement{u"<table", u"</table"},
    BlockElement{u"<td", u"</td"},     BlockElement{u"<tr", u"</tr"},
};

const BlockElement *blockElementIn(const QString &loweredLine)
{
    const auto found = std::find_if(BlockElements.begin(), BlockElements.end(),
                                    [&](const BlockElement &each) { return loweredLine.contains(each.opening); });
    return found == BlockElements.end() ? nullptr : found;
}
} // namespace

SyntaxOptimiser::SyntaxOptimiser(const QString &text, UndoHistory &history) : m_text(text), m_history(history) {}

bool SyntaxOptimiser::advance()
{
    if (m_place == Place::AtLine)
        lookAtLine();
    if (m_place != Place::End)
        m_place = m_pos < m_text.size() ? Place::AtLine : Place::End;
    return m_place != Place::End;
}

void SyntaxOptimiser::lookAtLine()
{
    const qsizetype lineBreak = m_pos == 0 ? 0 : Find(m_text, u"\r\n", m_pos).value_or(0);
    if (m_pos != 0 && lineBreak == 0) { // going on would start over from the top, for ever
        m_place = Place::End;
        return;
    }
    const qsizetype lineStart = m_pos == 0 ? 0 : lineBreak + 1;
    qsizetype lineEnd = Find(m_text, u"\r\n", lineStart + 1).value_or(0) - 1;
    if (lineEnd == -1 && lineStart != 0)
        lineEnd = m_text.size();
    // A text that is one line has no end of line to select up to: nothing is looked at.
    const qsizetype length = std::max<qsizetype>(lineEnd - lineStart, 0);
    if (const BlockElement *element = blockElementIn(LCase(QStringView(m_text).mid(lineStart, length))))
        indentContents(element->closing, lineEnd);
    else
        m_pos = lineStart + length + 1;
}

void SyntaxOptimiser::indentContents(QStringView closing, qsizetype lineEnd)
{
    const qsizetype lineBreak = Find(m_text, u"\r", lineEnd + 1).value_or(0);
    if (lineBreak == 0) { // no line follows that could be indented
        m_pos = m_text.size();
        return;
    }
    TextSelection contents{lineBreak + 1, 0};
    m_pos = contents.start;
    contents.length = FindInLCase(m_text, closing, contents.start) - (contents.start + 2);
    if (contents.length <= 0) // the closing tag is missing, or nothing stands before it
        return;
    const QStringView selected = QStringView(m_text).mid(contents.start, contents.length);
    if (selected.contains(IndentStep))
        contents.length = FindBack(selected, u"\r").value_or(0);
    indent(contents);
}

void SyntaxOptimiser::indent(TextSelection selection)
{
    const IndentResult result = IndentText(m_text, selection, true);
    m_text.replace(result.replacement->start, result.replacement->length, result.replacement->text);
    m_changed = true;
    if (result.recorded)
        m_history.UndoRedoChange({m_text, *result.recorded});
    m_pos = result.selection.start + result.selection.length;
}
