// Opening files, and what all commands on files share.
#include "files/documentFiles.h"

#include "common/document.h"
#include "common/fileBook.h"
#include "common/fileFormatText.h"
#include "common/mainWindow.h"
#include "common/pageCharset.h"
#include "common/paths.h"
#include "common/programState.h"
#include "common/siteProject.h"
#include "common/unsavedText.h"
#include "files/fileDialogRows.h"
#include "files/modFileErrors.h"
#include "files/modFileNames.h"
#include "files/modRecentFiles.h"
#include "files/modTemplates.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/workingFolder.h"
#include "widgets/screenPointer.h"

#include <algorithm>
#include <new>

/// A file's text in its new document, which knows nothing of the file yet.
struct DocumentFiles::Opened {
    Document *document = nullptr;
    DecodedText contents;
    std::optional<FileStamp> stamp;
};

void DocumentFiles::begin()
{
    m_context.screenPointer.setMousePointer(PointerShape::Hourglass);
    m_context.mainWindow->setEnabled(false);
}

void DocumentFiles::finish()
{
    m_context.screenPointer.setMousePointer(PointerShape::Default);
    m_context.mainWindow->setEnabled(true);
}

void DocumentFiles::failWith(const FileError &error)
{
    finish();
    FileErrors(error.code, error.description);
}

void DocumentFiles::FileErrors(int errorNumber, const QString &description)
{
    m_context.services.messageBoxes.show(fileErrorBox(errorNumber, description));
}

void DocumentFiles::MemoryErrors(int errorNumber)
{
    if (const std::optional<MessageBox> box = memoryErrorBox(errorNumber))
        m_context.services.messageBoxes.show(*box);
}

void DocumentFiles::showFormat(const Document &document)
{
    if (m_context.mainWindow->activeDocument() == &document)
        m_context.mainWindow->showFileFormat(fileFormatText(document));
}

void DocumentFiles::ShowOpenDialog()
{
    const std::optional<FileDialogResult> chosen =
        m_context.services.commonDialogs.showOpen({.DialogTitle = {},
                                                   .Filter = openFilter(),
                                                   .FilterIndex = PreselectedRow,
                                                   .InitDir = workingFolder(m_context.services),
                                                   .FileName = {},
                                                   .severalFiles = fileBook(m_context.state.habits).severalFiles,
                                                   .NearDir = folderInFront()});
    if (!chosen)
        return;
    for (const QString &fileName : chosen->allFileNames()) {
        if (!fileName.isEmpty() && !m_context.state.ProgramEnded) // opening lets events run
            openAsChosen({fileName, chosen->filterIndex});
    }
}

/// Where the page in front lies; empty for none.
QString DocumentFiles::folderInFront() const
{
    const Document *document = m_context.mainWindow->activeDocument();
    return document ? folderOf(document->DocSavePath) : QString();
}

void DocumentFiles::openAsChosen(const FileDialogResult &chosen)
{
    switch (openAs(chosen.filterIndex)) {
    case OpenAs::Text:
        OpenDocumentFile(chosen.fileName, false);
        break;
    case OpenAs::UnicodeText:
        OpenDocumentFile(chosen.fileName, true);
        break;
    case OpenAs::Template:
        OpenTemplateFile(chosen.fileName, true);
        break;
    case OpenAs::CombinedTemplate:
        OpenCombinedTemplate(chosen.fileName);
        break;
    case OpenAs::SiteProject:
        OpenProject(chosen.fileName);
        break;
    }
}

void DocumentFiles::OpenCombinedTemplate(const QString &path)
{
    ::OpenCombinedTemplate(m_context, path);
}

void DocumentFiles::OpenProject(const QString &path)
{
    if (m_context.project)
        m_context.project->OpenProject(path);
}

void DocumentFiles::OpenRecentFile(int index)
{
    const QString path = settings::read(m_context.services.settings, settings::RecentFile, index);
    if (!path.isEmpty())
        OpenDocumentFile(path, false);
}

