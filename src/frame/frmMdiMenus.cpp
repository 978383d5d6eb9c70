// The making of the main window's menus and toolbars, and their enabling.
#include "common/programState.h"
#include "extensions/modAddIns.h"
#include "files/modRecentFiles.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "frame/frmMdi.h"
#include "frame/frmMdiCommands.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/controlName.h"
#include "widgets/programIcon.h"

#include <QAction>
#include <QGuiApplication>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

namespace
{
using Kind = CommandAction::Kind;
constexpr QSize ToolIconSize(16, 16);

QToolBar *makeToolBar(QMainWindow &window, const QString &name)
{
    auto *bar = new QToolBar(&window);
    bar->setObjectName(name);
    bar->setIconSize(ToolIconSize);
    bar->layout()->setSpacing(0);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    return bar;
}
} // namespace

QString toolName(const ToolCommand &command)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(command.bar), QLatin1String(command.key));
}

MainCommands::MainCommands(frmMdi &form, ProgramContext &context) : m_form(form), m_context(context) {}

void MainCommands::build(QMainWindow &window)
{
    m_actions.clear();
    m_toolBars.clear();
    m_addIns.clear();
    for (const MenuCommand &command : menuCommands())
        addMenuEntry(window, command);
    for (const ToolCommand &command : toolCommands())
        addToolButton(window, command);
    addDropLists(window);
    for (const CommandAlias &alias : commandAliases())
        m_actions.insert(QLatin1String(alias.alias), action(QLatin1String(alias.name)));
    makeCheckable();
    followMenus();
    followHabits();
}

QMenu *MainCommands::menu(const QString &name) const
{
    const QAction *head = action(name);
    return head ? head->menu<QMenu *>() : nullptr;
}

QList<QAction *> MainCommands::recentFiles() const
{
    QList<QAction *> entries;
    for (int slot = 1; slot <= RecentFileCount; ++slot)
        entries.append(action(controlName(QStringLiteral("mnuRecentFile"), slot)));
    return entries;
}

QAction *MainCommands::makeMenu(QMainWindow &window, const MenuCommand &command)
{
    auto *menu = new QMenu(QString::fromUtf8(command.caption), &window);
    menu->setObjectName(QLatin1String(command.name));
    return menu->menuAction();
}

void MainCommands::addMenuEntry(QMainWindow &window, const MenuCommand &command)
{
    const QString name = QLatin1String(command.name);
    QAction *entry = command.action.kind == Kind::Head ? makeMenu(window, command)
                                                       : new QAction(QString::fromUtf8(command.caption), &window);
    entry->setObjectName(name);
    entry->setMenuRole(QAction::NoRole);
    entry->setSeparator(command.action.kind == Kind::Separator);
    if (*command.icon)
        entry->setIcon(programIcon(QLatin1String(command.icon)));
    if (*command.shortcut)
        entry->setShortcut(QKeySequence(QLatin1String(command.shortcut)));
    QObject::connect(entry, &QAction::triggered, &window, [this, &action = command.action] { run(action); });
    if (QLatin1String(command.menu) == QLatin1String("bar"))
        window.menuBar()->addAction(entry);
    else if (QMenu *above = menu(QLatin1String(command.menu)))
        above->addAction(entry);
    m_actions.insert(name, entry);
}

QString MainCommands::shortcutOf(const ToolCommand &command) const
{
    const QString twin = QLatin1String(command.twin);
    if (twin.startsWith(u'('))
        return twin.sliced(1).chopped(1);
    const QAction *entry = action(twin);
    return entry ? entry->shortcut().toString(QKeySequence::NativeText) : QString();
}

QString MainCommands::toolTipOf(const ToolCommand &command) const
{
    const QString caption = QString::fromUtf8(command.toolTip);
    const QString shortcut = shortcutOf(command);
    return shortcut.isEmpty() ? caption : QStringLiteral("%1 (%2)").arg(caption, shortcut);
}

void MainCommands::addToolButton(QMainWindow &window, const ToolCommand &command)
{
    QToolBar *&bar = m_toolBars[QLatin1String(command.bar)];
    if (!bar)
        bar = makeToolBar(window, QLatin1String(command.bar));
    if (command.action.kind == Kind::Separator) {
        bar->addSeparator();
        return;
    }
    const QString caption = QString::fromUtf8(command.toolTip);
    QAction *button = bar->addAction(programIcon(QLatin1String(command.icon)), caption);
    button->setObjectName(toolName(command));
    button->setData(QLatin1String(command.key));
    button->setToolTip(toolTipOf(command));
    button->setWhatsThis(caption);
    if (*command.twin == '(')
        button->setShortcut(QKeySequence(shortcutOf(command)));
    QObject::connect(button, &QAction::triggered, &window, [this, &action = command.action] { run(action); });
    m_actions.insert(button->objectName(), button);
}

