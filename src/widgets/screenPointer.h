#pragma once

#include <QTimer>

/// The shapes of the mouse pointer, with the codes by which scripts of users know them.
enum class PointerShape {
    Default = 0, ///< each control's own
    Hourglass = 11,
    ArrowHourglass = 13,
};

/// The mouse pointer over all of the program's windows. Setting it again replaces it; there is no stack of pointers to
/// unwind.
///
/// The desktop draws such a pointer from dozens of pictures, and reading them takes longer than most waits. So the
/// arrow with the hourglass, beside which the program goes on with events, comes after a while only, and none comes as
/// long as there is no window but a splash screen's.
class ScreenPointer
{
public:
    ScreenPointer();
    ScreenPointer(const ScreenPointer &) = delete;
    ScreenPointer &operator=(const ScreenPointer &) = delete;
    ~ScreenPointer();

    /// The shape that was set, on the screen already or not.
    PointerShape MousePointer() const { return m_pointer; }
    void setMousePointer(PointerShape pointer);

private:
    void show();

    PointerShape m_pointer = PointerShape::Default;
    bool m_shown = false;
    QTimer m_soon;
};
