// Saving documents.
#include "files/documentFiles.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/pageCharset.h"
#include "common/programState.h"
#include "common/quoted.h"
#include "common/replaceText.h"
#include "common/siteProject.h"
#include "common/unsavedText.h"
#include "files/autoSavePause.h"
#include "files/encodingNotice.h"
#include "files/fileDialogRows.h"
#include "files/frmMsgAddSavedFileToProject.h"
#include "files/modFileNames.h"
#include "files/modTemplates.h"
#include "files/unsavedDocuments.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/workingFolder.h"

#include <new>

namespace
{
MessageBox documentOpenBox(const QString &path)
{
    return {.title = QStringLiteral("Document Open"),
            .text = QStringLiteral("Tagwrighter can not give a document the same name as an open document.\r\n(") +
                    path + QStringLiteral(")"),
            .icon = MessageIcon::Information,
            .buttons = MessageButtons::OK};
}

MessageBox replaceQuestion(const QString &path)
{
    return {.title = QStringLiteral("File Already Exists"),
            .text = QStringLiteral("The file ") + quoted(path) +
                    QStringLiteral(" already exists.\r\nDo you want to replace it?"),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNoCancel,
            .byEnter = MessageAnswer::No};
}

MessageBox fileChangedQuestion(const QString &path)
{
    return {.title = QStringLiteral("File Changed"),
            .text = QStringLiteral("The file ") + quoted(path) +
                    QStringLiteral(" has been changed by another program since it was opened or saved here.\r\n"
                                   "Do you want to save over those changes?"),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo,
            .byEnter = MessageAnswer::No};
}
} // namespace

bool DocumentFiles::SaveDocument(bool closing)
{
    Document *document = m_context.mainWindow->activeDocument();
    return document && saveDocument(*document, closing);
}

bool DocumentFiles::SaveDocumentAs(bool closing, const QString &title)
{
    Document *document = m_context.mainWindow->activeDocument();
    return document && saveDocumentAs(*document, closing, title);
}

void DocumentFiles::SaveAll()
{
    for (Document *document : m_context.mainWindow->openDocuments())
        if (document->boolDirty) {
            document->activate();
            saveDocument(*document, false);
        }
}

bool DocumentFiles::saveDocument(Document &document, bool closing)
{
    if (document.NewDoc || document.DocSavePath.isEmpty()) {
        m_context.mainWindow->setEnabled(true);
        return saveDocumentAs(document, closing, saveAsTitle(document));
    }
    const Target target{document.DocSavePath, SaveForm::AsOpened};
    if (!mayWriteOver(document) || !mayLeaveEncoding(document, target.form) || !writeAndTell(document, target))
        return notSaved(document, closing);
    noteWritten(document);
    return true;
}

bool DocumentFiles::saveDocumentAs(Document &document, bool closing, const QString &title)
{
    const QString folder = workingFolder(m_context.services);
    const QString proposed = document.NewDoc
                                 ? DefaultFileNameFromTitle(document.txtEdit().Text(), folder, m_context.services.files)
                                 : document.DocSavePath;
    std::optional<FileDialogResult> chosen;
    {
        const AutoSavePause pause(document);
        chosen = m_context.services.commonDialogs.showSave({.DialogTitle = title,
                                                            .Filter = saveFilter(),
                                                            .FilterIndex = PreselectedRow,
                                                            .InitDir = folder,
                                                            .FileName = proposed,
                                                            .NearDir = folderInFront()});
    }
    if (chosen && !chosen->fileName.isEmpty())
        return saveAsChosen(document, closing, *chosen);
    notSaved(document, closing);
    document.txtEdit().SetFocus();
    return false;
}

