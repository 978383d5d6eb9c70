#include "unit/support/accessibleWalk.h"

#include "unit/support/spokenNames.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QButtonGroup>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTest>

#include <algorithm>

namespace
{
constexpr int LongestRound = 400;

QString nameOf(const QWidget &widget)
{
    return widget.objectName() + u' ' + QLatin1String(widget.metaObject()->className());
}

/// Whether somebody has to be told what it is: what is used, and what is looked at.
bool wantsName(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::List:
    case QAccessible::Tree:
    case QAccessible::Table:
    case QAccessible::PageTabList:
    case QAccessible::PageTab:
    case QAccessible::ToolBar:
    case QAccessible::Graphic:
    case QAccessible::Canvas:
    case QAccessible::Grouping:
    case QAccessible::Dialog:
    case QAccessible::Window:
    case QAccessible::Link:
        return true;
    default:
        return false;
    }
}

/// Whether it is a part of a control that speaks for it: the field of a combo, the view in a list.
bool isPart(const QWidget &widget)
{
    const QString name = widget.objectName();
    return name.startsWith(QLatin1String("qt_")) || widget.focusProxy() || widget.inherits("QScrollBar") ||
           widget.inherits("QSizeGrip") || widget.inherits("QHeaderView") || widget.inherits("QTableCornerButton") ||
           (widget.parentWidget() && widget.parentWidget()->inherits("QComboBox")) ||
           (widget.parentWidget() && widget.parentWidget()->inherits("QAbstractSpinBox")) ||
           (widget.parentWidget() && widget.parentWidget()->inherits("QTabBar")) ||
           (name.isEmpty() && widget.inherits("QScrollArea"));
}

void lookAt(QWidget &widget, QStringList &missing)
{
    if (isPart(widget))
        return;
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&widget);
    if (!told || !told->isValid()) {
        missing.append(nameOf(widget) + QStringLiteral(": nothing is told"));
        return;
    }
    const QAccessible::Role role = told->role();
    const bool used = (widget.focusPolicy() & Qt::TabFocus) != 0;
    const QString name = told->text(QAccessible::Name);
    if (used && (role == QAccessible::NoRole || role == QAccessible::Client))
        missing.append(nameOf(widget) + QStringLiteral(": no role"));
    if ((wantsName(role) || used) && name.trimmed().isEmpty())
        missing.append(nameOf(widget) + QStringLiteral(": no name"));
    if (role == QAccessible::List || role == QAccessible::Tree || role == QAccessible::Table)
        return; // its rows are texts
    if (role == QAccessible::PageTabList)
        for (int tab = 0; tab < told->childCount(); ++tab)
            if (told->child(tab)->text(QAccessible::Name).isEmpty() && !told->child(tab)->state().invisible)
                missing.append(nameOf(widget) + QStringLiteral(": no name of a tab"));
}

bool isSetOption(const QWidget &widget)
{
    const auto *option = qobject_cast<const QRadioButton *>(&widget);
    if (!option || option->isChecked())
        return true;
    QList<QAbstractButton *> others;
    if (option->group())
        others = option->group()->buttons();
    else
        others = option->parentWidget()->findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly);
    // Where none is set, Tab leads to one of them; which is the toolkit's choice.
    return std::none_of(others.begin(), others.end(), [&](const QAbstractButton *other) {
        return qobject_cast<const QRadioButton *>(other) && other->isChecked() && other->isVisible() &&
               other->isEnabled();
    });
}

QRect placeOf(const QWidget &widget, const QWidget &window)
{
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

bool overlap(int fromA, int toA, int fromB, int toB)
{
    return fromA < toB && fromB < toA;
}
} // namespace

QStringList untold(QWidget &window)
{
    QStringList missing;
    lookAt(window, missing);
    for (QWidget *widget : window.findChildren<QWidget *>())
        if (widget->isVisibleTo(&window) && widget->window() == &window)
            lookAt(*widget, missing);
    return missing;
}

QList<QWidget *> keyboardStops(const QWidget &window)
{
    QList<QWidget *> stops;
    for (QWidget *widget : window.findChildren<QWidget *>())
        if (takesTheKeyboard(*widget, window) && widget->isEnabled() && isSetOption(*widget))
            stops.append(widget);
    return stops;
}

QList<QWidget *> tabRound(QWidget &window)
{
    QList<QWidget *> round;
    while (round.size() < LongestRound) {
        QWidget *focus = QApplication::focusWidget();
        if (!focus || focus->window() != &window || !focus->isVisible() || !focus->isEnabled()) {
            round.append(nullptr);
            return round;
        }
        if (round.contains(focus))
            return round;
        round.append(focus);
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    return round;
}

QStringList stepsBackwards(const QList<QWidget *> &round, const QWidget &window)
{
    QStringList backwards;
    bool wrapped = false;
    for (qsizetype i = 0; i + 1 < round.size(); ++i) {
        const QWidget *from = round[i];
        const QWidget *to = round[i + 1];
        if (!from || !to)
            continue;
        const QRect a = placeOf(*from, window);
        const QRect b = placeOf(*to, window);
        const bool up = b.bottom() < a.top() && overlap(a.left(), a.right(), b.left(), b.right());
        const bool left = b.right() < a.left() && overlap(a.top(), a.bottom(), b.top(), b.bottom());
        if (!up && !left)
            continue;
        if (!wrapped && to == window.nextInFocusChain()) // the round began in its middle
            wrapped = true;
        else
            backwards.append(nameOf(*from) + QStringLiteral(" -> ") + nameOf(*to));
    }
    return backwards;
}
