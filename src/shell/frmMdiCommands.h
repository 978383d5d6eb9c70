#pragma once

#include "platform/programContext.h"

#include <QHash>
#include <QString>
#include <span>

class QAction;
class QMainWindow;
class QMenu;
class frmMdi;
class MainCommands;

/// One entry of the menus, in the order of the menus.
struct MenuCommand {
    const char *name;            ///< the control's name; a name that starts with "-" is a separator
    const char *menu;            ///< name of the menu that it stands in; empty for a menu of the menu bar
    const char *caption;         ///< with its accelerator mark
    const char *shortcut;        ///< as in "Ctrl+S"; empty for none
    bool needsDocument;          ///< enabled only while there is a document
    void (MainCommands::*run)(); ///< nothing: the head of a menu
};

/// One button of a toolbar, in the order of the toolbars.
struct ToolCommand {
    const char *bar; ///< the toolbar's name
    const char *key; ///< what the button is known by within its bar
    const char *toolTip;
    const char *icon;
    bool needsDocument;
    void (MainCommands::*run)();
};

std::span<const MenuCommand> menuCommands();
std::span<const ToolCommand> toolCommands();

/// The commands of the main window: makes its menus and toolbars from the two tables and runs what the user chooses.
class MainCommands
{
public:
    MainCommands(frmMdi &form, ProgramContext &context);

    /// Makes the menus and toolbars of a newly loaded window.
    void build(QMainWindow &window);
    void setDocumentControlsEnabled(bool enabled);
    QAction *action(const QString &name) const { return m_actions.value(name); }

    void mnuClose_Click();
    void mnuExit_Click();
    void mnuCut_Click();
    void mnuCopy_Click();
    void mnuPaste_Click();
    void mnuSelectAll_Click();
    void mnuWordWrap_Click();
    void newBlankDocument();

private:
    void addMenuEntry(QMainWindow &window, const MenuCommand &command);
    void addToolButton(QMainWindow &window, const ToolCommand &command);
    Document *document() const;

    frmMdi &m_form;
    ProgramContext &m_context;
    QHash<QString, QAction *> m_actions; ///< menu entries by name, toolbar buttons as "bar(key)"
};