bool DocumentFiles::saveAsChosen(Document &document, bool closing, const FileDialogResult &chosen)
{
    switch (saveAs(chosen.filterIndex)) {
    case SaveAs::Text:
        return WriteDocumentTo(document, closing, {chosen.fileName, SaveForm::Plain});
    case SaveAs::UnicodeText:
        return WriteDocumentTo(document, closing, {chosen.fileName, SaveForm::UnicodeRow});
    case SaveAs::CombinedTemplate:
        // What the template holds is not lost by a close, though the document itself is as it was.
        if (SaveCombinedTemplate(m_context, document, chosen.fileName)) {
            document.txtEdit().SetFocus();
            return true;
        }
        document.txtEdit().SetFocus();
        break;
    case SaveAs::TextWithoutTags:
        return SaveStrippedText(document, closing, chosen.fileName);
    }
    return notSaved(document, closing);
}

DocumentFiles::Agreement DocumentFiles::agreeOnName(Document &document, const QString &path)
{
    if (IsFileOpen(*m_context.mainWindow, m_context.services.files, path, document.DocSavePath)) {
        m_context.services.messageBoxes.show(documentOpenBox(path));
        return Agreement::Refused;
    }
    if (isFileOf(m_context.services.files, document, path))
        return mayWriteOver(document) ? Agreement::Given : Agreement::Refused;
    if (!FileExists(m_context.services.files, path))
        return Agreement::Given;
    const AutoSavePause pause(document);
    const MessageAnswer answer = m_context.services.messageBoxes.show(replaceQuestion(path));
    if (answer == MessageAnswer::No)
        return Agreement::OtherName;
    return answer == MessageAnswer::Yes ? Agreement::Given : Agreement::Refused;
}

bool DocumentFiles::WriteDocumentTo(Document &document, bool closing, const Target &target)
{
    switch (agreeOnName(document, target.path)) {
    case Agreement::OtherName:
        return saveDocumentAs(document, closing, {});
    case Agreement::Refused:
        notSaved(document, closing);
        document.txtEdit().SetFocus();
        return false;
    case Agreement::Given:
        break;
    }
    return writeToNewName(document, closing, target);
}

bool DocumentFiles::writeToNewName(Document &document, bool closing, const Target &target)
{
    if (!mayLeaveEncoding(document, target.form) || !writeAndTell(document, target))
        return notSaved(document, closing);
    document.setDocumentCaption(target.path);
    document.DocSavePath = target.path;
    noteWritten(document);
    if (!m_context.mainWindow->SaveListShown)
        document.txtEdit().SetFocus();
    offerToProject(document);
    return true;
}

bool DocumentFiles::isChangedOnDisk(const Document &document) const
{
    const std::optional<FileStamp> now = m_context.services.files.stamp(document.DocSavePath);
    return now && now != document.fileStamp; // a file that has gone holds nothing to be lost
}

bool DocumentFiles::mayWriteOver(Document &document)
{
    if (!isChangedOnDisk(document))
        return true;
    const AutoSavePause pause(document);
    const MessageAnswer answer = m_context.services.messageBoxes.show(fileChangedQuestion(document.DocSavePath));
    document.txtEdit().SetFocus();
    return answer == MessageAnswer::Yes;
}

/// Whether the save would have to leave the encoding that the page names.
bool DocumentFiles::leavesEncoding(const Document &document, SaveForm form) const
{
    return formatOfSave(document, form).encoding == Encoding::Other &&
           encodedForSave(document.txtEdit().Text(), document, form, m_context.state.habits).switchedToUtf8;
}

bool DocumentFiles::mayLeaveEncoding(Document &document, SaveForm form)
{
    if (!leavesEncoding(document, form))
        return true;
    const AutoSavePause pause(document);
    const MessageBox question = utf8Question(document.txtEdit().Text(), formatOfSave(document, form));
    const MessageAnswer answer = m_context.services.messageBoxes.show(question);
    document.txtEdit().SetFocus();
    return answer == MessageAnswer::Yes;
}

