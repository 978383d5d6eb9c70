#include "widgets/screenPointer.h"

#include <QCursor>
#include <QGuiApplication>

ScreenPointer::~ScreenPointer()
{
    setMousePointer(0);
}

void ScreenPointer::setMousePointer(int pointer)
{
    if (pointer == m_pointer)
        return;
    if (m_pointer != 0)
        QGuiApplication::restoreOverrideCursor();
    m_pointer = pointer;
    if (pointer != 0)
        QGuiApplication::setOverrideCursor(pointer == 11 ? Qt::WaitCursor : Qt::BusyCursor);
}
