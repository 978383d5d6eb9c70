#pragma once

#include "common/colour.h"

#include <QList>
#include <QString>
#include <optional>

class QObject;

/// Reads controls and acts on them as their user does: every act goes through real mouse and key events, so that the
/// form's handlers run as they do for a user. Rows, tabs, tree nodes and cells are named by their 0-based number, their
/// key or their text, in this order.
namespace drive
{
/// What came of an act. When it was not done, `reason` tells what was expected and what was seen.
struct ActionResult {
    bool done = true;
    QString reason;
};

enum class NodeAction { Click, DoubleClick, Enter };

/// A property as a user sees it; nothing if the control has no such property, or no such row, node or tab. Booleans
/// read "True" and "False"; lengths are logical pixels; colours are decimal, or "window", "highlight", "button-face"
/// and "window-text" for the theme's. Works for controls, timers and menu entries (QAction).
std::optional<QString> readProperty(QObject &control, const QString &property);
/// A colour as scripts name it.
QString colourName(ColourValue colour);
/// The properties that readProperty knows of for this control, without those that take an index.
QList<QString> propertyNames(QObject &control);

/// Gives the focus to the control and enters the value: a text is replaced (the caret then stands behind it), a list's
/// entry picked, a check box or option set to "1" or "0", a calendar to a date as 2026-04-05, a colour picker to
/// #RRGGBB.
ActionResult setValue(QObject &control, const QString &value);
/// Clicks a button, check box, option, label or picture in its middle; a colour picker at its button.
ActionResult click(QObject &control);
/// Moves the focus to the control as the Tab key does.
ActionResult focus(QObject &control);
/// Selects a row of a list, combo, tab strip or grid. With `selected`, takes the row into, or out of, a multiple
/// selection and leaves the other rows as they are.
ActionResult pick(QObject &control, const QString &row, std::optional<bool> selected = {});
ActionResult dblpick(QObject &control, const QString &row);
/// Sets the tick of a check list's row, by a click on its box if it differs.
ActionResult tick(QObject &control, const QString &row, bool ticked);
/// Acts on a tree's node, given by the texts on its way ("A>B>C", "\>" being a literal ">") or by its number ("#3").
ActionResult node(QObject &control, const QString &path, NodeAction action);
/// Moves a scroll bar to the value.
ActionResult scroll(QObject &control, const QString &value);

/// Whether a user can act on it: on show, enabled, and so are all that it stands in. The reason says which is not.
ActionResult usable(QObject &control);
} // namespace drive
