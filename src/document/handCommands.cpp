#include "document/handCommands.h"

#include "common/codeKnowledge.h"
#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/siteProject.h"
#include "common/surfaceSelection.h"
#include "document/abbreviation.h"
#include "document/lineHands.h"
#include "document/lineIndent.h"
#include "document/linkTarget.h"
#include "document/tagPairs.h"
#include "forms/programContext.h"
#include "internet/modViewInBrowser.h"
#include "services/fileSystem.h"
#include "services/services.h"

#include <QUrl>

#include <functional>

namespace
{
/// Runs what makes a change of the active document's text and selection.
void changeActive(ProgramContext &context, const std::function<LineChange(const QString &, TextSelection)> &make)
{
    if (Document *document = context.mainWindow->activeDocument()) {
        const TextSurface &edit = document->txtEdit();
        changeInOneStep(*document, make(edit.Text(), selectionOf(edit)));
    }
}

/// Whether it is one of HTML: those of drawings bear the names of everyday words, such as text and line.
bool isElement(const ProgramContext &context, const QString &name)
{
    return context.codes && context.codes->elements().htmlNames.contains(name.toLower());
}

/// The elements in place of a stretch of the text, each of their lines as far in as the first.
LineChange inPlaceOf(const QString &text, TextSelection place, const abbreviation::Expansion &expansion)
{
    const QString indentation = indentationBefore(text, place.start);
    const QString lineBreak = QStringLiteral("\r\n");
    QString written = expansion.text;
    written.replace(lineBreak, lineBreak + indentation);
    const qsizetype breaks = expansion.text.first(expansion.caret).count(lineBreak);
    const qsizetype caret = place.start + expansion.caret + breaks * indentation.size();
    return {TextReplacement{place.start, place.length, written}, {caret, 0}};
}

bool isPage(const QString &file)
{
    static const QStringList endings{QStringLiteral("htm"), QStringLiteral("html"), QStringLiteral("xhtml"),
                                     QStringLiteral("shtml")};
    return endings.contains(GetFileExtension(file).toLower());
}

Document *openDocumentOf(const ProgramContext &context, const QString &file)
{
    for (Document *document : context.mainWindow->openDocuments())
        if (context.services.files.isSameFile(document->DocSavePath, file))
            return document;
    return nullptr;
}
} // namespace

void applyChange(TextSurface &edit, const LineChange &change)
{
    if (change.replacement) {
        edit.setSelStart(change.replacement->start);
        edit.setSelLength(change.replacement->length);
        edit.setSelText(change.replacement->text);
    }
    edit.setSelStart(change.selection.start);
    edit.setSelLength(change.selection.length);
}

void changeInOneStep(Document &document, const LineChange &change)
{
    if (!change.replacement || document.txtEdit().Locked())
        return;
    document.UndoRedoStep();
    applyChange(document.txtEdit(), change);
    document.UndoRedoStep();
}

void ToggleComment(ProgramContext &context)
{
    const Document *document = context.mainWindow->activeDocument();
    const QString path = document ? document->DocSavePath : QString();
    changeActive(context, [&path](const QString &text, TextSelection selection) {
        return toggledComment(text, selection, path);
    });
}

void MoveLines(ProgramContext &context, bool up)
{
    changeActive(context,
                 [up](const QString &text, TextSelection selection) { return movedLines(text, selection, up); });
}

void DoubleLines(ProgramContext &context)
{
    changeActive(context, doubledLines);
}

void RemoveLines(ProgramContext &context)
{
    changeActive(context, removedLines);
}

void GoToPartner(ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    TextSurface &edit = document->txtEdit();
    if (const auto pair = tagPairAt(edit.Text(), edit.SelStart()))
        edit.setSelStart(pair->partner.start);
}

void CloseElement(ProgramContext &context)
{
    changeActive(context, [](const QString &text, TextSelection selection) {
        const QString tag = endTagOfOpenElement(text, selection.start);
        if (tag.isEmpty())
            return LineChange{{}, selection};
        return LineChange{TextReplacement{selection.start, 0, tag}, {selection.start + tag.size(), 0}};
    });
}

void SelectElementName(ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    TextSurface &edit = document->txtEdit();
    const QString text = edit.Text();
    const std::optional<TagPair> atCaret = tagPairAt(text, edit.SelStart());
    const std::optional<TagPair> pair = atCaret ? atCaret : elementAround(text, edit.SelStart());
    if (!pair)
        return;
    edit.setSelStart(pair->tag.nameStart);
    edit.setSelLength(pair->tag.name.size());
    edit.SetFocus();
}

bool ExpandAbbreviation(ProgramContext &context, Document &document)
{
    const TextSurface &edit = document.txtEdit();
    const QString text = edit.Text();
    const qsizetype caret = edit.SelStart();
    if (edit.SelLength() > 0 || edit.Locked() ||
        commentSignsAt(text, caret, document.DocSavePath) != CommentSigns::Html)
        return false;
    const qsizetype length =
        abbreviation::lengthBefore(text, caret, [&context](const QString &name) { return isElement(context, name); });
    if (length == 0)
        return false;
    const auto expansion = abbreviation::expanded(text.mid(caret - length, length),
                                                  indentStyle(context.services.settings), markupLanguage(text));
    if (!expansion)
        return false;
    changeInOneStep(document, inPlaceOf(text, {caret - length, length}, *expansion));
    return true;
}

bool WrapWithAbbreviation(ProgramContext &context, const QString &abbreviation)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return false;
    const TextSurface &edit = document->txtEdit();
    const auto expansion = abbreviation::wrapped(abbreviation, edit.SelText(), indentStyle(context.services.settings),
                                                 markupLanguage(edit.Text()));
    if (!expansion)
        return false;
    changeInOneStep(*document, inPlaceOf(edit.Text(), selectionOf(edit), *expansion));
    return true;
}

void FollowLink(ProgramContext &context, const Document &document, const QString &address)
{
    if (address.isEmpty() || address.startsWith(u'#'))
        return;
    const QString project = context.project && context.project->isOpen() ? context.project->path() : QString();
    const QString root = project.isEmpty() ? QString() : FolderOfPath(project).chopped(1);
    const QString file = localTarget(address, document.DocSavePath, root);
    if (file.isEmpty()) {
        OpenLink(context, address);
    } else if (!isPage(file)) {
        OpenLink(context, QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded));
    } else if (Document *open = openDocumentOf(context, file)) {
        open->activate();
    } else if (context.files) {
        context.files->OpenDocumentFile(file, false);
    }
}

void FollowLinkAtCaret(ProgramContext &context)
{
    if (const Document *document = context.mainWindow->activeDocument())
        FollowLink(context, *document, linkTargetAt(document->txtEdit().Text(), document->txtEdit().SelStart()));
}
