#include "services/doEvents.h"

#include <QCoreApplication>

void DoEvents()
{
    QCoreApplication::processEvents();
}
