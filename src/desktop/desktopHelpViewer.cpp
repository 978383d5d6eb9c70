#include "desktop/desktopHelpViewer.h"

#include "help/helpWindow.h"

DesktopHelpViewer::DesktopHelpViewer(const QStringList &folders, FileSystem &files, Launcher &launcher)
    : m_folders(folders), m_files(files), m_launcher(launcher)
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
        m_window = std::make_unique<HelpWindow>(m_folders, m_files, m_launcher);
    return *m_window;
}
