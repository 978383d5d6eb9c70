#include "storage/fileWatch.h"

#include <QFileInfo>

namespace
{
constexpr int MomentMilliseconds = 150;
} // namespace

FileWatch::FileWatch()
{
    m_moment.setSingleShot(true);
    m_moment.setInterval(MomentMilliseconds);
    const auto happened = [this] { m_moment.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, happened);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, happened);
    connect(&m_moment, &QTimer::timeout, this, [this] {
        follow(); // a file that was replaced is another one now
        if (m_changed)
            m_changed();
    });
}

void FileWatch::watch(const QStringList &paths, std::function<void()> changed)
{
    m_paths = paths;
    m_changed = std::move(changed);
    follow();
}

void FileWatch::follow()
{
    QStringList wanted;
    for (const QString &path : std::as_const(m_paths))
        wanted << path << QFileInfo(path).path(); // the folder tells of files that come and go
    wanted.removeDuplicates();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList over;
    for (const QString &path : watched)
        if (!wanted.contains(path))
            over << path;
    if (!over.isEmpty())
        m_watcher.removePaths(over);
    for (const QString &path : std::as_const(wanted))
        if (!watched.contains(path) && QFileInfo::exists(path))
            m_watcher.addPath(path);
}
