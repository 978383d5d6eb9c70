#include "storage/localFileSystem.h"

#include "storage/fileWatch.h"
#include "storage/mountTable.h"
#include "storage/setAside.h"
#include "storage/wholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <new>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
// Text of this size is beyond what an edit surface counts; a bigger file is refused before the memory for it is asked
// for.
constexpr qint64 largestFile = qint64(1) << 30;

constexpr mode_t NewFile = 0666; ///< permissions of a file that was not there, less the process's mask

struct OpenFile {
    OpenFile() = default;
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;
    ~OpenFile()
    {
        if (descriptor >= 0)
            ::close(descriptor);
    }
    int descriptor = -1;
};

// The path as the system takes it. Nothing where no system path says the same: a NUL would cut it short.
std::optional<QByteArray> systemPath(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(0)))
        return std::nullopt;
    return QFile::encodeName(path);
}

std::optional<struct stat> statusOf(const QString &path)
{
    const std::optional<QByteArray> name = systemPath(path);
    struct stat status = {};
    if (!name || ::stat(name->constData(), &status) != 0)
        return std::nullopt;
    return status;
}

bool folderIsMissing(const QByteArray &path)
{
    struct stat status = {};
    return ::stat(systemFolderOf(path).constData(), &status) != 0;
}

FileError failure(int systemError, FileAction action, const QByteArray &path)
{
    return fileErrorOf(systemError, action, systemError == ENOENT && folderIsMissing(path));
}

FileError badName(FileAction action)
{
    return fileErrorOf(EINVAL, action);
}

// 0 or why what the status tells of is not to be read as a file.
int refusalOf(const struct stat &status, qint64 largest)
{
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    if (!S_ISREG(status.st_mode))
        return ENXIO;
    return status.st_size > largest ? ENOMEM : 0;
}

int openToRead(const QByteArray &path, OpenFile &file, qint64 &size, qint64 largest = largestFile)
{
    struct stat status = {};
    // Asked before the opening too, since merely opening a device can set something off.
    if (::stat(path.constData(), &status) != 0)
        return errno;
    if (const int refusal = refusalOf(status, largest))
        return refusal;
    file.descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (file.descriptor < 0 || ::fstat(file.descriptor, &status) != 0)
        return errno;
    size = status.st_size;
    return refusalOf(status, largest);
}

// Reads to the end, which may lie elsewhere than the size said: the file may grow meanwhile, and those of /proc tell 0.
int readToEnd(int descriptor, qint64 size, QByteArray &bytes)
{
    bytes.resize(size + 1);
    qsizetype used = 0;
    while (true) {
        if (used == bytes.size())
            bytes.resize(used * 2 + 4096);
        const ssize_t got = ::read(descriptor, bytes.data() + used, static_cast<size_t>(bytes.size() - used));
        if (got < 0 && errno != EINTR)
            return errno;
        if (got == 0)
            break;
        used += qMax<ssize_t>(got, 0);
        if (used > largestFile)
            return ENOMEM;
    }
    bytes.resize(used);
    return 0;
}

int readFile(const QByteArray &path, QByteArray &bytes)
{
    OpenFile file;
    qint64 size = 0;
    if (const int error = openToRead(path, file, size))
        return error;
    try {
        return readToEnd(file.descriptor, size, bytes);
    } catch (const std::bad_alloc &) {
        return ENOMEM;
    }
}

int readFilePart(const QByteArray &path, qint64 offset, qint64 length, QByteArray &bytes)
{
    OpenFile file;
    qint64 size = 0;
    if (const int error = openToRead(path, file, size, std::numeric_limits<qint64>::max()))
        return error;
    bytes.resize(std::clamp<qint64>(size - offset, 0, length));
    qsizetype used = 0;
    while (used < bytes.size()) {
        const ssize_t got =
            ::pread(file.descriptor, bytes.data() + used, static_cast<size_t>(bytes.size() - used), offset + used);
        if (got < 0 && errno != EINTR)
            return errno;
        if (got == 0)
            break;
        used += qMax<ssize_t>(got, 0);
    }
    bytes.resize(used);
    return 0;
}

