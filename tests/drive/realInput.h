#pragma once

#include "drive/chord.h"

#include <QPoint>
#include <functional>

class QWidget;

namespace drive
{
/// The mouse and the keyboard of an X display, moved as the hardware moves them: what they do goes through the window
/// manager and the toolkit as it does for a user. It is there where a script is played on a display of its own, which
/// the variable TAGWRIGHTER_DRIVE_REAL_INPUT tells; everywhere else, events are made up.
class RealInput
{
public:
    /// Nothing without such a display.
    static RealInput *onThisDisplay();

    /// `at` is in the widget's logical pixels. What the display does of it has come in when these return.
    void move(const QWidget &widget, QPoint at);
    void press(Qt::MouseButton button);
    void release(Qt::MouseButton button);
    /// Runs an act while the keys of the modifiers are down.
    void withKeys(Qt::KeyboardModifiers modifiers, const std::function<void()> &act);
    /// False if no key of the display's keyboard has the sign.
    bool pressKey(const Chord &chord);

private:
    RealInput() = default;
    bool connect();
    bool stroke(unsigned long sign, bool down);
    void settle();

    struct Functions;
    const Functions *m_functions = nullptr;
    void *m_display = nullptr;
};
} // namespace drive
