#pragma once

#include "common/colouringOptions.h"
#include "common/document.h"
#include "common/treeNode.h"

#include <QList>
#include <QMap>
#include <QPoint>
#include <QStringList>

/// Where the focus is when F6 is to move it.
enum class FocusPlace { Source, Project };

/// The main window as the other subsystems know it; its form, frmMdi, is the one implementation.
class MainWindow
{
public:
    MainWindow() = default;
    MainWindow(const MainWindow &) = delete;
    MainWindow &operator=(const MainWindow &) = delete;
    virtual ~MainWindow() = default;

    /// Whether the window takes input. A flag of our own: switching it moves no focus and runs no handler.
    virtual bool Enabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;

    /// The loaded documents in loading order.
    virtual QList<Document *> openDocuments() const = 0;
    /// The document whose window is the active one of the main window; nothing without documents.
    virtual Document *activeDocument() const = 0;

    qint16 OpenDocumentCount = 0;
    qint16 NextDocumentNumber = 0;    ///< raised at each document's load, never lowered
    bool ExitInProgress = false;      ///< the user has agreed to leave
    bool SaveListShown = false;       ///< the exit list is loaded
    bool AskedForThisSession = false; ///< the user wants no more questions about saved files and the project
    bool AddSavedFileAnswer = false;  ///< the saved file is to be added to the project
    bool WordWrap = true;
    QString LastFindText;        ///< what the Find window searched for when it was closed last
    bool MainWindowBusy = false; ///< the program itself is at work on a document
    ColouringOptions colouring;  ///< read at the load; documents read it here, never from the store

    virtual void SetStatusText(const QString &text) = 0;
    virtual void SetStatusReady() = 0;
    virtual QString statusText() const = 0;
    /// Enables `tmrResetBar`: the text gives way to "Ready" after a few seconds.
    virtual void enableResetBar() = 0;
    /// The panel that tells the active document's encoding and line end; empty without a document.
    virtual void showFileFormat(const QString &text) = 0;
    /// The entries `mnuRecentFile` 1 to 4 take these captions; an empty one is hidden, and `mnuDashUpdates` with them
    /// if all are. Captions are plain text: a "&" in them is a "&".
    virtual void showRecentFiles(const QStringList &captions) = 0;
    /// The menu of add-ins gets one entry for each, by its number, under the caption, which is plain text.
    virtual void showAddIns(const QMap<int, QString> &) {}
    virtual void SetDocumentControlsEnabled(bool enabled) = 0;
    /// Enables the commands that need an open site project, or disables them.
    virtual void SetProjectCommandsEnabled(bool /*enabled*/) {}

    /// Shows the Task Manager Pane if it is hidden, and remembers that.
    virtual void showTaskManagerPane() {}
    /// Brings up the pane's page of the open project, or else its first page.
    virtual void showProjectPage(bool /*shown*/) {}

    // The document selector.
    virtual void addDocumentTab(const QString &key,
                                const QString &caption) = 0; ///< at the end; nothing for a known key
    virtual void removeDocumentTab(const QString &key) = 0;  ///< the first one of that key
    virtual void selectDocumentTab(const QString &key) = 0;
    virtual void showDocumentTabs(bool shown) = 0;
    virtual void showDocumentSelector(bool shown) = 0;

    /// Reads the rules that the user edits by anew, after they or the editor's settings were stored; all of them hold
    /// at once, in every open document.
    virtual void takeOverHabits() {}
    /// Told by a document that comes to the front.
    virtual void documentInFront() {}

    virtual void setWordWrapChecked(bool checked) = 0;
    /// Shows or hides a bar, by the name of its entry in the View menu, whose check mark and setting follow.
    virtual void showBar(const QString &, bool) {}
    virtual void placePane() {}                  ///< puts the Task Manager pane on the side that the settings say
    virtual void clearAddresses() {}             ///< empties the list of the address bar
    virtual void setSplitEditingChecked(bool) {} ///< the check mark of `mnuSplitEditingWindows`

    /// Where a form that drops down from the bar of insertions belongs on the screen, in logical pixels: under the
    /// place where the mouse went down on the bar's first button; under that button's middle if it never did.
    virtual QPoint insertBarDrop() const = 0;
    /// Holds the first button of the bar of insertions down, as long as what it dropped down is on show.
    virtual void setInsertBarPressed(bool pressed) = 0;

    /// Shows one of the pop-up menus at a point of the screen; its entries are enabled by its rules first.
    virtual void PopupMenu(const QString &name, const QPoint &position) = 0;
    /// For F6, moves the focus: from the source to the control of the Task Manager pane's page on show, from that pane
    /// to the active document. False, and nothing done, for another key or where there is nowhere to go.
    virtual bool MoveToNextPane(Qt::Key key, FocusPlace from) = 0;

    // The document structure tree. One tree serves all documents; it is filled only while its page is on show.
    virtual void clearStructureTree() = 0;
    virtual bool structurePageShown() const = 0;
    /// Adds a node at the end: `parent` is a node's index in the order of adding, -1 for a root.
    virtual void addStructureNode(qsizetype parent, const QString &key, const QString &text, const QString &image) = 0;
    /// Shows these in the place of all its nodes; what of the tree is closed, and what is selected, stays so as far as
    /// it is there still.
    virtual void showStructure(const QList<TreeNode> &) {}
};