bool isFolderEntry(const QByteArray &folder, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK)
        return entry.d_type == DT_DIR;
    struct stat status = {};
    const QByteArray path = folder + '/' + static_cast<const char *>(entry.d_name);
    return ::stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}
} // namespace

LocalFileSystem::LocalFileSystem(const QString &statePath)
{
    if (!statePath.isEmpty())
        m_notes.emplace(statePath);
    std::signal(SIGXFSZ, SIG_IGN);
}

FileContents LocalFileSystem::readAll(const QString &path)
{
    const std::optional<QByteArray> name = systemPath(path);
    if (!name)
        return {{}, badName(FileAction::Read)};
    FileContents contents;
    if (const int error = readFile(*name, contents.bytes))
        return {{}, failure(error, FileAction::Read, *name)};
    return contents;
}

std::optional<FileError> LocalFileSystem::checkReadable(const QString &path)
{
    const std::optional<QByteArray> name = systemPath(path);
    if (!name)
        return badName(FileAction::Read);
    OpenFile file;
    qint64 size = 0;
    if (const int error = openToRead(*name, file, size))
        return failure(error, FileAction::Read, *name);
    return std::nullopt;
}

std::optional<FileError> LocalFileSystem::write(const QString &path, const QByteArray &bytes,
                                                Durability durability) const
{
    const std::optional<QByteArray> name = systemPath(path);
    if (!name)
        return badName(FileAction::Write);
    if (const int error = writeWholeFile(*name, bytes, durability, NewFile, notes()))
        return failure(error, FileAction::Write, *name);
    return std::nullopt;
}

std::optional<FileError> LocalFileSystem::writeWhole(const QString &path, const QByteArray &bytes)
{
    return write(path, bytes, Durability::Flushed);
}

std::optional<FileError> LocalFileSystem::writeScratch(const QString &path, const QByteArray &bytes)
{
    return write(path, bytes, Durability::Lazy);
}

FileContents LocalFileSystem::readPart(const QString &path, qint64 offset, qint64 length)
{
    const std::optional<QByteArray> name = systemPath(path);
    if (!name)
        return {{}, badName(FileAction::Read)};
    FileContents contents;
    if (const int error = readFilePart(*name, offset, length, contents.bytes))
        return {{}, failure(error, FileAction::Read, *name)};
    return contents;
}

std::optional<FileError> LocalFileSystem::writeInPieces(const QString &path, const PieceSource &next)
{
    const std::optional<QByteArray> name = systemPath(path);
    if (!name)
        return badName(FileAction::Write);
    std::optional<FileError> ofSource;
    const auto piece = [&]() -> std::optional<QByteArray> {
        const FileContents contents = next();
        ofSource = contents.error;
        return ofSource ? std::nullopt : std::optional(contents.bytes);
    };
    const int error = writeWholeFile(*name, piece, Durability::Flushed, NewFile, notes());
    if (ofSource)
        return ofSource;
    return error == 0 ? std::nullopt : std::optional(failure(error, FileAction::Write, *name));
}

bool LocalFileSystem::isLink(const QString &path)
{
    const std::optional<QByteArray> name = systemPath(path);
    struct stat status = {};
    return name && ::lstat(name->constData(), &status) == 0 && S_ISLNK(status.st_mode);
}

bool LocalFileSystem::exists(const QString &path)
{
    const std::optional<struct stat> status = statusOf(path);
    return status && !S_ISDIR(status->st_mode);
}

bool LocalFileSystem::isFolder(const QString &path)
{
    const std::optional<struct stat> status = statusOf(path);
    return status && S_ISDIR(status->st_mode);
}

bool LocalFileSystem::isSameFile(const QString &a, const QString &b)
{
    if (a == b)
        return true;
    const std::optional<struct stat> first = statusOf(a);
    const std::optional<struct stat> second = statusOf(b);
    if (first && second)
        return first->st_dev == second->st_dev && first->st_ino == second->st_ino;
    return !first && !second && !a.isEmpty() && !b.isEmpty() && QDir::cleanPath(a) == QDir::cleanPath(b);
}

