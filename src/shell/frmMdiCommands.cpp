#include "shell/frmMdiCommands.h"

#include "document/modClipboard.h"
#include "document/modDocument.h"
#include "shell/frmMdi.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace
{
using C = MainCommands;

// clang-format off
constexpr MenuCommand menuTable[] = {
    {"mnuFile", "", "&File", "", false, nullptr},
    {"mnuClose", "mnuFile", "&Close", "Ctrl+W", true, &C::mnuClose_Click},
    {"mnuExit", "mnuFile", "E&xit", "Ctrl+Q", false, &C::mnuExit_Click},
    {"mnuEdit", "", "&Edit", "", true, nullptr},
    {"mnuCut", "mnuEdit", "Cu&t", "Ctrl+X", true, &C::mnuCut_Click},
    {"mnuCopy", "mnuEdit", "&Copy", "Ctrl+C", true, &C::mnuCopy_Click},
    {"mnuPaste", "mnuEdit", "&Paste", "Ctrl+V", true, &C::mnuPaste_Click},
    {"mnuSelectAll", "mnuEdit", "Select &All", "Ctrl+A", true, &C::mnuSelectAll_Click},
    {"mnuView", "", "&View", "", false, nullptr},
    {"mnuWordWrap", "mnuView", "Word &Wrap Text", "", false, &C::mnuWordWrap_Click},
};

constexpr ToolCommand toolTable[] = {
    {"tbrMain", "New", "New page", "document-new", false, &C::newBlankDocument},
    {"tbrMain", "Cut", "Cut", "edit-cut", true, &C::mnuCut_Click},
    {"tbrMain", "Copy", "Copy", "edit-copy", true, &C::mnuCopy_Click},
    {"tbrMain", "Paste", "Paste", "edit-paste", true, &C::mnuPaste_Click},
};
// clang-format on

QString toolName(const ToolCommand &command)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(command.bar), QLatin1String(command.key));
}
} // namespace

std::span<const MenuCommand> menuCommands()
{
    return menuTable;
}

std::span<const ToolCommand> toolCommands()
{
    return toolTable;
}

MainCommands::MainCommands(frmMdi &form, ProgramContext &context) : m_form(form), m_context(context) {}

void MainCommands::build(QMainWindow &window)
{
    m_actions.clear();
    for (const MenuCommand &command : menuCommands())
        addMenuEntry(window, command);
    for (const ToolCommand &command : toolCommands())
        addToolButton(window, command);
    m_actions.value(QStringLiteral("mnuWordWrap"))->setCheckable(true);
}

void MainCommands::addMenuEntry(QMainWindow &window, const MenuCommand &command)
{
    const QAction *parent = m_actions.value(QLatin1String(command.menu));
    QWidget *menu = parent ? static_cast<QWidget *>(parent->menu<QMenu *>()) : window.menuBar();
    const QString name = QLatin1String(command.name);
    if (name.startsWith(u'-')) {
        static_cast<QMenu *>(menu)->addSeparator();
        return;
    }
    auto *action = new QAction(QString::fromUtf8(command.caption), &window);
    action->setObjectName(name);
    action->setShortcut(QKeySequence(QLatin1String(command.shortcut)));
    action->setMenuRole(QAction::NoRole);
    if (command.run)
        QObject::connect(action, &QAction::triggered, &window, [this, run = command.run] { (this->*run)(); });
    else
        action->setMenu(new QMenu(&window));
    menu->addAction(action);
    m_actions.insert(name, action);
}

void MainCommands::addToolButton(QMainWindow &window, const ToolCommand &command)
{
    const QString bar = QLatin1String(command.bar);
    auto *toolBar = window.findChild<QToolBar *>(bar);
    if (!toolBar) {
        toolBar = window.addToolBar(bar);
        toolBar->setObjectName(bar);
    }
    auto *action =
        new QAction(QIcon::fromTheme(QLatin1String(command.icon)), QString::fromUtf8(command.toolTip), &window);
    action->setObjectName(toolName(command));
    action->setData(QLatin1String(command.key));
    QObject::connect(action, &QAction::triggered, &window, [this, run = command.run] { (this->*run)(); });
    toolBar->addAction(action);
    m_actions.insert(action->objectName(), action);
}

void MainCommands::setDocumentControlsEnabled(bool enabled)
{
    for (const MenuCommand &command : menuCommands())
        if (command.needsDocument)
            m_actions.value(QLatin1String(command.name))->setEnabled(enabled);
    for (const ToolCommand &command : toolCommands())
        if (command.needsDocument)
            m_actions.value(toolName(command))->setEnabled(enabled);
}

Document *MainCommands::document() const
{
    return m_form.activeDocument();
}

void MainCommands::mnuClose_Click()
{
    if (Document *active = document())
        active->unload();
}

void MainCommands::mnuExit_Click()
{
    m_form.Unload();
}

void MainCommands::mnuCut_Click()
{
    CutToClipboard(m_context);
}

void MainCommands::mnuCopy_Click()
{
    CopyToClipboard(m_context);
}

void MainCommands::mnuPaste_Click()
{
    PasteToDocument(m_context);
}

void MainCommands::mnuSelectAll_Click()
{
    SelectAllInActiveControl(m_context);
}

void MainCommands::mnuWordWrap_Click()
{
    ApplyWordWrapSetting(m_context, !m_form.WordWrap);
}

void MainCommands::newBlankDocument()
{
    NewBlankDocument(m_context);
    FillBlankDocument(m_context);
    if (Document *active = document()) {
        active->DocSelUpdate(QString());
        active->txtEdit().SetFocus();
    }
}
