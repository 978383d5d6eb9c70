#pragma once

#include "common/mainWindow.h"
#include "forms/form.h"

#include <QPoint>
#include <memory>
#include <optional>

struct CommandLineFile;
class CodeLibraries;
class CoolBar;
class DocumentStatus;
class DocumentSwitch;
class InputGate;
class MainCommands;
class ProjectFileCtrl;
class QBoxLayout;
class QComboBox;
class QFrame;
class QLabel;
class QMainWindow;
class QStatusBar;
class TabStrip;
class TaskManagerPane;
class Timer;

/// The main window: the frame that holds the documents and everything that is not per document.
class frmMdi final : public Form, public MainWindow
{
    Q_OBJECT
    Q_PROPERTY(QString SiteName READ SiteName)
    Q_PROPERTY(QString SiteAuthor READ SiteAuthor)
    Q_PROPERTY(bool ProjectChanged READ ProjectChanged)
    Q_PROPERTY(bool ProjectOpen READ ProjectOpen)
public:
    /// `commandLine` is read at the form's load.
    frmMdi(ProgramContext &context, const QString &commandLine);
    ~frmMdi() override;

    bool Enabled() const override;
    void setEnabled(bool enabled) override;
    QList<Document *> openDocuments() const override;
    Document *activeDocument() const override;

    void SetStatusText(const QString &text) override;
    void SetStatusReady() override;
    QString statusText() const override;
    void enableResetBar() override;
    void showFileFormat(const QString &text) override;
    void showRecentFiles(const QStringList &captions) override;
    void showAddIns(const QMap<int, QString> &captions) override;
    void SetDocumentControlsEnabled(bool enabled) override;
    void SetProjectCommandsEnabled(bool enabled) override;
    void showTaskManagerPane() override;
    void showProjectPage(bool shown) override;

    void addDocumentTab(const QString &key, const QString &caption) override;
    void removeDocumentTab(const QString &key) override;
    void selectDocumentTab(const QString &key) override;
    void showDocumentTabs(bool shown) override;
    void showDocumentSelector(bool shown) override;
    void setWordWrapChecked(bool checked) override;
    void setSplitEditingChecked(bool checked) override;
    void clearStructureTree() override;
    bool structurePageShown() const override;
    void addStructureNode(qsizetype parent, const QString &key, const QString &text, const QString &image) override;
    void showStructure(const QList<TreeNode> &nodes) override;

    QPoint insertBarDrop() const override;
    void setInsertBarPressed(bool pressed) override;
    void PopupMenu(const QString &name, const QPoint &position) override;
    bool MoveToNextPane(Qt::Key key, FocusPlace from) override;

    void takeOverHabits() override;
    void documentInFront() override;
    void showBar(const QString &entry, bool shown) override;
    void placePane() override;
    void clearAddresses() override;
    void toggleBar(const QString &entry);

    /// The open site project; it lives as long as this form.
    ProjectFileCtrl &project() { return *m_project; }
    QString SiteName() const;
    QString SiteAuthor() const;
    bool ProjectChanged() const; ///< its lists hold changes that its file does not
    bool ProjectOpen() const;

    /// What an end asks about, but for the documents; their places are kept. False where the user stays.
    bool mayStartAnew();
    /// Comes to the front and opens what the line names, as soon as the window takes input.
    void takeOver(const QString &commandLine);

    QObject *control(const QString &name) const override;
    QMainWindow *frame() const;

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    QWidget *createWindow() override;
    void presentWindow() override;

private:
    void buildControls();
    void buildBands();
    void buildFontCombos();
    void buildAddressPanel();
    void buildDocumentSelector();
    void buildStatusBar();
    void buildKeyboard();
    void layOut();
    void followProject();

    void restoreState();
    void fillFontCombos();
    void readColouringOptions();
    void readWordWrap();
    void sizeDocumentSelector();
    void loadRecentLists();
    void restoreBars();
    void restoreSplit();
    void restoreBands();
    void restorePlacement();
    void loadCodes();
    void fillCodeTree();
    void fillCodeLists();
    void picAddress_Resize();
    /// False where there is none, or it could not be opened.
    bool openCommandLine(const QString &commandLine);
    bool openCommandLineFile(const CommandLineFile &file);
    void goToLine(const CommandLineFile &file);
    void openWaiting();
    void goOnWithFile();
    /// What the status bar tells, whatever says "Ready" meanwhile, until a few seconds after the window takes input.
    void keepStatus(const QString &text);
    void decideWelcome();
    void tellStartFaults();
    void offerHabits();
    void chooseHabits(bool today);
    void restoreUnsavedText(Document *opened);

    void savePlacement();
    void savePaneAndBands();
    bool projectMayClose();
    bool documentsMayClose();

    QWidget *insertBarButton() const;
    void followInsertBar();
    void guardFontCombos();
    bool isBarShown(const QString &entry) const;
    void setBarShown(const QString &entry, bool shown);
    void raiseDialogs();
    void openDropped(const QStringList &paths);
    void tabDocSel_Click();
    void treStructure_NodeClick(int node);
    void cmdGo_Click();
    void cboFont_Click();
    void cboFont_LostFocus();
    void cboSize_Click();
    void cboFontSize_Click();

    const QString &m_commandLine;
    InputGate *m_gate = nullptr;
    std::unique_ptr<MainCommands> m_commands;
    std::unique_ptr<CodeLibraries> m_codes;
    std::unique_ptr<ProjectFileCtrl> m_project;
    CoolBar *cbrMain = nullptr;
    QComboBox *cboFont = nullptr;
    QComboBox *cboSize = nullptr;
    QComboBox *cboFontSize = nullptr;
    QWidget *picAddress = nullptr;
    QComboBox *cboAddress = nullptr;
    TaskManagerPane *m_pane = nullptr;
    QBoxLayout *m_middle = nullptr; ///< the pane beside the documents
    TabStrip *tabDocSel = nullptr;
    struct {
        QString key;
        int place = 0;
    } m_removedTab; ///< the one that was taken away last: it is a save's, if it comes back
    QWidget *picDocSelector = nullptr;
    QFrame *fmeDocSelDiv = nullptr;
    QStatusBar *StatusBar1 = nullptr;
    QLabel *m_message = nullptr;
    DocumentStatus *m_documentStatus = nullptr;
    DocumentSwitch *m_documentSwitch = nullptr;
    QStringList m_waiting; ///< lines of other starts that are not opened yet
    QString m_keptStatus;  ///< stands for "Ready" until tmrResetBar takes it away
    Timer *tmrResetBar = nullptr;
    std::optional<QPoint> m_insertBarMouse; ///< where it went down on the first button, in the client area
    bool m_startFaultsTold = false;
    bool m_fontTyped = false; ///< a face was typed into cboFont and not yet taken
};
