#pragma once

/// The shapes of the mouse pointer, with the codes by which scripts of users know them.
enum class PointerShape {
    Default = 0, ///< each control's own
    Hourglass = 11,
    ArrowHourglass = 13,
};

/// The mouse pointer over all of the program's windows. Setting it again replaces it; there is no stack of pointers to
/// unwind.
class ScreenPointer
{
public:
    ScreenPointer() = default;
    ScreenPointer(const ScreenPointer &) = delete;
    ScreenPointer &operator=(const ScreenPointer &) = delete;
    ~ScreenPointer();

    PointerShape MousePointer() const { return m_pointer; }
    void setMousePointer(PointerShape pointer);

private:
    PointerShape m_pointer = PointerShape::Default;
};