void DocumentFiles::OpenDocumentFile(const QString &path, bool unicode)
{
    if (refuseOpenTwice(path))
        return;
    const std::optional<Opened> opened = openIntoNewDocument(path, unicode);
    if (!opened)
        return;
    Document &document = *opened->document;
    document.setDocumentCaption(path);
    document.DocSavePath = path;
    document.fileStamp = opened->stamp;
    noteOpened(document, opened->contents, unicode);
    document.DocSelUpdate(path);
    AddToRecentFiles(path);
    document.NewDoc = false;
    finishOpened(document);
    document.beginHistory();
}

void DocumentFiles::OpenTemplateFile(const QString &path, bool asTemplate)
{
    if (!asTemplate) {
        OpenDocumentFile(path, false);
        return;
    }
    // The text starts a page of its own: it has no file, and is written as any new page is.
    if (const std::optional<Opened> opened = openIntoNewDocument(path, false)) {
        finishOpened(*opened->document);
        opened->document->beginHistory();
    }
}

bool DocumentFiles::refuseOpenTwice(const QString &path)
{
    for (const Document *document : m_context.mainWindow->openDocuments())
        if (isFileOf(m_context.services.files, *document, path)) {
            finish();
            m_context.services.messageBoxes.show(
                {.title = QStringLiteral("File Already Open"),
                 .text = QStringLiteral("The file, ") + path + QStringLiteral(", is already open."),
                 .icon = MessageIcon::Exclamation,
                 .buttons = MessageButtons::OK});
            return true;
        }
    return false;
}

std::optional<DocumentFiles::Opened> DocumentFiles::openIntoNewDocument(const QString &path, bool unicode)
{
    begin();
    // The file is found before there is a window; what only the reading meets leaves an empty one.
    if (const std::optional<FileError> error = m_context.services.files.checkReadable(path)) {
        failWith(*error);
        return std::nullopt;
    }
    if (Document *document = m_context.newBlankDocument())
        return readInto(*document, path, unicode);
    finish();
    return std::nullopt;
}

std::optional<DocumentFiles::Opened> DocumentFiles::readInto(Document &document, const QString &path, bool unicode)
{
    // Taken before the reading: a change in between is asked about once too often rather than never.
    const std::optional<FileStamp> stamp = m_context.services.files.stamp(path);
    const FileContents file = m_context.services.files.readAll(path);
    if (file.error) {
        failWith(*file.error);
        return std::nullopt;
    }
    try {
        Opened opened{&document, decodePage(file.bytes, unicode), stamp};
        document.txtEdit().setText(opened.contents.text);
        m_outside.noteBytes(document, file.bytes);
        return opened;
    } catch (const std::bad_alloc &) { // told below
    }
    failWith({.code = OutOfMemoryError, .systemError = 0, .description = {}});
    return std::nullopt;
}

void DocumentFiles::finishOpened(Document &document)
{
    document.boolDirty = false;
    m_context.mainWindow->SetStatusReady();
    showFormat(document);
    finish();
    document.txtEdit().SetFocus();
}

bool DocumentFiles::LoadAgain(Document &document)
{
    begin();
    document.UndoRedoStep(); // what stands there is a step that can be gone back to
    const qsizetype caret = document.txtEdit().SelStart();
    const std::optional<Opened> opened = readInto(document, document.DocSavePath, document.IsInUnicode);
    if (!opened)
        return false;
    document.fileStamp = opened->stamp;
    noteOpened(document, opened->contents, document.IsInUnicode);
    document.txtEdit().setSelStart(std::min(caret, opened->contents.text.size()));
    document.UndoRedoStep();
    finishOpened(document);
    if (m_context.unsavedText)
        m_context.unsavedText->forget(document);
    return true;
}

void DocumentFiles::LoadRecentFilesMenu()
{
    ::LoadRecentFilesMenu(m_context);
}

void DocumentFiles::AddToRecentFiles(const QString &path)
{
    ::AddToRecentFiles(m_context, path);
}
