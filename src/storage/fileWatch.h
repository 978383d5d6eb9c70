#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>

/// Tells when something happens to one of a list of files, once for all that happens within a moment: other programs
/// save in several steps, and some by renaming a new file over the old one.
class FileWatch final : public QObject
{
public:
    FileWatch();

    /// From now on watches these files and no others. `changed` runs from the event loop.
    void watch(const QStringList &paths, std::function<void()> changed);

private:
    void follow();

    QFileSystemWatcher m_watcher;
    QTimer m_moment;
    QStringList m_paths;
    std::function<void()> m_changed;
};
