#pragma once

#include "forms/programContext.h"
#include "frame/frmMdiTables.h"

#include <QHash>
#include <QString>
#include <optional>

class CoolBar;
class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class frmMdi;
struct PaletteEntry;

/// The commands of the main window: makes its menus and toolbars from the tables, keeps each enabled as its rules say,
/// and runs what the user chooses. A handler that finds no document does nothing.
class MainCommands
{
public:
    MainCommands(frmMdi &form, ProgramContext &context);

    /// Makes the menus, the pop-ups and the toolbars of a newly loaded window; the toolbars are not placed yet.
    void build(QMainWindow &window);
    void setDocumentControlsEnabled(bool enabled);
    /// Shows the commands of the rules that the user edits by, and hides the others.
    void followHabits();
    void setProjectCommandsEnabled(bool enabled);
    /// Makes the entries of the add-ins, each by its number, behind those that the table holds.
    void showAddIns(QMainWindow &window, const QMap<int, QString> &captions);
    /// A menu entry by its name, a toolbar's button as "bar(key)"; nothing if there is none.
    QAction *action(const QString &name) const { return m_actions.value(name); }
    QToolBar *toolBar(const QString &name) const { return m_toolBars.value(name); }
    QMenu *menu(const QString &name) const;
    QList<QAction *> recentFiles() const; ///< the entries of the File menu, the newest file's first
    /// Enables the entries of the edit surface's pop-up menu that act on a selection, as it opens at the mouse.
    void enableSelectionEntries();

    // File
    void mnuOpen_Click();
    void mnuClose_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuSaveAll_Click();
    void mnuViewPage_Click();
    void mnuWizards_Click();
    void mnuUpload_Click();
    void mnuPrint_Click();
    template <int Index>
    void mnuRecentFile_Click()
    {
        openRecentFile(Index);
    }
    void mnuExit_Click();
    void newBlankDocument();
    // Edit
    void mnuUndo_Click();
    void mnuRedo_Click();
    void mnuCut_Click();
    void mnuCopy_Click();
    void mnuPaste_Click();
    void mnuSelectAll_Click();
    void deleteSelection();
    void mnuReplace_Click();
    void mnuFindNext_Click();
    void mnuFindPrevious_Click();
    void mnuPreviousTag_Click();
    void mnuNextTag_Click();
    void mnuToggleComment_Click();
    void mnuMoveLinesUp_Click();
    void mnuMoveLinesDown_Click();
    void mnuDoubleLines_Click();
    void mnuRemoveLines_Click();
    void mnuGoToPartner_Click();
    void mnuCloseElement_Click();
    void mnuRenameElement_Click();
    void mnuChangeColour_Click();
    void mnuExpandAbbreviation_Click();
    void mnuPastePicture_Click();
    void mnuFollowLink_Click();
    void mnuGoToFile_Click();
    void mnuRunCommand_Click();
    // View
    void mnuShowbar_Click();
    void mnuShowPrjWindow_Click();
    void mnuShowCodeBar_Click();
    void mnuShowDocSelBar_Click();
    void mnuShowStatusBar_Click();
    void mnuHideAddressBar_Click();
    void mnuSplitEditingWindows_Click();
    void stopBrowser();
    void refreshBrowser();
    void browserForward();
    void browserBack();
    void mnuWordWrap_Click();
    // Insert, Format, Tools
    void mnuInsFramesPage_Click();
    void mnuInsExternalCSS_Click();
    void mnuInsColourCode_Click();
    void mnuOmitBasePath_Click();
    void mnuIndent_Click();
    void mnuOutdent_Click();
    void mnuCodeOptimise_Click();
    // Projects
    void mnuOpenProject_Click();
    void addEditorFile();
    void addOtherFile();
    void removeEditorFile();
    void removeOtherFile();
    void saveProject();
    void mnuCloseProject_Click();
    // Window
    void mnuWinTile_Click();
    void mnuWinTileVert_Click();
    void mnuWinCascade_Click();
    void mnuWinArrangeIcons_Click();
    // Help
    void mnuUpdate_Click();
    void mnuHelpContents_Click();
    void mnuHelpIndex_Click();
    void mnuWhatsThisMode_Click();
    void mnuHarblineWebsite_Click();
    void mnuCustomerBenefits_Click();
    void mnuHtmLangReg_Click();
    void mnuTutorial_Click();
    void openBenefitsPage();
    void openLibraryPage();

private:
    void addMenuEntry(QMainWindow &window, const MenuCommand &command);
    QAction *makeMenu(QMainWindow &window, const MenuCommand &command);
    void addToolButton(QMainWindow &window, const ToolCommand &command);
    void addDropEntry(const ToolCommand &command);
    void addDropLists(QMainWindow &window);
    QString shortcutOf(const ToolCommand &command) const;
    QString toolTipOf(const ToolCommand &command) const;
    void makeCheckable();
    void followMenus();
    bool isMet(Needs needs) const;
    void enable(const QString &name, Needs needs);
    /// All commands, or those alone that need one thing.
    void enableAll(std::optional<Needs> those = {});
    bool takesCommands() const;
    void run(const CommandAction &action);
    void wrapSelection(const CommandAction &action);

    void mnuEdit_Open();
    void mnuFormat_Open();
    void mnuPopup_Open();

    void openRecentFile(int index);
    QList<PaletteEntry> commandEntries();
    void indent(bool further);
    void focusEditor();
    Document *document() const;

    frmMdi &m_form;
    ProgramContext &m_context;
    bool m_documentControls = false;
    bool m_projectCommands = false;
    QHash<QString, QAction *> m_actions;
    QHash<QString, QToolBar *> m_toolBars;
    QStringList m_addIns; ///< the names of their entries
};

/// The name of a toolbar's button as a control: "tbrMain(Save)".
QString toolName(const ToolCommand &command);
