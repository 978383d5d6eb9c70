#include "storage/recoveryFolder.h"

#include "common/paths.h"
#include "services/fileSystem.h"

#include <QDateTime>
#include <QFile>
#include <QUuid>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
const QString PageEnding = QStringLiteral(".page");
const QString LockName = QStringLiteral("lock");
const QString ActiveName = QStringLiteral("active");
const QString AsideName = QStringLiteral("unreadable");
const QString SavesName = QStringLiteral("saves"); ///< the notes of saves that are under way (storage/saveNotes)
constexpr mode_t UserAlone = 0700;

QString uniqueName()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

bool renameFile(const QString &from, const QString &to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

QString inFolder(const QString &file)
{
    return withoutFinalSeparator(folderOf(file));
}

QString baseName(const QString &path)
{
    return path.section(u'/', -1);
}
} // namespace

/// Holds a session's folder as long as the process lives.
class RecoveryFolder::Lock
{
public:
    /// Nothing where another process holds it, or the file cannot be made.
    static std::unique_ptr<Lock> take(const QString &folder)
    {
        const QByteArray path = QFile::encodeName(joinPath(folder, LockName));
        const int file = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (file < 0)
            return nullptr;
        std::unique_ptr<Lock> lock(new Lock(file));
        return ::flock(file, LOCK_EX | LOCK_NB) == 0 ? std::move(lock) : nullptr;
    }
    ~Lock() { ::close(m_file); }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;

private:
    explicit Lock(int file) : m_file(file) {}
    int m_file;
};

RecoveryFolder::RecoveryFolder(FileSystem &files, const QString &statePath)
    : m_files(files), m_root(joinPath(statePath, QStringLiteral("recovery")))
{
    // The names of sessions in their order are the sessions in their order.
    const QString moment = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    m_own = joinPath(m_root, moment + QStringLiteral("-") + uniqueName().left(8));
}

RecoveryFolder::~RecoveryFolder() = default;

std::optional<FileError> RecoveryFolder::makeOwn()
{
    if (m_lock && m_files.isFolder(m_own))
        return std::nullopt;
    if (std::optional<FileError> error = m_files.makeFolder(m_own))
        return error;
    for (const QString &folder : {m_root, m_own})
        ::chmod(QFile::encodeName(folder).constData(), UserAlone);
    m_lock = Lock::take(m_own);
    return m_lock ? std::nullopt : std::optional(fileErrorOf(errno, FileAction::Folder));
}

QString RecoveryFolder::newFile() const
{
    return joinPath(m_own, uniqueName() + PageEnding);
}

std::optional<FileError> RecoveryFolder::write(const QString &file, const QByteArray &bytes)
{
    if (inFolder(file) == m_own)
        if (std::optional<FileError> error = makeOwn())
            return error;
    return m_files.writeWhole(file, bytes);
}

void RecoveryFolder::writeActive(const QString &file)
{
    if (m_lock)
        m_files.writeScratch(joinPath(m_own, ActiveName), QFile::encodeName(baseName(file)));
}

void RecoveryFolder::remove(const QString &file)
{
    ::unlink(QFile::encodeName(file).constData());
    const QString folder = inFolder(file);
    const FolderListing left = m_files.list(folder);
    const auto isPage = [](const FolderEntry &entry) { return entry.name.endsWith(PageEnding); };
    if (left.error || std::any_of(left.entries.begin(), left.entries.end(), isPage))
        return;
    for (const QString &name : {ActiveName, LockName})
        ::unlink(QFile::encodeName(joinPath(folder, name)).constData());
    ::rmdir(QFile::encodeName(folder).constData());
    if (folder == m_own)
        m_lock.reset();
}

RecoveryFolder::Finds RecoveryFolder::takeOver()
{
    Finds finds;
    QStringList sessions;
    for (const FolderEntry &entry : m_files.list(m_root).entries)
        if (entry.isFolder && entry.name != AsideName && entry.name != SavesName)
            sessions << joinPath(m_root, entry.name);
    sessions.sort();
    for (const QString &session : std::as_const(sessions))
        if (session != m_own)
            takeOverSession(session, finds);
    return finds;
}

void RecoveryFolder::takeOverSession(const QString &session, Finds &finds)
{
    std::unique_ptr<Lock> lock = Lock::take(session);
    if (!lock)
        return; // its program is running
    const QString active = QFile::decodeName(m_files.readAll(joinPath(session, ActiveName)).bytes);
    QList<Found> pages;
    bool moved = true;
    for (const FolderEntry &entry : m_files.list(session).entries) {
        if (entry.isFolder || !entry.name.endsWith(PageEnding))
            continue;
        const QString file = joinPath(session, entry.name);
        const FileContents contents = m_files.readAll(file);
        std::optional<KeptPage> page = contents.error ? std::nullopt : keptPageOf(contents.bytes);
        if (!page) {
            finds.unreadable = setAside(file);
            continue;
        }
        const QString here = joinPath(m_own, entry.name);
        const bool mine = !makeOwn() && renameFile(file, here);
        moved = moved && mine;
        pages.append({mine ? here : file, std::move(*page), entry.name == active});
    }
    std::stable_sort(pages.begin(), pages.end(),
                     [](const Found &one, const Found &other) { return one.page.order < other.page.order; });
    finds.pages += pages;
    if (moved)
        remove(joinPath(session, PageEnding)); // no page is left there: the folder goes
    else
        m_others.push_back(std::move(lock));
}

/// Puts a file where nobody takes it for a page again, and gives that folder.
QString RecoveryFolder::setAside(const QString &file)
{
    QString folder = joinPath(m_root, AsideName);
    m_files.makeFolder(folder);
    ::chmod(QFile::encodeName(folder).constData(), UserAlone);
    renameFile(file, joinPath(folder, baseName(file)));
    return folder;
}
