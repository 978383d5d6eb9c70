#include "common/fileErrors.h"

#include <cerrno>
#include <cstring>

namespace
{
// Refusals that mean the same whatever was being done.
int plainCode(int systemError)
{
    switch (systemError) {
    case ENOMEM:
        return OutOfMemoryError;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
    case ELOOP:
        return IllegalFileNameError;
    case EIO:
    case EREMOTEIO:
        return DiskError;
    case EEXIST:
        return FileAlreadyExistsError;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return DiskFullError;
    case EMFILE:
    case ENFILE:
        return TooManyFilesError;
    case ENXIO:
    case ENODEV:
        return DeviceUnavailableError;
    case ETXTBSY:
    case EBUSY:
        return PermissionDeniedError;
    case ENOMEDIUM:
    case ESTALE:
    case ENOTCONN:
    case EHOSTDOWN:
    case ETIMEDOUT:
        return DiskNotReadyError;
    case EISDIR:
    case ENOTEMPTY:
        return PathAccessError;
    case ENOTDIR:
        return PathNotFoundError;
    default:
        return UnknownFileError;
    }
}

int missingCode(FileAction action, bool folderMissing)
{
    // A write makes the file that is missing, so it is the folder that it misses.
    return folderMissing || action != FileAction::Read ? PathNotFoundError : FileNotFoundError;
}
} // namespace

int fileErrorCode(int systemError, FileAction action, bool folderMissing)
{
    switch (systemError) {
    case ENOENT:
        return missingCode(action, folderMissing);
    case EACCES:
    case EPERM:
    case EROFS:
        return action == FileAction::Write ? PermissionDeniedError : PathAccessError;
    default:
        return plainCode(systemError);
    }
}

FileError fileErrorOf(int systemError, FileAction action, bool folderMissing)
{
    return {fileErrorCode(systemError, action, folderMissing), systemError,
            QString::fromLocal8Bit(std::strerror(systemError))};
}