/// Until the user has answered, the file is one that has lost nothing.
void DocumentFiles::tellEncoding(Document &document, const Target &target, const EncodedText &encoded)
{
    const QString text = document.txtEdit().Text();
    if (!encoded.switchedToUtf8) {
        const bool settled =
            encoded.encoding != Encoding::Utf8 || namesEncoding(declaredCharset(text), {encoded.encoding});
        if (settled)
            document.notices.remove(encodingNoticeKey());
        return;
    }
    const FileFormat wanted = formatOfSave(document, target.form);
    const auto writeReferences = [this, &document, wanted] {
        document.plainEncoding = wanted.encoding;
        document.fileFormat.charset = wanted.charset;
        replaceText(document, withReferences(document.txtEdit().Text(), wanted));
        saveDocument(document, false);
    };
    const auto nameUtf8 = [this, &document] {
        replaceText(document, withDeclaredCharset(document.txtEdit().Text(), QStringLiteral("utf-8")));
        saveDocument(document, false);
    };
    document.notices.put(savedAsUtf8Notice(target.path, text, wanted, writeReferences, nameUtf8));
}

std::optional<FileError> DocumentFiles::write(Document &document, const Target &target)
{
    FileSystem &files = m_context.services.files;
    try {
        const QString text = target.text.value_or(document.txtEdit().Text());
        const EncodedText encoded = encodedForSave(text, document, target.form, m_context.state.habits);
        if (std::optional<FileError> error = files.writeWhole(target.path, encoded.bytes))
            return error;
        document.fileStamp = files.stamp(target.path);
        m_outside.noteBytes(document, encoded.bytes);
        document.notices.remove(QStringLiteral("outside"));
        showRemark(saveRemark(document, target.form, encoded));
        tellEncoding(document, target, encoded);
        noteSaved(document, encoded.encoding);
    } catch (const std::bad_alloc &) {
        return FileError{.code = OutOfMemoryError, .systemError = 0, .description = {}};
    }
    return std::nullopt;
}

bool DocumentFiles::writeAndTell(Document &document, const Target &target)
{
    begin();
    if (const std::optional<FileError> error = write(document, target)) {
        failWith(*error);
        return false;
    }
    finish();
    return true;
}

void DocumentFiles::noteWritten(Document &document)
{
    document.boolDirty = false;
    document.NewDoc = false;
    if (m_context.unsavedText)
        m_context.unsavedText->forget(document);
    document.DocSelUpdate(document.DocSavePath);
    AddToRecentFiles(document.DocSavePath);
    showFormat(document);
}

bool DocumentFiles::notSaved(Document &document, bool closing)
{
    m_context.mainWindow->setEnabled(true);
    if (!closing)
        return false;
    document.UnsuccessfulClose = true;
    if (m_context.state.FormUnloadHandled) {
        // The exit list is at work: the whole exit stops, and what is still open stays so.
        m_context.state.FormUnloadHandled = false;
        m_context.mainWindow->ExitInProgress = false;
    }
    return false;
}

void DocumentFiles::showRemark(const QString &remark)
{
    if (!remark.isEmpty())
        m_context.mainWindow->SetStatusText(remark);
    else if (!m_remark.isEmpty() && m_context.mainWindow->statusText() == m_remark)
        m_context.mainWindow->SetStatusReady(); // it told of the save before this one
    m_remark = remark;
}

void DocumentFiles::offerToProject(Document &document)
{
    SiteProject *project = m_context.project;
    if (!project || !project->isOpen())
        return;
    MainWindow &frmMdi = *m_context.mainWindow;
    bool add = settings::isOn(m_context.services.settings, settings::ShowAddFileToProjectAnswer);
    if (settings::isOn(m_context.services.settings, settings::ShowAddFileToProjectQuestion) &&
        !frmMdi.AskedForThisSession) {
        frmMdi.AddSavedFileAnswer = false;
        const AutoSavePause pause(document);
        m_context.forms.showModal<frmMsgAddSavedFileToProject>();
        document.txtEdit().SetFocus();
        add = frmMdi.AddSavedFileAnswer;
    }
    if (add)
        project->AddFileToProject(document.DocSavePath, true);
}
