#include "services/yielder.h"

#include <QCoreApplication>

namespace
{
constexpr qint64 MillisecondsBetweenTurns = 4;
}

void EventYielder::beginPass()
{
    m_sinceTurn.start();
}

void EventYielder::yield()
{
    if (m_sinceTurn.isValid() && m_sinceTurn.elapsed() < MillisecondsBetweenTurns)
        return;
    QCoreApplication::processEvents();
    m_sinceTurn.start();
}

void EventYielder::waitForEvents()
{
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}
