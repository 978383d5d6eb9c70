#include "desktop/boxOwner.h"

#include "help/helpWindow.h"

#include <QApplication>

QWidget *boxOwner()
{
    QWidget *active = QApplication::activeWindow();
    if (!qobject_cast<HelpWindow *>(active))
        return active;
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && qobject_cast<QMainWindow *>(window) && window != active)
            return window;
    return nullptr;
}
