#pragma once

#include "controlAdapter.h"

#include <QPoint>
#include <Qt>

class QWidget;

/// The mouse and the keyboard of the scripted user.
namespace drive
{
ActionResult refused(const QString &reason);
QString nameOf(const QObject &control);

/// Makes the control's window the active one, as a click on it does.
void activateWindowOf(QWidget &control);
/// Presses and releases the left button at a point of the widget, in its coordinates.
void clickAt(QWidget &widget, const QPoint &point, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void dblclickAt(QWidget &widget, const QPoint &point);
/// Presses a key in the widget that has the focus; in `control`, where none has.
void pressKey(QWidget &control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Types a text, one key press a character.
void typeText(QWidget &control, const QString &text);
/// Enters a text in one go, as an input method commits it: breaks and tabs arrive as they stand.
void commitText(QWidget &control, const QString &text);
} // namespace drive
