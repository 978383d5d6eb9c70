#include "codeknowledge/codeInsertion.h"

#include "common/codeKnowledge.h"
#include "common/mainWindow.h"
#include "forms/programContext.h"

namespace
{
std::optional<QChar> characterBeforeCaret(const TextSurface &edit)
{
    const QString character = edit.textPart(edit.SelStart() - 1, 1);
    return character.isEmpty() ? std::optional<QChar>() : character[0];
}
} // namespace

std::optional<QString> chosenCode(const CodeKnowledge &codes, int number, std::optional<QChar> before)
{
    const TreeNode node = codes.node(number);
    if (node.text == u"HyperText Markup Language" || node.text == u"Cascading Style Sheets")
        return std::nullopt;
    if (codes.isElement(number))
        return u'<' + node.text;      // the code assistant goes on from here
    if (node.imageKey == u"ImgNode4") // a deprecated value has another picture, and goes in without quotes
        return u'"' + node.text + u'"';
    const bool parted = before && (*before == u' ' || *before == u'\n');
    return parted ? node.text : u' ' + node.text;
}

void treCodes_DblClick(ProgramContext &context, int node)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    TextSurface &edit = document->txtEdit();
    const auto code = chosenCode(*context.codes, node, characterBeforeCaret(edit));
    if (!code)
        return;
    edit.setSelText(*code);
    edit.SetFocus();
}

void treCodes_Enter(ProgramContext &context, int node)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    const QString text = context.codes->node(node).text;
    TextSurface &edit = document->txtEdit();
    edit.setSelText(text);
    edit.setSelStart(edit.SelStart() - text.size());
}
