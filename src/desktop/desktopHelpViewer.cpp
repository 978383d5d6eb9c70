#include "desktop/desktopHelpViewer.h"

#include "help/helpWindow.h"

DesktopHelpViewer::DesktopHelpViewer(const QString &folder, FileSystem &files, Launcher &launcher)
    : m_folder(folder), m_files(files), m_launcher(launcher)
{
}

DesktopHelpViewer::~DesktopHelpViewer() = default;

void DesktopHelpViewer::show(const QString &topic)
{
    opened().showTopic(topic);
}

void DesktopHelpViewer::contents()
{
    opened().showTab(HelpNavigator::Contents);
}

void DesktopHelpViewer::index()
{
    opened().showTab(HelpNavigator::Index);
}

HelpWindow &DesktopHelpViewer::opened()
{
    if (!m_window)
        m_window = std::make_unique<HelpWindow>(m_folder, m_files, m_launcher);
    return *m_window;
}
