#include "controlAdapter.h"

#include "common/textSurface.h"
#include "controlPick.h"
#include "controlRows.h"
#include "controlText.h"
#include "forms/inputGate.h"
#include "userInput.h"
#include "widgets/colourSelection.h"
#include "widgets/controlWatch.h"
#include "widgets/drawnControl.h"
#include "widgets/fileControls.h"
#include "widgets/nodeTree.h"
#include "widgets/spinButton.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionButton>

namespace drive
{
namespace
{
/// Where a button takes a click: a check box or option only at its mark and caption, not in all of its width.
QPoint clickPoint(const QAbstractButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    if (qobject_cast<const QCheckBox *>(&button))
        return button.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &button).center();
    if (qobject_cast<const QRadioButton *>(&button))
        return button.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, &button).center();
    return button.rect().center();
}

ActionResult setTick(QAbstractButton &button, const QString &value)
{
    if (value != u"0" && value != u"1")
        return refused(QStringLiteral("expected 0 or 1 for %1, got %2").arg(nameOf(button), value));
    const bool wanted = value == u"1";
    if (button.isChecked() == wanted) {
        return focus(button);
    }
    clickAt(button, clickPoint(button));
    return button.isChecked() == wanted
               ? ActionResult()
               : refused(QStringLiteral("expected %1 to become %2, it did not").arg(nameOf(button), value));
}

/// Types over the whole text, so that the handlers see it as a user's keys make it.
ActionResult setLine(QWidget &control, const QLineEdit &edit, const QString &value)
{
    if (edit.isReadOnly())
        return refused(QStringLiteral("%1 is locked").arg(nameOf(control)));
    if (ActionResult result = focus(control); !result.done)
        return result;
    pressKey(control, Qt::Key_A, Qt::ControlModifier);
    if (value.isEmpty())
        pressKey(control, Qt::Key_Delete);
    else
        typeText(control, value);
    return {};
}

/// Enters the text in one go: typed keys would meet the surface's own ideas of indents and tabs.
ActionResult setArea(QWidget &area, bool locked, const QString &value)
{
    if (locked)
        return refused(QStringLiteral("%1 is locked").arg(nameOf(area)));
    if (ActionResult result = focus(area); !result.done)
        return result;
    pressKey(area, Qt::Key_A, Qt::ControlModifier);
    if (value.isEmpty())
        pressKey(area, Qt::Key_Delete);
    else
        commitText(area, value);
    return {};
}

ActionResult setSpin(SpinButton &spin, const QString &value)
{
    bool isNumber = false;
    const int wanted = value.toInt(&isNumber);
    if (!isNumber || wanted < spin.Min() || wanted > spin.Max()) {
        return refused(QStringLiteral("expected a number from %1 to %2 for %3, got %4")
                           .arg(spin.Min())
                           .arg(spin.Max())
                           .arg(nameOf(spin), value));
    }
    for (int before = spin.Value(); before != wanted; before = spin.Value()) {
        QWidget *arrow = before < wanted ? spin.upButton() : spin.downButton();
        clickAt(*arrow, arrow->rect().center());
        if (spin.Value() == before)
            return refused(QStringLiteral("expected %1 to count, it stays at %2").arg(nameOf(spin)).arg(before));
    }
    return {};
}

/// Opens one folder after the other, each by a double click on its row.
ActionResult setFolder(FolderList &list, const QString &path)
{
    while (list.Path() != path) {
        const std::optional<int> next = list.rowTowards(path);
        if (!next)
            return refused(
                QStringLiteral("expected a way to %1 in %2, which is at %3").arg(path, nameOf(list), list.Path()));
        const QString before = list.Path();
        if (ActionResult result = dblpick(list, QString::number(*next)); !result.done)
            return result;
        if (list.Path() == before)
            return refused(QStringLiteral("expected %1 to open a folder, it stays at %2").arg(nameOf(list), before));
    }
    return {};
}

std::optional<ActionResult> setKeyed(QWidget &control, const QString &value)
{
    if (auto *button = qobject_cast<QAbstractButton *>(&control); button && button->isCheckable())
        return setTick(*button, value);
    if (auto *calendar = qobject_cast<QCalendarWidget *>(&control))
        return pickDate(*calendar, value);
    if (auto *spin = qobject_cast<SpinButton *>(&control))
        return setSpin(*spin, value);
    if (qobject_cast<QScrollBar *>(&control))
        return scroll(control, value);
    if (auto *folders = qobject_cast<FolderList *>(&control))
        return setFolder(*folders, value);
    if (qobject_cast<NodeTree *>(&control))
        return node(control, value, NodeAction::Click);
    return {};
}

