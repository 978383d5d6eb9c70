#include "codeknowledge/tagHelp.h"

#include "common/codeKnowledge.h"
#include "common/mainWindow.h"
#include "common/text.h"
#include "common/textReader.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"

#include <algorithm>

namespace
{
bool endsLine(QChar c)
{
    return c == u'\n' || c == u'\r';
}

QString keyword(const QString &tag)
{
    const QString word = Trim(tag.first(tag.contains(u' ') ? tag.indexOf(u' ') : tag.size()));
    return word.startsWith(u'/') ? word.sliced(1) : word;
}

bool isElement(const CodeKnowledge &codes, const QString &word)
{
    const QStringList &elements = codes.elements().lstCodeAssistantElements;
    const QString wanted = word.toLower();
    return !word.isEmpty() && std::any_of(elements.begin(), elements.end(), [&](const QString &element) {
        return element.sliced(1).toLower() == wanted;
    });
}
} // namespace

// Positions count from 1, so that the caret's own number is that of the character in front of it.
QString ReadTagAtCaret(const TextSurface &edit)
{
    const qsizetype caret = edit.SelStart();
    if (caret < 1)
        return {};
    TextReader text(edit);
    qsizetype open = caret;
    while (open >= 1 && text.at(open) != u'<' && !endsLine(text.at(open)))
        --open;
    qsizetype close = caret;
    while (close <= text.length() && text.at(close) != u'>' && !endsLine(text.at(close)))
        ++close;
    return text.mid(open + 1, close - open - 1);
}

QString tagHelpTopic(const CodeKnowledge &codes, const QString &tag)
{
    const QString word = keyword(tag);
    if (!isElement(codes, word))
        return QStringLiteral("::/topics/reference/Information_KeywordNotFound.htm");
    return QStringLiteral("::/topics/reference/Tag_") + word.toUpper() + QStringLiteral(".htm");
}

void ShowTagHelp(ProgramContext &context)
{
    const Document *document = context.mainWindow->activeDocument();
    if (document && context.codes)
        OpenHelpTopic(context, tagHelpTopic(*context.codes, ReadTagAtCaret(document->txtEdit())));
}