QStringList LocalFileSystem::volumes()
{
    // Read as it comes: a file of the kernel's tells no size.
    std::ifstream table("/proc/self/mounts", std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(table)), std::istreambuf_iterator<char>());
    return mountedVolumes(QByteArray::fromStdString(text));
}

std::optional<qint64> LocalFileSystem::size(const QString &path)
{
    const std::optional<struct stat> status = statusOf(path);
    return status ? std::optional<qint64>(status->st_size) : std::nullopt;
}

std::optional<FileStamp> LocalFileSystem::stamp(const QString &path)
{
    const std::optional<struct stat> status = statusOf(path);
    if (!status)
        return std::nullopt;
    const qint64 modified = status->st_mtim.tv_sec * qint64(1'000'000'000) + status->st_mtim.tv_nsec;
    return FileStamp{status->st_size, modified, status->st_ino};
}

std::optional<FileDetails> LocalFileSystem::details(const QString &path)
{
    if (!statusOf(path))
        return std::nullopt;
    const QFileInfo info(path);
    FileDetails details;
    details.size = info.size();
    details.created = info.birthTime();
    details.accessed = info.lastRead();
    details.modified = info.lastModified();
    details.isFolder = info.isDir();
    details.readOnly = !info.isWritable();
    details.hidden = info.fileName().startsWith(u'.');
    return details;
}

LocalFileSystem::~LocalFileSystem() = default;

void LocalFileSystem::watch(const QStringList &paths, std::function<void()> changed)
{
    if (!m_watch)
        m_watch = std::make_unique<FileWatch>();
    m_watch->watch(paths, std::move(changed));
}

FolderListing LocalFileSystem::list(const QString &folder)
{
    const std::optional<QByteArray> name = systemPath(folder);
    if (!name)
        return {{}, badName(FileAction::Folder)};
    const std::unique_ptr<DIR, int (*)(DIR *)> opened(::opendir(name->constData()),
                                                      [](DIR *d) { return ::closedir(d); });
    if (!opened)
        return {{}, failure(errno, FileAction::Folder, *name)};
    FolderListing listing;
    while (const dirent *entry = ::readdir(opened.get())) {
        const QString entryName = QFile::decodeName(static_cast<const char *>(entry->d_name));
        if (entryName != QLatin1String(".") && entryName != QLatin1String(".."))
            listing.entries += FolderEntry{entryName, isFolderEntry(*name, *entry)};
    }
    std::sort(listing.entries.begin(), listing.entries.end(),
              [](const FolderEntry &a, const FolderEntry &b) { return a.name < b.name; });
    return listing;
}

std::optional<FileError> LocalFileSystem::makeFolder(const QString &folder)
{
    const std::optional<QByteArray> name = systemPath(folder);
    if (!name)
        return badName(FileAction::Folder);
    std::error_code error;
    std::filesystem::create_directories(name->constData(), error);
    if (error)
        return failure(error.value(), FileAction::Folder, *name);
    return std::nullopt;
}

std::optional<FileError> LocalFileSystem::removeFile(const QString &path)
{
    const std::optional<QByteArray> name = systemPath(path);
    if (!name)
        return badName(FileAction::Write);
    if (::unlink(name->constData()) == 0)
        return std::nullopt;
    // Here a file that is not there is missing itself, unlike in a write, which would have made it.
    const int error = errno;
    return failure(error, error == ENOENT ? FileAction::Read : FileAction::Write, *name);
}

std::optional<QString> LocalFileSystem::setAside(const QString &path)
{
    return ::setAside(path);
}

std::optional<FileError> LocalFileSystem::copyFile(const QString &from, const QString &to)
{
    const FileContents contents = readAll(from);
    if (contents.error)
        return contents.error;
    if (std::optional<FileError> error = writeWhole(to, contents.bytes))
        return error;
    const std::optional<struct stat> status = statusOf(from);
    const QByteArray target = QFile::encodeName(to);
    if (status && ::chmod(target.constData(), status->st_mode & 0777U) != 0)
        return failure(errno, FileAction::Write, target);
    return std::nullopt;
}
