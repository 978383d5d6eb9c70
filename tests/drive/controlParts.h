#pragma once

#include <QString>

class QObject;
class QWidget;

namespace drive
{
class Stage;

/// Whether a target is there and on show: a form, a control, a menu entry, a toolbar button, or a row, tab or node of a
/// control, named in brackets behind it ("frmMdi.tabDocSel(index.htm)") by its 0-based number, its key or its text, a
/// node by the texts on its way.
bool isOnShow(Stage &stage, const QString &name);

/// Turns the dialog to the page on which the control lies, by a click on its tab, wherever such pages are on its way.
void turnToPageOf(QObject &control);
/// Scrolls all that holds the widget until it is in view.
void bringIntoView(QWidget &widget);
} // namespace drive
