#pragma once

/// The mouse pointer over all of the program's windows, by its code: 0 each control's own, 11 hourglass, 13 arrow with
/// hourglass. Setting it again replaces it; there is no stack of pointers to unwind.
class ScreenPointer
{
public:
    ScreenPointer() = default;
    ScreenPointer(const ScreenPointer &) = delete;
    ScreenPointer &operator=(const ScreenPointer &) = delete;
    ~ScreenPointer();

    int MousePointer() const { return m_pointer; }
    void setMousePointer(int pointer);

private:
    int m_pointer = 0;
};
