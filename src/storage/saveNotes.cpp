#include "storage/saveNotes.h"

#include "common/paths.h"
#include "storage/overwritten.h"
#include "storage/systemFile.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr QByteArrayView NewFilePrefix(".tagwrighter-");
constexpr QByteArrayView NewFileEnding(".tmp");
constexpr QByteArrayView NoteEnding(".new");
constexpr mode_t UserAlone = 0700;
constexpr int Attempts = 3; ///< another program may take the empty folder away in between

QByteArray randomName()
{
    return QByteArray::number(QRandomGenerator::system()->generate64(), 36);
}

bool isNewFile(const QByteArray &path)
{
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
    return name.startsWith(NewFilePrefix) && name.endsWith(NewFileEnding);
}

/// Takes a new file away that no running save holds. False where one does, or where nobody can tell.
bool removeNewFile(const QByteArray &path)
{
    const Descriptor file(::open(path.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (!file.isOpen())
        return errno == ENOENT || errno == ENOTDIR;
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0)
        return false;
    return ::unlink(path.constData()) == 0;
}
} // namespace

QByteArray freshSaveName()
{
    return NewFilePrefix.toByteArray() + randomName() + NewFileEnding.toByteArray();
}

int makeOwnFolder(const QByteArray &folder)
{
    if (::mkdir(folder.constData(), UserAlone) == 0 || errno == EEXIST)
        return 0;
    if (errno != ENOENT)
        return errno;
    if (const int error = makeOwnFolder(systemFolderOf(folder)))
        return error;
    return ::mkdir(folder.constData(), UserAlone) == 0 || errno == EEXIST ? 0 : errno;
}

SaveNotes::SaveNotes(const QString &statePath)
{
    const QByteArray recovery = QFile::encodeName(joinPath(statePath, QStringLiteral("recovery")));
    m_folder = recovery + "/saves";
    m_asideFolder = recovery + "/unreadable";
}

int SaveNotes::makeFolder() const
{
    return makeOwnFolder(m_folder);
}

void SaveNotes::removeIfEmpty() const
{
    ::rmdir(m_folder.constData());
}

SaveNotes::Stray::Stray(const SaveNotes *notes, const QByteArray &file) : m_notes(notes)
{
    if (!notes || !file.startsWith('/')) // a path that counts from somewhere would lead elsewhere at the next start
        return;
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        const QByteArray note = notes->folder() + '/' + randomName() + NoteEnding.toByteArray();
        // A link holds its text without a file that would have to be written.
        if (notes->makeFolder() == 0 && ::symlink(file.constData(), note.constData()) == 0) {
            m_note = note;
            return;
        }
    }
}

SaveNotes::Stray::~Stray()
{
    if (m_note.isEmpty())
        return;
    ::unlink(m_note.constData());
    m_notes->removeIfEmpty();
}

SaveNotes::Settled SaveNotes::settle() const
{
    Settled settled;
    if (::access(m_folder.constData(), F_OK) != 0)
        return settled;
    const QDir::Filters all = QDir::Files | QDir::Hidden | QDir::System; // links that lead nowhere are of the system
    for (const QString &entry : QDir(QFile::decodeName(m_folder)).entryList(all)) {
        const QByteArray path = m_folder + '/' + QFile::encodeName(entry);
        if (path.endsWith(NoteEnding))
            settleStray(path);
        else if (isNewFile(path))
            removeNewFile(path);
        else if (Overwritten::isOne(path))
            (void)Overwritten::settle(path, m_asideFolder, settled);
    }
    removeIfEmpty();
    return settled;
}

void SaveNotes::settleStray(const QByteArray &note) const
{
    std::array<char, 4096> target{};
    const ssize_t length = ::readlink(note.constData(), target.data(), target.size());
    const QByteArray file(target.data(), std::max<ssize_t>(length, 0));
    if (!isNewFile(file) || removeNewFile(file))
        ::unlink(note.constData());
}
