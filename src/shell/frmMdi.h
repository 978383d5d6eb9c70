#pragma once

#include "common/mainWindow.h"
#include "platform/form.h"

class InputGate;
class MainCommands;
class QLabel;
class QMainWindow;
class QStatusBar;
class QTabBar;
class Timer;

/// The main window: the frame that holds the documents and everything that is not per document.
class frmMdi final : public Form, public MainWindow
{
    Q_OBJECT
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
    void SetDocumentControlsEnabled(bool enabled) override;

    void addDocumentTab(const QString &key, const QString &caption) override;
    void removeDocumentTab(const QString &key) override;
    void selectDocumentTab(const QString &key) override;
    void showDocumentTabs(bool shown) override;
    void showDocumentSelector(bool shown) override;
    void setWordWrapChecked(bool checked) override;
    void clearStructureTree() override {}
    bool structurePageShown() const override { return false; }
    void addStructureNode(qsizetype, const QString &, const QString &, const QString &) override {}
    void enableResetBar() override;
    void showFileFormat(const QString &text) override;
    void showRecentFiles(const QStringList &) override {}

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
    void buildDocumentSelector();
    void buildStatusBar();
    void restoreState();
    void readColouringOptions();
    void restoreBars();
    void restorePlacement();
    void savePlacement();
    void openCommandLineFile();
    void decideWelcome();
    bool documentsMayClose();
    void raiseDialogs();
    void openDropped(const QStringList &paths);
    void tabDocSel_Click();
    int tabOfKey(const QString &key) const;

    const QString &m_commandLine;
    InputGate *m_gate = nullptr;
    std::unique_ptr<MainCommands> m_commands;
    QTabBar *tabDocSel = nullptr;
    QWidget *picDocSelector = nullptr;
    QLabel *m_message = nullptr;
    QLabel *m_fileFormat = nullptr;
    QStatusBar *StatusBar1 = nullptr;
    Timer *tmrResetBar = nullptr;
    bool m_tabsFollow = false; ///< the strip is being changed by the program, not by a click
};
