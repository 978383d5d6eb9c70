#include "document/syntaxOptimiser.h"

#include "common/text.h"
#include "document/indentation.h"
#include "document/textSearch.h"

#include <algorithm>
#include <array>

struct BlockElement {
    QStringView opening;
    QStringView closing;
};

namespace
{
constexpr QStringView LineBreak = u"\r\n";

// The first whose opening stands in a line is taken.
constexpr std::array BlockElements = {
    BlockElement{u"<head", u"</head"}, BlockElement{u"<title", u"</title"}, BlockElement{u"<body", u"</body"},
    BlockElement{u"<ul", u"</ul"},     BlockElement{u"<ol", u"</ol"},       BlockElement{u"<table", u"</table"},
    BlockElement{u"<td", u"</td"},     BlockElement{u"<tr", u"</tr"},
};

const BlockElement *blockElementIn(const QString &loweredLine)
{
    const auto *const found = std::find_if(BlockElements.begin(), BlockElements.end(), [&](const BlockElement &each) {
        return loweredLine.contains(each.opening);
    });
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
    const std::optional<qsizetype> start = nextLineStart();
    if (!start) {
        m_place = Place::End;
        return;
    }
    const Line line = lineAt(*start);
    m_pos = positionBehind(line);
    if (line.element && m_pos < m_text.size())
        indentContents(line.element->closing);
}

// Where no line break follows, the search's "not found" leads back to the top of the text, less its first character.
std::optional<qsizetype> SyntaxOptimiser::nextLineStart() const
{
    if (m_pos == 0)
        return 0;
    const qsizetype lineBreak = Find(m_text, LineBreak, m_pos).value_or(0);
    if (lineBreak == 0 && wouldTurnInACircle())
        return std::nullopt;
    return lineBreak + 1;
}

// Whether going on from the top would lead back to the top: it would do so without end, for indenting lines changes
// neither which of them are looked at nor what opens in them.
bool SyntaxOptimiser::wouldTurnInACircle() const
{
    qsizetype position = positionBehind(lineAt(1));
    while (position < m_text.size()) {
        const qsizetype lineBreak = Find(m_text, LineBreak, position).value_or(0);
        if (lineBreak == 0)
            return true;
        position = positionBehind(lineAt(lineBreak + 1));
    }
    return false;
}

SyntaxOptimiser::Line SyntaxOptimiser::lineAt(qsizetype start) const
{
    qsizetype end = Find(m_text, LineBreak, start + 1).value_or(0) - 1;
    if (end == -1 && start != 0)
        end = m_text.size();
    // A text that is one line has no end to select up to: the selection is refused, and nothing is found in it.
    const qsizetype length = std::max<qsizetype>(end - start, 0);
    return {start, end, blockElementIn(LCase(QStringView(m_text).mid(start, length)))};
}

// Where the next line break is sought: in the contents' first line behind an opening tag, which is thus passed over.
qsizetype SyntaxOptimiser::positionBehind(const Line &line) const
{
    if (!line.element)
        return std::max(line.start, line.end) + 1;
    const qsizetype lineBreak = Find(m_text, u"\r", line.end + 1).value_or(0);
    return lineBreak == 0 ? m_text.size() : lineBreak + 1;
}

void SyntaxOptimiser::indentContents(QStringView closing)
{
    TextSelection contents{m_pos, FindInLCase(m_text, closing, m_pos) - (m_pos + 2)};
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
