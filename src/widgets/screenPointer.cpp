#include "widgets/screenPointer.h"

#include <QCursor>
#include <QGuiApplication>

ScreenPointer::~ScreenPointer()
{
    setMousePointer(PointerShape::Default);
}

void ScreenPointer::setMousePointer(PointerShape pointer)
{
    if (pointer == m_pointer)
        return;
    if (m_pointer != PointerShape::Default)
        QGuiApplication::restoreOverrideCursor();
    m_pointer = pointer;
    if (pointer != PointerShape::Default)
        QGuiApplication::setOverrideCursor(pointer == PointerShape::Hourglass ? Qt::WaitCursor : Qt::BusyCursor);
}
