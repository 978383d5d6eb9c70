#include "platform/doEvents.h"

#include <QCoreApplication>

void DoEvents()
{
    QCoreApplication::processEvents();
}