/// The button with a list carries it beside its own press.
void MainCommands::addDropLists(QMainWindow &window)
{
    for (const QString &first : {QStringLiteral("tbrCode(Bold)"), QStringLiteral("tbrHelp(Help)")}) {
        QAction *button = action(first);
        auto *list = new QMenu(&window);
        button->setMenu(list);
        QToolBar *bar = toolBar(first.section(u'(', 0, 0));
        qobject_cast<QToolButton *>(bar->widgetForAction(button))->setPopupMode(QToolButton::MenuButtonPopup);
    }
    // The code list has the entries of its bar, under their names.
    for (const ToolCommand &command : toolCommands())
        if (QLatin1String(command.bar) == QLatin1String("tbrCode"))
            addDropEntry(command);
    for (const ToolCommand &command : dropCommands())
        addDropEntry(command);
}

void MainCommands::addDropEntry(const ToolCommand &command)
{
    const bool isCode = QLatin1String(command.bar) == QLatin1String("tbrCode");
    QMenu *list = action(isCode ? QStringLiteral("tbrCode(Bold)") : QStringLiteral("tbrHelp(Help)"))->menu<QMenu *>();
    QAction *entry = list->addAction(programIcon(QLatin1String(command.icon)), QString::fromUtf8(command.toolTip));
    entry->setData(QLatin1String(command.key));
    QObject::connect(entry, &QAction::triggered, list, [this, &action = command.action] { run(action); });
}

void MainCommands::makeCheckable()
{
    for (const char *name : {"mnuShowbar", "mnuShowPrjWindow", "mnuShowCodeBar", "mnuShowDocSelBar", "mnuShowStatusBar",
                             "mnuSplitEditingWindows", "mnuWordWrap", "mnuOmitBasePath"})
        action(QLatin1String(name))->setCheckable(true);
}

void MainCommands::followMenus()
{
    const auto follow = [this](const char *name, void (MainCommands::*rules)()) {
        QMenu *opened = menu(QLatin1String(name));
        QObject::connect(opened, &QMenu::aboutToShow, opened, [this, rules] { (this->*rules)(); });
    };
    follow("mnuEdit", &MainCommands::mnuEdit_Open);
    follow("mnuFormat", &MainCommands::mnuFormat_Open);
    follow("mnuPopup", &MainCommands::mnuPopup_Open);
}

void MainCommands::enableSelectionEntries()
{
    constexpr qsizetype LeastSelected = 2; // a single selected character does not count
    const Document *active = document();
    const bool selected = active && active->txtEdit().SelLength() >= LeastSelected;
    for (const char *name : {"mnuPCut", "mnuPCopy"})
        action(QLatin1String(name))->setEnabled(selected);
}

/// What is hidden has no key either. A key that a command of a rule shares with another one is the rule's as long as
/// that holds.
void MainCommands::followHabits()
{
    bool any = false;
    QSet<QKeySequence> taken;
    for (const MenuCommand &command : menuCommands())
        if (command.hand) {
            const bool shown = m_context.state.habits.*command.hand;
            action(QLatin1String(command.name))->setVisible(shown);
            if (shown)
                taken.insert(QKeySequence(QLatin1String(command.shortcut)));
            any = any || shown;
        }
    action(QStringLiteral("mnuHands"))->setVisible(any);
    for (const MenuCommand &command : menuCommands())
        if (*command.shortcut && !command.hand) {
            const QKeySequence key(QLatin1String(command.shortcut));
            action(QLatin1String(command.name))->setShortcut(taken.contains(key) ? QKeySequence() : key);
        }
    for (const ToolCommand &command : toolCommands())
        if (QAction *button = action(toolName(command)))
            button->setToolTip(toolTipOf(command));
}

bool MainCommands::isMet(Needs needs) const
{
    switch (needs) {
    case Needs::Document:
        return m_documentControls;
    case Needs::Project:
        return m_projectCommands;
    case Needs::Nothing:
        break;
    }
    return true;
}

