#pragma once

#include "common/mainWindow.h"
#include "common/programState.h"
#include "common/siteProject.h"
#include "files/documentFiles.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "internet/uploads.h"
#include "services/clipboard.h"
#include "services/clock.h"
#include "services/commonDialogs.h"
#include "services/fileClasses.h"
#include "services/helpViewer.h"
#include "services/launcher.h"
#include "services/messageBoxes.h"
#include "services/modalLoop.h"
#include "services/pageViews.h"
#include "services/printing.h"
#include "services/random.h"
#include "services/services.h"
#include "services/systemFacts.h"
#include "services/timer.h"
#include "services/worker.h"
#include "services/yielder.h"
#include "storage/localFileSystem.h"
#include "surface/editSurface.h"
#include "unit/support/fakeOutside.h"
#include "unit/support/memorySettings.h"
#include "unit/support/noPages.h"
#include "widgets/screenPointer.h"

#include <QPoint>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

// A program of fakes around the real code of the files' side: documents without windows, boxes and dialogs that are
// answered beforehand, settings in memory, and the machine's own files in a folder of the test's.

class FakeDocument final : public Document
{
public:
    explicit FakeDocument(MainWindow &owner) : m_owner(owner)
    {
        QObject::connect(&surface, &EditSurface::Change, &surface, [this] { boolDirty = true; });
    }

    QString documentCaption() const override { return caption; }
    void setDocumentCaption(const QString &text) override { caption = text; }
    TextSurface &txtEdit() override { return surface; }
    bool unload() override { return true; }
    void activate() override;
    void DocSelUpdate() override {}
    void DocSelUpdate(const QString &path) override { selectorPath = path; }
    bool autoSaveEnabled() const override { return autoSave; }
    void setAutoSaveEnabled(bool enabled) override { autoSave = enabled; }
    void CheckWordWrapSettings() override {}
    void UndoRedoChange() override {}
    void Undo() override {}
    void Redo() override {}
    UndoRedo IsUndoRedoPossible() const override { return {}; }
    int UndoPosition() const override { return 1; }
    void IndentText(bool) override {}
    void OptimiseSyntax() override {}
    void UpdateLineInformation() override {}
    void ExternalCallColourCode() override {}

    EditSurface surface;
    QString caption;
    QString selectorPath; ///< the last one that the selector was told
    bool autoSave = true;

private:
    MainWindow &m_owner;
};

class FakeMainWindow final : public MainWindow
{
public:
    bool Enabled() const override { return enabled; }
    void setEnabled(bool on) override { enabled = on; }
    QList<Document *> openDocuments() const override { return documents; }
    Document *activeDocument() const override { return active; }
    void SetStatusText(const QString &text) override { status = text; }
    void SetStatusReady() override { status = QStringLiteral("Ready"); }
    QString statusText() const override { return status; }
    void enableResetBar() override { resetBarEnabled = true; }
    void showFileFormat(const QString &text) override { format = text; }
    void showRecentFiles(const QStringList &captions) override { recent = captions; }
    void SetDocumentControlsEnabled(bool) override {}
    void addDocumentTab(const QString &, const QString &) override {}
    void removeDocumentTab(const QString &) override {}
    void selectDocumentTab(const QString &) override {}
    void showDocumentTabs(bool) override {}
    void showDocumentSelector(bool) override {}
    void setWordWrapChecked(bool) override {}
    QPoint insertBarDrop() const override { return {}; }
    void setInsertBarPressed(bool) override {}
    void PopupMenu(const QString &, const QPoint &) override {}
    bool MoveToNextPane(Qt::Key, FocusPlace) override { return false; }
    void clearStructureTree() override {}
    bool structurePageShown() const override { return false; }
    void addStructureNode(qsizetype, const QString &, const QString &, const QString &) override {}

    bool enabled = true;
    QList<Document *> documents;
    Document *active = nullptr;
    QString status;
    QString format;
    QStringList recent;
    bool resetBarEnabled = false;
};

