#include "forms/eventModalLoop.h"

#include "forms/form.h"

#include <QEventLoop>

void EventModalLoop::run(Form &form)
{
    if (!form.Visible())
        return;
    QEventLoop loop;
    QObject::connect(&form, &Form::unloaded, &loop, &QEventLoop::quit);
    QObject::connect(&form, &Form::hidden, &loop, &QEventLoop::quit);
    loop.exec();
}