void MainCommands::showAddIns(QMainWindow &window, const QMap<int, QString> &captions)
{
    for (const QString &name : std::exchange(m_addIns, {})) {
        QAction *entry = m_actions.take(name);
        menu(QStringLiteral("mnuAddIns"))->removeAction(entry);
        entry->setParent(nullptr); // at once, for it is known by its name
        entry->deleteLater();
    }
    action(controlName(QStringLiteral("mnuAddInList"), 0))->setVisible(!captions.isEmpty());
    for (auto addIn = captions.begin(); addIn != captions.end(); ++addIn) {
        const QString name = controlName(QStringLiteral("mnuAddInList"), addIn.key());
        auto *entry = new QAction(QString(addIn.value()).replace(u'&', QStringLiteral("&&")), &window);
        entry->setObjectName(name);
        entry->setMenuRole(QAction::NoRole);
        QObject::connect(entry, &QAction::triggered, &window,
                         [this, number = addIn.key()] { StartAddIn(m_context, number); });
        menu(QStringLiteral("mnuAddIns"))->addAction(entry);
        m_actions.insert(name, entry);
        m_addIns.append(name);
    }
}

void MainCommands::enable(const QString &name, Needs needs)
{
    m_actions.value(name)->setEnabled(isMet(needs));
}

void MainCommands::setDocumentControlsEnabled(bool enabled)
{
    m_documentControls = enabled;
    enableAll();
}

void MainCommands::setProjectCommandsEnabled(bool enabled)
{
    m_projectCommands = enabled;
    enableAll(Needs::Project);
}

void MainCommands::enableAll(std::optional<Needs> those)
{
    const auto isMeant = [those](Needs needs) { return !those || *those == needs; };
    for (const MenuCommand &command : menuCommands())
        if (isMeant(command.needs))
            enable(QLatin1String(command.name), command.needs);
    for (const ToolCommand &command : toolCommands())
        if (command.action.kind != Kind::Separator && isMeant(command.needs))
            enable(toolName(command), command.needs);
}

void MainCommands::mnuEdit_Open()
{
    const Document *active = document();
    const bool selected = active && active->txtEdit().SelLength() > 0;
    const auto possible = active ? active->IsUndoRedoPossible() : Document::UndoRedo{};
    QAction *toLibrary = action(QStringLiteral("mnuAddToCodeLibrary"));
    toLibrary->setEnabled(selected && m_context.forms.find(QStringLiteral("frmAddToCodeLib")));
    action(QStringLiteral("mnuUndo"))->setEnabled(possible.undo);
    action(QStringLiteral("mnuRedo"))->setEnabled(possible.redo);
}

void MainCommands::mnuFormat_Open()
{
    const Document *active = document();
    const bool selected = active && active->txtEdit().SelLength() > 0;
    action(QStringLiteral("mnuIndent"))->setEnabled(selected);
    action(QStringLiteral("mnuOutdent"))->setEnabled(selected);
    action(QStringLiteral("mnuOmitBasePath"))
        ->setChecked(settings::isOn(m_context.services.settings, settings::ExcludeBasePath));
}

void MainCommands::mnuPopup_Open()
{
    const auto copyState = [this](const char *to, const char *from) {
        action(QLatin1String(to))->setEnabled(action(QLatin1String(from))->isEnabled());
    };
    copyState("mnuPPaste", "mnuPaste");
    copyState("mnuPopupUndo", "mnuUndo");
    copyState("mnuPopupRedo", "mnuRedo");
}

/// A global menu of the desktop, or a tool for the disabled, chooses commands past every filter of input.
bool MainCommands::takesCommands() const
{
    const QWindow *modal = QGuiApplication::modalWindow();
    return m_form.Enabled() && (!modal || modal == m_form.window()->windowHandle());
}

void MainCommands::run(const CommandAction &action)
{
    if (!takesCommands())
        return;
    switch (action.kind) {
    case Kind::Run:
        (this->*action.run)();
        break;
    case Kind::Form:
        m_context.forms.find(QLatin1String(action.form))->Show();
        break;
    case Kind::ModalForm:
        m_context.forms.find(QLatin1String(action.form))->ShowModal();
        break;
    case Kind::Wrap:
        wrapSelection(action);
        break;
    case Kind::Head:
    case Kind::Separator:
    case Kind::Nothing:
        break;
    }
}
