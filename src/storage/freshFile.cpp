#include "storage/freshFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace
{
constexpr int MostNames = 100;

/// Some file systems tell only at the close that the disk is full; this asks them without giving the file up.
int closingError(int descriptor)
{
    const int other = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    return other < 0 ? errno : errorOf(::close(other));
}
} // namespace

FreshFile::FreshFile(const QByteArray &folder, mode_t mode, const SaveNotes *notes)
    : m_folder(folder), m_notes(notes), m_file(openFresh(mode))
{
    if (m_file.isOpen())
        ::flock(m_file.number(), LOCK_EX | LOCK_NB);
}

FreshFile::~FreshFile()
{
    if (!m_name.isEmpty())
        ::unlink(m_name.constData());
}

int FreshFile::openFresh(mode_t mode)
{
    int opened = -1;
    if (::access("/proc/self/fd", X_OK) == 0)
        opened = ::open(m_folder.constData(), O_RDWR | O_TMPFILE | O_CLOEXEC, mode);
    if (opened < 0)
        opened = openNamed(mode);
    if (opened < 0) {
        m_openError = errno;
        m_stray.reset();
        m_name.clear();
    }
    return opened;
}

int FreshFile::openNamed(mode_t mode)
{
    for (int attempt = 0; attempt < MostNames; ++attempt) {
        m_name = m_folder + '/' + freshSaveName();
        m_stray.emplace(m_notes, m_name);
        const int opened = ::open(m_name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
        if (opened >= 0 || errno != EEXIST)
            return opened;
    }
    return -1;
}

int FreshFile::giveName()
{
    if (!m_name.isEmpty())
        return 0;
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(m_file.number());
    const QByteArray chosen = m_folder + '/' + freshSaveName();
    m_stray.emplace(m_notes, chosen);
    if (::linkat(AT_FDCWD, self.constData(), AT_FDCWD, chosen.constData(), AT_SYMLINK_FOLLOW) != 0)
        return errno;
    m_name = chosen;
    return 0;
}

int FreshFile::moveTo(const QByteArray &path)
{
    int failure = giveName();
    if (failure == 0)
        failure = closingError(m_file.number());
    if (failure == 0)
        failure = errorOf(::rename(m_name.constData(), path.constData()));
    if (failure == 0) {
        m_name.clear();
        m_stray.reset();
    }
    return failure;
}