ActionResult setUsable(QWidget &control, const QString &value)
{
    if (QLineEdit *edit = lineEditOf(&control))
        return setLine(control, *edit, value);
    if (const auto *surface = dynamic_cast<const TextSurface *>(&control))
        return setArea(control, surface->Locked(), value);
    if (QPlainTextEdit *area = textAreaOf(control))
        return setArea(*area, area->isReadOnly(), value);
    if (const auto result = setKeyed(control, value))
        return *result;
    if (rowsOf(control))
        return pickRow(control, value, {}, true);
    return refused(QStringLiteral("%1 holds no value to set").arg(nameOf(control)));
}

QWidget *widgetOf(QObject &control)
{
    return qobject_cast<QWidget *>(&control);
}

std::optional<ActionResult> blocked(const QWidget &widget)
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != widget.window() && !modal->isAncestorOf(&widget))
        return refused(QStringLiteral("%1 is behind the modal %2").arg(nameOf(widget), nameOf(*modal)));
    const auto *gate = widget.window()->findChild<InputGate *>(QString(), Qt::FindDirectChildrenOnly);
    if (gate && !gate->isOpen())
        return refused(QStringLiteral("%1 is disabled, and with it %2").arg(nameOf(*widget.window()), nameOf(widget)));
    return {};
}
} // namespace

ActionResult usable(QObject &control)
{
    if (const auto *drawn = qobject_cast<DrawnControl *>(&control))
        return usable(*drawn->surface());
    const QWidget *widget = widgetOf(control);
    if (!widget)
        return refused(QStringLiteral("%1 is nothing that a user can press").arg(nameOf(control)));
    if (!widget->isVisible())
        return refused(QStringLiteral("expected %1 visible, it is not").arg(nameOf(control)));
    if (!widget->isEnabled())
        return refused(QStringLiteral("expected %1 enabled, it is not").arg(nameOf(control)));
    return blocked(*widget).value_or(ActionResult());
}

ActionResult focus(QObject &control)
{
    if (ActionResult result = usable(control); !result.done)
        return result;
    QWidget &widget = *widgetOf(control);
    activateWindowOf(widget);
    QWidget *target = widget.focusProxy() ? widget.focusProxy() : &widget;
    if (target->focusPolicy() == Qt::NoFocus)
        return refused(QStringLiteral("%1 takes no focus").arg(nameOf(control)));
    target->setFocus(Qt::TabFocusReason);
    const QWidget *focused = QApplication::focusWidget();
    if (!focused || (focused != target && !widget.isAncestorOf(focused))) {
        return refused(QStringLiteral("expected the focus on %1, it is on %2")
                           .arg(nameOf(control), focused ? nameOf(*focused) : QStringLiteral("nothing")));
    }
    return {};
}

ActionResult setValue(QObject &control, const QString &value)
{
    const ActionResult result = usable(control);
    return result.done ? setUsable(*widgetOf(control), value) : result;
}

ActionResult click(QObject &control)
{
    if (ActionResult result = usable(control); !result.done)
        return result;
    if (auto *drawn = qobject_cast<DrawnControl *>(&control)) {
        drawn->reveal();
        clickAt(*drawn->surface(), drawn->area().center());
        return {};
    }
    QWidget &widget = *widgetOf(control);
    if (auto *colour = qobject_cast<ColourSelection *>(&widget))
        return click(*colour->changeButton());
    if (qobject_cast<SpinButton *>(&widget))
        return refused(QStringLiteral("%1 has two arrows: set its value").arg(nameOf(control)));
    const auto *button = qobject_cast<QAbstractButton *>(&widget);
    auto *area = qobject_cast<QAbstractScrollArea *>(&widget);
    QWidget &target = area ? *area->viewport() : widget;
    clickAt(target, button ? clickPoint(*button) : target.rect().center());
    return {};
}

ActionResult pick(QObject &control, const QString &row, std::optional<bool> selected)
{
    const ActionResult result = usable(control);
    return result.done ? pickRow(*widgetOf(control), row, selected, false) : result;
}

ActionResult scroll(QObject &control, const QString &value)
{
    if (ActionResult result = usable(control); !result.done)
        return result;
    auto *bar = qobject_cast<QAbstractSlider *>(&control);
    bool isNumber = false;
    const int wanted = value.toInt(&isNumber);
    if (!bar || !isNumber)
        return refused(QStringLiteral("expected a scroll bar and a number, got %1 and %2").arg(nameOf(control), value));
    if (wanted < bar->minimum() || wanted > bar->maximum()) {
        return refused(QStringLiteral("expected a value from %1 to %2, got %3")
                           .arg(bar->minimum())
                           .arg(bar->maximum())
                           .arg(value));
    }
    activateWindowOf(*bar);
    bar->setSliderDown(true); // what a drag of the slider does
    bar->setSliderPosition(wanted);
    bar->setSliderDown(false);
    return {};
}
} // namespace drive
