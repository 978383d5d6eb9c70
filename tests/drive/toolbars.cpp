#include "drive/toolbars.h"

#include "common/mainWindow.h"
#include "drive/events.h"
#include "drive/input.h"
#include "drive/menus.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/told.h"
#include "forms/form.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QRegularExpression>
#include <QToolBar>
#include <QToolButton>

namespace drive
{
namespace
{
QList<QAction *> buttonsOf(const QToolBar &bar)
{
    QList<QAction *> buttons;
    const auto actions = bar.actions();
    for (QAction *action : actions)
        if (!action->isSeparator())
            buttons.append(action);
    return buttons;
}

QList<Named> namesOf(const QToolBar &bar)
{
    QList<Named> names;
    const auto buttons = buttonsOf(bar);
    for (const QAction *button : buttons)
        names.append({keyOfToolButton(bar, *button), button->text()});
    return names;
}

struct Tool {
    QToolBar *bar = nullptr;
    QAction *action = nullptr;
    QToolButton *button = nullptr; ///< nothing for a button that is drawn in another way
};

/// The button, which is there and which the user can press; its window is active.
Tool readyTool(Stage &stage, const QString &barName, const QString &key)
{
    const Target target = findTarget(stage, barName.contains(u'.') ? barName : QStringLiteral("frmMdi.") + barName);
    const QString name = QStringLiteral("%1(%2)").arg(barName, key);
    Tool tool;
    tool.bar = qobject_cast<QToolBar *>(target.control);
    if (!tool.bar)
        stage.referee.wrong(QStringLiteral("%1 is no toolbar").arg(barName));
    requireInput(stage, *target.form, name);
    activate(stage, *target.form);
    settle();
    tool.action = findToolButton(*tool.bar, key);
    if (!tool.action)
        stage.referee.wrong(
            QStringLiteral("%1 has no button %2; it has %3")
                .arg(barName, key, toolBarProperty(*tool.bar, QStringLiteral("Keys")).value_or(QString())));
    tool.button = qobject_cast<QToolButton *>(tool.bar->widgetForAction(tool.action));
    if (!tool.bar->isVisible() || !tool.action->isVisible())
        stage.referee.fail(QStringLiteral("the button %1 on show").arg(name), QStringLiteral("it hidden"));
    if (!tool.bar->isEnabled() || !tool.action->isEnabled())
        stage.referee.fail(QStringLiteral("the button %1 enabled").arg(name), QStringLiteral("it disabled"));
    return tool;
}

QMenu *dropListOf(const Tool &tool)
{
    QMenu *menu = tool.action->menu<QMenu *>();
    return menu || !tool.button ? menu : tool.button->menu();
}
} // namespace

QAction *findToolButton(const QToolBar &bar, const QString &name)
{
    const auto found = findNamed(namesOf(bar), name);
    return found ? buttonsOf(bar)[*found] : nullptr;
}

QString keyOfToolButton(const QToolBar &bar, const QAction &button)
{
    if (!button.data().toString().isEmpty())
        return button.data().toString();
    const QString name = button.objectName();
    const QString start = bar.objectName() + u'(';
    return name.startsWith(start) && name.endsWith(u')') ? name.mid(start.size()).chopped(1) : name;
}

std::optional<QString> toolBarProperty(const QToolBar &bar, const QString &property)
{
    if (property == QStringLiteral("ListCount"))
        return QString::number(buttonsOf(bar).size());
    if (property == QStringLiteral("Keys")) {
        QStringList keys;
        for (const Named &name : namesOf(bar))
            keys.append(name.key);
        return keys.join(QStringLiteral(", "));
    }
    static const QRegularExpression indexed(QStringLiteral(R"(^(Pressed|Key)\((.*)\)$)"));
    const auto match = indexed.match(property);
    const QAction *button = match.hasMatch() ? findToolButton(bar, match.captured(2)) : nullptr;
    if (!button)
        return std::nullopt;
    return match.captured(1) == QStringLiteral("Key") ? keyOfToolButton(bar, *button) : truth(button->isChecked());
}

void pressTool(Stage &stage, const QString &bar, const QString &key)
{
    const Tool tool = readyTool(stage, bar, key);
    if (tool.button && tool.button->popupMode() == QToolButton::InstantPopup && dropListOf(tool))
        stage.referee.fail(QStringLiteral("an entry of the list that %1(%2) only drops down").arg(bar, key),
                           QStringLiteral("none named"));
    if (tool.button)
        tool.button->click();
    else
        tool.action->trigger();
}

void pressToolDrop(Stage &stage, const QString &bar, const QString &key, const QString &entry)
{
    const Tool tool = readyTool(stage, bar, key);
    QMenu *menu = dropListOf(tool);
    if (!menu)
        stage.referee.wrong(QStringLiteral("%1(%2) has no drop-down list").arg(bar, key));
    chooseFromList(stage, *menu, entry);
}
} // namespace drive
