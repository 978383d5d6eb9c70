#pragma once

#include "drive/chord.h"

#include <QPoint>
#include <QString>
#include <optional>

class Form;
class QMimeData;
class QObject;
class QWidget;

/// The user's hands: everything here reaches the program as events of the desktop do, shortcuts, focus and modal boxes
/// included.
namespace drive
{
class Stage;
struct Target;

/// Whether a modal box keeps input from the widget's window.
bool isBlocked(const QWidget &widget);
/// The script fails unless the form takes input: it is on show, no modal box lies over it, and the main window, where
/// the form is that or one of its documents, is enabled.
void requireInput(Stage &stage, Form &form, const QString &what);
/// The same for a control, which is to be enabled and on show too. The form's window is active afterwards.
QObject &readyControl(Stage &stage, const Target &target);

/// Whether the form's window takes input: no modal box lies over it, and the main window is enabled if it stands in it.
bool takesInput(Stage &stage, Form &form);
/// Makes the form's window the active one, as a click on it does. The handlers of what is left have run by then.
void activateWindowOf(Form &form);
/// The same; a document comes to the front of the others, too.
void activate(Stage &stage, Form &form);

/// Presses and releases a key, modifiers first, in the window that has the keyboard.
void pressKey(Stage &stage, const Chord &chord);
void typeText(Stage &stage, const QString &text);

enum class MouseAct { Press, Release, Move, Click, DoubleClick, RightClick };
/// `at` is in the widget's own coordinates, in logical pixels.
void moveMouse(QWidget &target, MouseAct act, QPoint at, Qt::KeyboardModifiers modifiers);
/// Whether a press of it has not been followed by a release yet.
bool isMouseHeld();

/// Drags data onto a place of the widget, or its middle, and drops it, unless the program refuses it.
void dropOn(QWidget &widget, const QMimeData &data, std::optional<QPoint> place = {});
} // namespace drive