inline void FakeDocument::activate()
{
    static_cast<FakeMainWindow &>(m_owner).active = this;
}

class AnsweredBoxes final : public MessageBoxes
{
public:
    MessageAnswer show(const MessageBox &box) override
    {
        shown.append(box);
        if (during)
            during();
        if (answers.isEmpty()) {
            EXPECT_EQ(box.buttons, MessageButtons::OK) << box.text.toStdString();
            return box.buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Cancel;
        }
        return answers.takeFirst();
    }

    QList<MessageAnswer> answers; ///< of questions; a box with OK alone needs none
    QList<MessageBox> shown;
    std::function<void()> during; ///< what happens while a box is on show
};

class AnsweredDialogs final : public CommonDialogs
{
public:
    std::optional<FileDialogResult> showOpen(const FileDialogRequest &request) override { return next(request); }
    std::optional<FileDialogResult> showSave(const FileDialogRequest &request) override { return next(request); }
    std::optional<QString> showFolder(const QString &, const QString &) override { return {}; }
    std::optional<ColourValue> showColour(ColourValue) override { return {}; }
    std::optional<FontChoice> showFont(const FontChoice &) override { return {}; }
    std::optional<int> showPrint() override { return {}; }

    QList<FileDialogResult> choices; ///< none left: the dialog is cancelled
    QList<FileDialogRequest> requests;

private:
    std::optional<FileDialogResult> next(const FileDialogRequest &request)
    {
        requests.append(request);
        return choices.isEmpty() ? std::nullopt : std::optional(choices.takeFirst());
    }
};

/// The machine's files, with failures that a test can ask for.
class FailingFiles final : public FileSystem
{
public:
    FileContents readAll(const QString &path) override
    {
        return readFailure ? FileContents{{}, readFailure} : m_real.readAll(path);
    }
    std::optional<FileError> checkReadable(const QString &path) override { return m_real.checkReadable(path); }
    std::optional<FileError> writeWhole(const QString &path, const QByteArray &bytes) override
    {
        ++writes;
        return writeFailure ? writeFailure : m_real.writeWhole(path, bytes);
    }
    bool isLink(const QString &path) override { return m_real.isLink(path); }
    bool exists(const QString &path) override { return m_real.exists(path); }
    bool isFolder(const QString &path) override { return m_real.isFolder(path); }
    bool isSameFile(const QString &a, const QString &b) override { return m_real.isSameFile(a, b); }
    std::optional<qint64> size(const QString &path) override { return m_real.size(path); }
    std::optional<FileStamp> stamp(const QString &path) override { return m_real.stamp(path); }
    std::optional<FileDetails> details(const QString &path) override { return m_real.details(path); }
    FolderListing list(const QString &folder) override { return m_real.list(folder); }
    std::optional<FileError> makeFolder(const QString &folder) override { return m_real.makeFolder(folder); }
    std::optional<FileError> removeFile(const QString &path) override { return m_real.removeFile(path); }
    std::optional<QString> setAside(const QString &path) override { return m_real.setAside(path); }
    std::optional<FileError> copyFile(const QString &from, const QString &to) override
    {
        return m_real.copyFile(from, to);
    }

    std::optional<FileError> readFailure;
    std::optional<FileError> writeFailure;
    int writes = 0;

private:
    LocalFileSystem m_real;
};

class NoLauncher final : public Launcher
{
public:
    bool openUrl(const QString &) override { return false; }
    bool start(const QString &) override { return false; }
};

class NoClipboard final : public Clipboard
{
public:
    QString text() override { return {}; }
    void setText(const QString &) override {}
    bool hasFileList() override { return false; }
    bool hasImage() override { return false; }
};

class NoHelp final : public HelpViewer
{
public:
    void show(const QString &) override {}
    void contents() override {}
    void index() override {}
};

class StillTicker final : public Ticker
{
public:
    void start(int) override {}
    void stop() override {}
};

class StillTimers final : public TimerSource
{
public:
    std::unique_ptr<Ticker> makeTicker(std::function<void()>) override { return std::make_unique<StillTicker>(); }
};

