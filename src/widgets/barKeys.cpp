#include "widgets/barKeys.h"

#include <QAction>
#include <QKeyEvent>
#include <QToolBar>
#include <QToolButton>

namespace
{
QList<QToolButton *> buttonsOf(const QToolBar &bar)
{
    QList<QToolButton *> buttons;
    for (QAction *action : bar.actions())
        if (auto *button = qobject_cast<QToolButton *>(bar.widgetForAction(action)))
            buttons.append(button);
    return buttons;
}

bool canBePressed(const QToolButton &button)
{
    return button.isEnabled() && !button.isHidden();
}

QToolBar *barOf(const QToolButton &button)
{
    return qobject_cast<QToolBar *>(button.parentWidget());
}

void setEntrance(const QToolBar &bar, const QToolButton *entrance)
{
    for (QToolButton *button : buttonsOf(bar))
        button->setFocusPolicy(button == entrance ? Qt::TabFocus : Qt::NoFocus);
}

/// The bar's entrance, or another button where that can not be pressed any more.
void settleEntrance(const QToolBar &bar)
{
    const QToolButton *now = BarKeys::entrance(bar);
    for (QToolButton *button : buttonsOf(bar))
        if (!now && canBePressed(*button))
            now = button;
    setEntrance(bar, now);
}

void go(const QToolBar &bar, const QToolButton &from, int key)
{
    QList<QToolButton *> buttons = buttonsOf(bar);
    buttons.removeIf([&from](const QToolButton *button) { return button != &from && !canBePressed(*button); });
    const qsizetype at = buttons.indexOf(&from);
    const qsizetype last = buttons.size() - 1;
    const bool forwards = key == (bar.layoutDirection() == Qt::RightToLeft ? Qt::Key_Left : Qt::Key_Right);
    const qsizetype to = key == Qt::Key_Home ? 0 : key == Qt::Key_End ? last : at + (forwards ? 1 : -1);
    buttons[qBound(qsizetype(0), to, last)]->setFocus(Qt::TabFocusReason);
}
} // namespace

BarKeys::BarKeys(std::function<void()> leave, QObject *parent) : QObject(parent), m_leave(std::move(leave)) {}

void BarKeys::add(QToolBar &bar)
{
    for (QToolButton *button : buttonsOf(bar))
        button->installEventFilter(this);
    settleEntrance(bar);
}

QToolButton *BarKeys::entrance(const QToolBar &bar)
{
    for (QToolButton *button : buttonsOf(bar))
        if (button->focusPolicy() == Qt::TabFocus && canBePressed(*button))
            return button;
    return nullptr;
}

bool BarKeys::press(QToolButton &button, int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
        go(*barOf(button), button, key);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        button.click();
        return true;
    case Qt::Key_Down:
        if (button.menu())
            button.showMenu();
        return true;
    case Qt::Key_Up:
        return true; // would go on to another control
    case Qt::Key_Escape:
        m_leave();
        return true;
    default:
        return false;
    }
}

bool BarKeys::eventFilter(QObject *watched, QEvent *event)
{
    auto *button = qobject_cast<QToolButton *>(watched);
    if (!button || !barOf(*button))
        return false;
    switch (event->type()) {
    case QEvent::FocusIn:
        setEntrance(*barOf(*button), button);
        return false;
    case QEvent::EnabledChange:
    case QEvent::HideToParent:
    case QEvent::ShowToParent:
        settleEntrance(*barOf(*button));
        return false;
    case QEvent::KeyPress: {
        const auto *key = static_cast<QKeyEvent *>(event);
        return !(key->modifiers() & ~Qt::KeypadModifier) && press(*button, key->key());
    }
    default:
        return false;
    }
}
