#include "drive/world.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>

namespace drive
{
namespace
{
void setVariable(const char *name, const QString &value)
{
    qputenv(name, QFile::encodeName(value));
}

/// Lets its owner list, enter and change the folder and every folder in it.
void openFolders(const QString &path)
{
    constexpr auto owner = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    QFile::setPermissions(path, owner);
    const auto folders = QDir(path).entryInfoList(QDir::Dirs | QDir::NoSymLinks | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders)
        openFolders(folder.filePath());
}
} // namespace

std::optional<World> World::make()
{
    QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/tagwrighter-drive-XXXXXX"));
    if (!folder.isValid())
        return std::nullopt;
    folder.setAutoRemove(false);
    World world;
    world.m_root = QFileInfo(folder.path()).canonicalFilePath();
    for (const QString &path : {world.app(), world.site(), world.home()})
        QDir().mkpath(path);
    return world;
}

World World::at(const QString &root)
{
    World world;
    world.m_root = root;
    return world;
}

QString World::app() const
{
    return m_root + QStringLiteral("/tagwrighter");
}

QString World::site() const
{
    return m_root + QStringLiteral("/site");
}

QString World::home() const
{
    return m_root + QStringLiteral("/home");
}

QString World::state() const
{
    return stateHome() + QStringLiteral("/tagwrighter");
}

QString World::stateHome() const
{
    return home() + QStringLiteral("/.local/state");
}

QString World::carriedOverFile() const
{
    return m_root + QStringLiteral("/.carried-over");
}

void World::setEnvironment() const
{
    setVariable("HOME", home());
    setVariable("XDG_CONFIG_HOME", home() + QStringLiteral("/.config"));
    setVariable("XDG_DATA_HOME", home() + QStringLiteral("/.local/share"));
    setVariable("XDG_STATE_HOME", stateHome());
    const QString running = home() + QStringLiteral("/.run");
    QDir().mkpath(running);
    QFile::setPermissions(running, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    setVariable("XDG_RUNTIME_DIR", running);
    setVariable("XDG_CACHE_HOME", home() + QStringLiteral("/.cache"));
    // A copy of the program that is installed on this machine must not show in the script's world.
    setVariable("XDG_DATA_DIRS", home() + QStringLiteral("/.system/share"));
    setVariable("XDG_CONFIG_DIRS", home() + QStringLiteral("/.system/etc"));
    for (const char *name : {"http_proxy", "https_proxy", "ftp_proxy", "all_proxy", "no_proxy", "HTTP_PROXY",
                             "HTTPS_PROXY", "FTP_PROXY", "ALL_PROXY", "NO_PROXY"})
        qunsetenv(name);
    qputenv("TZ", "UTC");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("LANG", "C.UTF-8");
    qputenv("LANGUAGE", "en");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void World::seedProgramFolder(const QString &installedData) const
{
    // A portable copy has everything in one folder that can be written. The desktop's own copying waits for the disk at
    // each of some six hundred files, which no script has any use for.
    namespace fs = std::filesystem;
    const fs::path target = app().toStdString();
    fs::copy(installedData.toStdString(), target, fs::copy_options::recursive | fs::copy_options::skip_existing);
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(target))
        fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add);
}

void World::remove() const
{
    removeAll(m_root);
}

QString World::expanded(QString text) const
{
    return text.replace(QStringLiteral("%APP%"), app())
        .replace(QStringLiteral("%SITE%"), site())
        .replace(QStringLiteral("%HOME%"), home())
        .replace(QStringLiteral("%STATE%"), state());
}

bool World::holds(const QString &path) const
{
    const QString clean = QDir::cleanPath(path);
    const QString folder = QFileInfo(QFileInfo(clean).path()).canonicalFilePath();
    const auto inside = [this](const QString &place) { return place == m_root || place.startsWith(m_root + u'/'); };
    return inside(clean) && (folder.isEmpty() || inside(folder));
}

bool removeAll(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir() && !info.isSymLink()) {
        openFolders(path);
        return QDir(path).removeRecursively();
    }
    return !(info.exists() || info.isSymLink()) || QFile::remove(path);
}
} // namespace drive
