#include "drive/menus.h"

#include "common/mainWindow.h"
#include "drive/events.h"
#include "drive/input.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "forms/form.h"

#include <QAction>
#include <QMenu>
#include <QPointer>

namespace drive
{
namespace
{
/// The menu that an entry stands in; nothing for a menu of the menu bar and for a pop-up.
QMenu *menuAround(const QAction &entry)
{
    const auto places = entry.associatedObjects();
    for (QObject *place : places)
        if (auto *menu = qobject_cast<QMenu *>(place))
            return menu;
    return nullptr;
}

/// The menus on the way to an entry, the outermost first.
QList<QPointer<QMenu>> wayTo(const QAction &entry)
{
    QList<QPointer<QMenu>> way;
    for (QMenu *menu = menuAround(entry); menu; menu = menuAround(*menu->menuAction()))
        way.prepend(menu);
    return way;
}

QString nameOf(const QAction &entry)
{
    if (!entry.objectName().isEmpty())
        return entry.objectName();
    const QMenu *menu = entry.menu<QMenu *>();
    return menu && !menu->objectName().isEmpty() ? menu->objectName() : withoutAccelerator(entry.text());
}

void requireUsable(Stage &stage, const QAction &entry)
{
    const QString what = QStringLiteral("the menu entry %1").arg(nameOf(entry));
    if (!entry.isVisible())
        stage.referee.fail(what + QStringLiteral(" on show"), QStringLiteral("it hidden"));
    if (!entry.isEnabled())
        stage.referee.fail(what + QStringLiteral(" enabled"), QStringLiteral("it disabled"));
}

void open(Stage &stage, const QList<QPointer<QMenu>> &way)
{
    for (const QPointer<QMenu> &menu : way) {
        if (!menu)
            continue; // the menu above has rebuilt it, and what stands in it is looked up again
        requireUsable(stage, *menu->menuAction());
        if (menu->isVisible()) // a pop-up that the user has opened already
            continue;
        Q_EMIT menu->aboutToShow();
        settle();
    }
}

void close(const QList<QPointer<QMenu>> &way)
{
    for (auto menu = way.rbegin(); menu != way.rend(); ++menu) {
        if (*menu && (*menu)->isVisible())
            (*menu)->close();
        else if (*menu)
            Q_EMIT(*menu)->aboutToHide();
    }
}

QString fullName(const QString &name)
{
    return name.contains(u'.') ? name : QStringLiteral("frmMdi.") + name;
}

/// The entry, its form's window active and taking input.
QAction &findEntry(Stage &stage, const QString &name)
{
    const Target target = findTarget(stage, fullName(name));
    auto *entry = qobject_cast<QAction *>(target.control);
    if (!entry)
        stage.referee.wrong(QStringLiteral("%1 is no menu entry").arg(name));
    return *entry;
}

void activateFormOf(Stage &stage, const QString &name)
{
    const Target target = findTarget(stage, fullName(name));
    requireInput(stage, *target.form, name);
    activate(stage, *target.form);
    settle();
}
} // namespace

void chooseMenuEntry(Stage &stage, const QString &name)
{
    activateFormOf(stage, name);
    const auto way = wayTo(findEntry(stage, name));
    open(stage, way);
    QAction &entry = findEntry(stage, name); // opening the menu may have made its entries anew
    requireUsable(stage, entry);
    if (entry.menu<QMenu *>())
        stage.referee.wrong(QStringLiteral("%1 is a menu; one of its entries can be chosen").arg(name));
    const QPointer<QAction> held = &entry;
    close(way);
    if (held)
        held->trigger();
}

void openMenu(Stage &stage, const QString &name)
{
    activateFormOf(stage, name);
    QAction &entry = findEntry(stage, name);
    QMenu *menu = entry.menu<QMenu *>();
    if (!menu)
        stage.referee.wrong(QStringLiteral("%1 is no menu").arg(name));
    const auto way = wayTo(entry) << menu;
    open(stage, way);
    close(way);
}

void chooseFromList(Stage &stage, QMenu &menu, const QString &name)
{
    Q_EMIT menu.aboutToShow();
    settle();
    QList<Named> names;
    QList<QPointer<QAction>> entries;
    const auto actions = menu.actions();
    for (QAction *action : actions) {
        if (action->isSeparator())
            continue;
        const QString key = action->data().toString();
        names.append({key.isEmpty() ? action->objectName() : key, action->text()});
        entries.append(action);
    }
    const auto found = findNamed(names, name);
    if (!found)
        stage.referee.wrong(QStringLiteral("the list has no entry %1").arg(name));
    requireUsable(stage, *entries[*found]);
    Q_EMIT menu.aboutToHide();
    if (entries[*found])
        entries[*found]->trigger();
}
} // namespace drive
