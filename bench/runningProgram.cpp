#include "runningProgram.h"

#include "services/settings.h"
#include "services/settingsStore.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace
{
std::unique_ptr<DesktopServices> servicesAt(const QString &home, CommonDialogs &dialogs)
{
    qputenv("XDG_CONFIG_HOME", home.toUtf8());
    qputenv("XDG_DATA_HOME", home.toUtf8());
    return std::make_unique<DesktopServices>(&dialogs);
}
} // namespace

RunningProgram::RunningProgram(const std::function<void(const QString &)> &prepare)
    : m_services(servicesAt(m_home.path(), m_dialogs)), m_program(m_services->services())
{
    if (prepare)
        prepare(m_services->services().appPath);
    settings::write(m_services->services().settings, settings::WelcomeScreen, QStringLiteral("false"));
    m_program.Main({});
    while (!document())
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    settle();
}

QWidget *RunningProgram::surface()
{
    return dynamic_cast<QWidget *>(&document()->txtEdit());
}

void RunningProgram::press(Qt::Key key, const QString &text)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(surface(), &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(surface(), &up);
    settle();
}

void RunningProgram::settle()
{
    QApplication::processEvents();
}
