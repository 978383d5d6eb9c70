#include "storage/settingsFiles.h"

#include "storage/setAside.h"
#include "storage/settingsText.h"
#include "storage/wholeFile.h"

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

// A thousand times what the program ever writes. Reading more would cost seconds, and whatever it is, it is not ours.
constexpr qint64 largestSettings = qint64(4) << 20;

bool isSameState(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
           a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

// How many lines of a file may have been overtaken by later ones before it is written anew.
constexpr qsizetype mostLinesTooMany = 200;

// Adds lines to the file as one step: after a failure it is as it was. This is a hundred times as fast as replacing the
// file, and a power cut costs no more than the lines that were added last.
bool appendToFile(const QByteArray &path, QByteArray lines)
{
    const int descriptor = ::open(path.constData(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, 0600);
    struct stat status = {};
    bool done = false;
    if (descriptor >= 0 && ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        char last = '\n'; // an editor may have left the last line without its break
        if (status.st_size > 0 && ::pread(descriptor, &last, 1, status.st_size - 1) == 1 && last != '\n')
            lines.prepend('\n');
        done = ::write(descriptor, lines.constData(), static_cast<size_t>(lines.size())) == lines.size();
        if (!done)
            (void)!::ftruncate(descriptor, status.st_size);
    }
    if (descriptor >= 0)
        ::close(descriptor);
    return done;
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
    File(const QString &pathOfFile, QStringList &asideFiles)
        : setAsideFiles(asideFiles),
          path(QFile::encodeName(pathOfFile + QStringLiteral(".settings"))),
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
        const QByteArray lines = pendingLines();
        if (appendToFile(path, lines))
            takeOverPending(lines.size());
    }

private:
    QByteArray pendingLines() const
    {
        QByteArray lines;
        for (const auto &[key, newValue] : pending)
            lines += settingLine(key, newValue);
        return lines;
    }

    // What was added stands in the file now. Unless somebody else came between, it need not be read again for that.
    void takeOverPending(qint64 added)
    {
        struct stat status = {};
        const bool grown = known >= 0 && ::fstat(known, &status) == 0 && status.st_size == knownStatus.st_size + added;
        if (grown) {
            knownStatus = status;
            for (const auto &[key, newValue] : pending)
                apply(key, newValue);
        }
        pending.clear();
        written = true;
        refresh();
        if (lineCount > 2 * stored.size() + mostLinesTooMany)
            (void)writeWholeFile(path, settingsText(stored), Durability::Flushed, 0600);
    }

    void apply(const Key &key, const std::optional<QString> &newValue)
    {
        ++lineCount;
        if (newValue)
            stored.insert(key, *newValue);
        else
            stored.remove(key);
    }

    // Reads the file if it is not in the state in which it was read last. It is kept open meanwhile, so that its number
    // cannot pass to another file and make that look the same.
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
        if (knownStatus.st_size > largestSettings) {
            forget();
            if (const std::optional<QString> aside = setAside(QFile::decodeName(path)))
                setAsideFiles += *aside;
            return;
        }
        const QByteArray bytes = contentsOf(known);
        stored = parseSettings(bytes);
        lineCount = bytes.count('\n');
    }

    void forget()
    {
        if (known >= 0)
            ::close(known);
        known = -1;
        stored.clear();
    }

    QStringList &setAsideFiles;
    QByteArray path;
    QByteArray lockPath;
    int known = -1; // the file that `stored` was read from
    struct stat knownStatus = {};
    bool written = false;
    qsizetype lineCount = 0;
    SettingsMap stored;
    std::map<Key, std::optional<QString>> pending; // changed, and not in the file yet
};

SettingsFiles::SettingsFiles(const QString &folderOfFiles) : folder(folderOfFiles) {}

SettingsFiles::~SettingsFiles() = default;

SettingsFiles::File &SettingsFiles::fileOf(const QString &app)
{
    std::unique_ptr<File> &file = files[app];
    if (!file)
        file = std::make_unique<File>(folder + QLatin1Char('/') + fileNameOf(app), m_setAside);
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
