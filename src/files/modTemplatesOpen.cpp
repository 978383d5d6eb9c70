// Beginning a page from a combined template.
#include "files/modTemplates.h"

#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "files/documentText.h"
#include "files/frmMsgOpenTemplate.h"
#include "files/localPaths.h"
#include "files/templateFiles.h"
#include "files/templateMessages.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/screenPointer.h"

#include <algorithm>

namespace
{
/// A page that is being made of a template.
struct NewPage {
    QString container;
    QString path;
    QList<container::Entry> entries;
    TemplateAnswer answer;
};

std::optional<QString> askPageName(ProgramContext &context)
{
    const std::optional<FileDialogResult> chosen = context.services.commonDialogs.showSave(
        {.DialogTitle = QStringLiteral("Create New Document from Template Named"),
         .Filter = QStringLiteral("HTML Files (*.html; *.htm)|*.html;*.htm"),
         .FilterIndex = 1,
         .InitDir = settings::read(context.services.settings, settings::WorkingDir),
         .FileName = {}});
    return chosen && !chosen->fileName.isEmpty() ? std::optional(chosen->fileName) : std::nullopt;
}

/// What is to become of the accompanying files; the user is asked where there are some. A container without even a page
/// counts as called off.
TemplateAnswer askAboutFiles(ProgramContext &context, qsizetype names)
{
    if (names < 2)
        return {names == 1 ? TemplateAction::DoNotSave : TemplateAction::Cancel, {}};
    auto &form = context.forms.get<frmMsgOpenTemplate>();
    form.setFileCount(names - 1);
    form.ShowModal();
    return form.answer();
}

/// Unpacks the files behind the first into a folder. Those that would not stay in it are told and left out.
void extractAccompanying(ProgramContext &context, const NewPage &page, const QString &folder)
{
    QStringList refused;
    for (const container::Entry &entry : page.entries.mid(1)) {
        const QString target = joinPath(folder, entry.name);
        if (!container::isPlainName(entry.name) || context.services.files.isLink(target))
            refused.append(entry.name);
        else
            ExtractFromCombinedTemplate(context, page.container, entry.name, target);
    }
    if (!refused.isEmpty())
        context.services.messageBoxes.show(refusedNamesMessage(refused));
}

bool extractPage(ProgramContext &context, const NewPage &page)
{
    return ExtractFromCombinedTemplate(context, page.container, container::pageName(), page.path);
}

/// The page first, or it alone where no other file is to be saved. False if it could not be written.
bool extractAll(ProgramContext &context, const NewPage &page)
{
    if (!extractPage(context, page))
        return false;
    if (page.answer.action == TemplateAction::SaveBeside)
        extractAccompanying(context, page, folderOf(page.path));
    else if (page.answer.action == TemplateAction::SaveInFolder)
        extractAccompanying(context, page, page.answer.TemplateFilesFolder);
    return true;
}

Document *documentOf(ProgramContext &context, const QString &path)
{
    for (Document *document : context.mainWindow->openDocuments())
        if (document->DocSavePath == path)
            return document;
    return nullptr;
}

/// Puts the folder, or nothing, in place of the marks. False if there were none.
bool fillMarks(TextSurface &edit, const QString &folder)
{
    const QList<qsizetype> marks = folderMarks(edit.Text());
    for (auto mark = marks.rbegin(); mark != marks.rend(); ++mark) { // from the last, so that the places hold
        edit.setSelStart(*mark);
        edit.setSelLength(1);
        edit.setSelText(folder);
    }
    return !marks.isEmpty();
}

/// The file still has the marks that the document has no more: it is written once more, so that the two are the same.
bool writeFilled(ProgramContext &context, Document &document)
{
    const EncodedText encoded = encode(document.txtEdit().Text(), formatOfSave(document, SaveForm::AsOpened));
    if (const std::optional<FileError> error = context.services.files.writeWhole(document.DocSavePath, encoded.bytes)) {
        context.files->FileErrors(error->code, error->description);
        return false;
    }
    document.fileStamp = context.services.files.stamp(document.DocSavePath);
    noteSaved(document, encoded.encoding);
    return true;
}

void finishPage(ProgramContext &context, Document &document, const QString &folder)
{
    const bool clean = !fillMarks(document.txtEdit(), folder) || writeFilled(context, document);
    document.boolDirty = !clean;
    document.beginHistory();
    document.NewDoc = false;
    document.ExternalCallColourCode();
    document.txtEdit().setSelStart(0);
    context.mainWindow->setEnabled(true);
    document.txtEdit().SetFocus();
}

void openPage(ProgramContext &context, const NewPage &page)
{
    const bool wasOpen = documentOf(context, page.path) != nullptr;
    context.files->OpenDocumentFile(page.path, false);
    Document *document = documentOf(context, page.path);
    if (!document || wasOpen) // it could not be opened, or is open already: the user has been told
        return;
    const bool inFolder = page.answer.action == TemplateAction::SaveInFolder;
    finishPage(context, *document, inFolder ? page.answer.TemplateFilesFolder : QString());
}
} // namespace

void OpenCombinedTemplate(ProgramContext &context, const QString &path)
{
    const ContainerListing listing = readContainer(context.services.files, path);
    if (listing.error) {
        context.files->FileErrors(listing.error->code, listing.error->description);
        return;
    }
    const std::optional<QString> name = askPageName(context);
    if (!name)
        return;
    const NewPage page{path, *name, listing.entries, askAboutFiles(context, listing.entries.size())};
    const bool extracted = extractAll(context, page);
    if (extracted && page.answer.action != TemplateAction::Cancel) {
        openPage(context, page);
        return;
    }
    context.mainWindow->setEnabled(true);
    context.screenPointer.setMousePointer(PointerShape::Default);
    if (listing.entries.isEmpty())
        context.mainWindow->SetStatusText(QStringLiteral("The template holds no page."));
}
