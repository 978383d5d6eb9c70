#pragma once

#include "services/helpViewer.h"

#include <QStringList>
#include <memory>

class FileSystem;
class HelpWindow;
class Launcher;

/// Shows the help in a window of its own, which is made when it is first asked for and goes with its owner.
class DesktopHelpViewer final : public HelpViewer
{
public:
    /// The help's files stand in the first of `folders` that has them. The services outlive the viewer.
    DesktopHelpViewer(const QStringList &folders, FileSystem &files, Launcher &launcher);
    ~DesktopHelpViewer() override;

    void show(const QString &topic) override;
    void contents() override;
    void index() override;

    /// The help's window; nothing before its first use.
    HelpWindow *window() const { return m_window.get(); }

private:
    HelpWindow &opened();

    QStringList m_folders;
    FileSystem &m_files;
    Launcher &m_launcher;
    std::unique_ptr<HelpWindow> m_window;
};
