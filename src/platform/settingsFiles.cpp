#include "platform/settingsFiles.h"

#include "platform/settingsText.h"
#include "platform/wholeFile.h"

#include <QFile>
#include <QUrl>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
using Key = std::pair<QString, QString>;

// An application name as the name of a file, whatever characters it has.
QString fileNameOf(const QString &app)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(app, QByteArray(), QByteArrayLiteral(".~")));
}

// The lock that writers of one file share. A writer that was stopped in the middle holds it for ever: after half a
// second the write goes on without, for a lost key is less than a program that hangs.
class WriteLock
{
public:
    explicit WriteLock(const QByteArray &path)
        : descriptor(::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        for (int wait = 0; descriptor >= 0 && wait < 500; ++wait) {
            if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
                return;
            ::usleep(1000);
        }
    }
    WriteLock(const WriteLock &) = delete;
    WriteLock &operator=(const WriteLock &) = delete;
    ~WriteLock()
    {
        if (descriptor >= 0)
            ::close(descriptor);
    }

private:
    int descriptor;
};

bool isSameState(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
           a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

QByteArray contentsOf(int descriptor)
{
    QFile file;
    return file.open(descriptor, QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class SettingsFiles::File
{
public:
    explicit File(const QString &pathOfFile)
        : path(QFile::encodeName(pathOfFile + QStringLiteral(".settings"))),
          lockPath(QFile::encodeName(pathOfFile + QStringLiteral(".lock")))
    {
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;
    ~File()
    {
        refresh();
        if (written && known >= 0)
            ::fsync(known);
        forget();
    }

    std::optional<QString> value(const Key &key)
    {
        const auto changed = pending.find(key);
        if (changed != pending.end())
            return changed->second;
        refresh();
        const auto found = stored.constFind(key);
        return found == stored.constEnd() ? std::nullopt : std::optional(*found);
    }

    void change(const Key &key, const std::optional<QString> &newValue)
    {
        if (value(key) == newValue && pending.empty())
            return;
        pending[key] = newValue;
        std::error_code ignored;
        std::filesystem::create_directories(systemFolderOf(path).constData(), ignored);
        const WriteLock lock(lockPath);
        refresh();
        write();
    }

private:
    void write()
    {
        SettingsMap merged = stored;
        for (const auto &[key, newValue] : pending) {
            if (newValue)
                merged.insert(key, *newValue);
            else
                merged.remove(key);
        }
        if (writeWholeFile(path, settingsText(merged), Durability::Lazy, 0600) != 0)
            return;
        pending.clear();
        written = true;
        refresh();
    }

    // Reads the file if it is not the one read last. That one is kept open meanwhile, so that its number cannot pass to
    // another file and make that look the same.
    void refresh()
    {
        struct stat status = {};
        const bool there = ::stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode);
        if (there && known >= 0 && isSameState(status, knownStatus))
            return;
        forget();
        if (there)
            read();
    }

    void read()
    {
        known = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (known < 0 || ::fstat(known, &knownStatus) != 0 || !S_ISREG(knownStatus.st_mode))
            return forget();
        stored = parseSettings(contentsOf(known));
    }

    void forget()
    {
        if (known >= 0)
            ::close(known);
        known = -1;
        stored.clear();
    }

    QByteArray path;
    QByteArray lockPath;
    int known = -1; // the file that `stored` was read from
    struct stat knownStatus = {};
    bool written = false;
    SettingsMap stored;
    std::map<Key, std::optional<QString>> pending; // changed, and not in the file yet
};

SettingsFiles::SettingsFiles(const QString &folderOfFiles) : folder(folderOfFiles) {}

SettingsFiles::~SettingsFiles() = default;

SettingsFiles::File &SettingsFiles::fileOf(const QString &app)
{
    std::unique_ptr<File> &file = files[app];
    if (!file)
        file = std::make_unique<File>(folder + QLatin1Char('/') + fileNameOf(app));
    return *file;
}

QString SettingsFiles::GetSetting(const QString &app, const QString &section, const QString &key,
                                  const QString &fallback)
{
    return fileOf(app).value({section, key}).value_or(fallback);
}

void SettingsFiles::SaveSetting(const QString &app, const QString &section, const QString &key, const QString &value)
{
    fileOf(app).change({section, key}, value);
}

void SettingsFiles::DeleteSetting(const QString &app, const QString &section, const QString &key)
{
    fileOf(app).change({section, key}, std::nullopt);
}
