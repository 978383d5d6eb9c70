#include "runningProgram.h"

#include "platform/settingsStore.h"
#include "shell/settings.h"

#include <QApplication>
#include <QWidget>

namespace
{
std::unique_ptr<DesktopServices> servicesAt(const QString &home)
{
    qputenv("XDG_CONFIG_HOME", home.toUtf8());
    qputenv("XDG_DATA_HOME", home.toUtf8());
    return std::make_unique<DesktopServices>();
}
} // namespace

RunningProgram::RunningProgram() : m_services(servicesAt(m_home.path())), m_program(m_services->services())
{
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

void RunningProgram::settle()
{
    QApplication::processEvents();
}