class NoFileClasses final : public FileClasses
{
public:
    void registerAll() override {}
};

class NoPageViews final : public PageViews
{
public:
    PageEngine *engine() override { return nullptr; }
    QString reasonForNone() const override { return {}; }
    PageSource &source() override { return m_source; }

private:
    NoPages m_source;
};

/// Paper on which every character is as wide, and which a test can make as small as it likes.
class CountedPaper final : public Printing
{
public:
    Paper paper(const QFont &) override
    {
        return {.size = size, .lineHeight = 1, .textWidth = [](const QString &text) { return qreal(text.size()); }};
    }
    std::optional<PrintError> print(const PrintJob &job, const std::function<bool(int)> &goOn) override
    {
        for (int page = 0; page < job.pages.size() * job.copies; ++page)
            if (!goOn(page))
                return std::nullopt;
        jobs.append(job);
        return failure;
    }
    std::optional<PrintError> printPicture(const PictureJob &) override { return failure; }
    SvgFile svg(const SvgJob &) override { return {}; }

    QSizeF size{40, 10}; ///< in characters and lines
    QList<PrintJob> jobs;
    std::optional<PrintError> failure;
};

class FewFacts final : public SystemFacts
{
public:
    QList<SystemFact> all() override { return facts; }

    QList<SystemFact> facts{{QStringLiteral("Qt"), QStringLiteral("6")}};
};

/// Hands a form that is shown modally to the test.
class AnsweredForms final : public ModalLoop
{
public:
    void run(Form &form) override
    {
        shown.append(form.Name());
        if (answer)
            answer(form);
        form.Unload();
    }

    QStringList shown;
    std::function<void(Form &)> answer;
};

class FakeProject final : public SiteProject
{
public:
    bool isOpen() const override { return open; }
    void AddFileToProject(const QString &path, bool isEditorFile) override
    {
        added.append(path);
        EXPECT_TRUE(isEditorFile);
    }

    void OpenProject(const QString &path) override { opened.append(path); }

    bool open = true;
    QStringList added;
    QStringList opened;
};

class FilesTest : public testing::Test
{
protected:
    FilesTest();
    ~FilesTest() override;

    FakeDocument &newDocument();
    /// A document that was opened from a file of the test's folder with these bytes.
    FakeDocument &openedDocument(const QString &name, const QByteArray &bytes);
    QString path(const QString &name) const { return m_folder.path() + u'/' + name; }
    void writeFile(const QString &name, const QByteArray &bytes);
    QByteArray bytesOf(const QString &name) const;
    void setting(const char *section, const QString &key, const QString &value);
    QString storedSetting(const char *section, const QString &key);
    /// The one box that was shown since the last call.
    MessageBox takeBox();

    template <class T>
    T &addForm()
    {
        auto form = std::make_unique<T>(context);
        T &added = *form;
        m_runtime.own(std::move(form));
        return added;
    }

    AnsweredBoxes boxes;
    AnsweredDialogs dialogs;
    MemorySettings settings;
    FailingFiles disk;
    AnsweredForms modal;
    FakeTransfers transfers;
    CountedPaper printing;
    FewFacts systemFacts;
    FakeProject project;
    FakeMainWindow mainWindow;
    ProgramState state;
    bool ended = false;

private:
    NoLauncher m_launcher;
    NoClipboard m_clipboard;
    SystemClock m_clock;
    Random m_random{1};
    NoHelp m_help;
    StillTimers m_timers;
    NoFileClasses m_fileClasses;
    EventYielder m_yielder;
    NoPageViews m_pageViews;
    NoWizards m_wizards;
    QTemporaryDir m_folder;
    InlineWorker m_worker;
    Services m_services;
    FormRuntime m_runtime;
    ScreenPointer m_pointer;
    std::vector<std::unique_ptr<FakeDocument>> m_documents;

protected:
    ProgramContext context;
    DocumentFiles files{context};
    Uploads uploads{context};
};
