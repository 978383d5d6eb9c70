#pragma once

#include "common/fileCommands.h"
#include "common/fileErrors.h"
#include "files/documentText.h"
#include "files/outsideChanges.h"

#include <QString>
#include <optional>

struct FileDialogResult;
struct ProgramContext;

/// Moves documents between their windows and files: opening, saving, the questions at closing, and automatic saving.
class DocumentFiles final : public FileCommands
{
public:
    explicit DocumentFiles(ProgramContext &context) : m_context(context), m_outside(context) {}

    void ShowOpenDialog() override;
    void OpenDocumentFile(const QString &path, bool unicode) override;
    void OpenTemplateFile(const QString &path, bool asTemplate) override;
    void OpenCombinedTemplate(const QString &path) override;
    void OpenProject(const QString &path) override;
    void OpenRecentFile(int index) override;

    bool SaveDocument(bool closing) override;
    bool SaveDocumentAs(bool closing, const QString &title) override;
    void SaveAll() override;

    void LoadRecentFilesMenu() override;
    void AddToRecentFiles(const QString &path) override;
    bool LoadAgain(Document &document) override;
    void lookAtFile(Document &document) override { m_outside.look(document); }
    void noteFileTold(const Document &document) override { m_outside.noteTold(document); }
    void forgetFile(const Document &document) override { m_outside.forget(document); }

    bool mayClose(Document &document) override;
    void noteFirstChange(Document &document) override;
    void autoSaveTick(Document &document) override;
    void FileErrors(int errorNumber, const QString &description = {}) override;
    void MemoryErrors(int errorNumber) override;

private:
    struct Target {
        QString path;
        SaveForm form = SaveForm::AsOpened;
        std::optional<QString> text = {}; ///< what is written in place of the document's text
    };
    /// Whether a save may write to a name.
    enum class Agreement { Given, Refused, OtherName };

    struct Opened;

    void begin();
    void finish();
    void failWith(const FileError &error);

    void openAsChosen(const FileDialogResult &chosen);
    QString folderInFront() const;
    bool refuseOpenTwice(const QString &path);
    std::optional<Opened> openIntoNewDocument(const QString &path, bool unicode);
    std::optional<Opened> readInto(Document &document, const QString &path, bool unicode);
    void finishOpened(Document &document);

    bool saveDocument(Document &document, bool closing);
    bool saveDocumentAs(Document &document, bool closing, const QString &title);
    bool saveAsChosen(Document &document, bool closing, const FileDialogResult &chosen);
    Agreement agreeOnName(Document &document, const QString &path);
    bool WriteDocumentTo(Document &document, bool closing, const Target &target);
    bool writeToNewName(Document &document, bool closing, const Target &target);
    bool SaveStrippedText(Document &document, bool closing, const QString &path);
    bool isChangedOnDisk(const Document &document) const;
    bool mayWriteOver(Document &document);
    bool leavesEncoding(const Document &document, SaveForm form) const;
    bool mayLeaveEncoding(Document &document, SaveForm form);
    void tellEncoding(Document &document, const Target &target, const EncodedText &encoded);
    std::optional<FileError> write(Document &document, const Target &target);
    bool writeAndTell(Document &document, const Target &target);
    void noteWritten(Document &document);
    bool notSaved(Document &document, bool closing);
    void offerToProject(Document &document);
    void showRemark(const QString &remark);
    void showFormat(const Document &document);

    bool askBeforeClose(Document &document);
    bool mayCloseByExitList();

    void autoSaveByMinutes(Document &document);
    void autoSaveWhatChanged(Document &document);
    void autoSaveAndTell(Document &document);
    bool AutoSaveDocument(Document &document);
    void autoSaveNameless(Document &document);

    ProgramContext &m_context;
    OutsideChanges m_outside;
    QString m_remark; ///< what the last save had to tell, as it stands in the status bar
};
