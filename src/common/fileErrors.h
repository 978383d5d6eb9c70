#pragma once

#include <QString>

/// What was being done when the system refused. The same refusal is told differently for a read and for a write.
enum class FileAction {
    Read,
    Write,
    Folder, ///< making, listing or removing a folder
};

/// Error codes of the program's own table, as far as its code names them.
enum FileErrorCode : int {
    OutOfMemoryError = 7,
    UnknownFileError = 51, ///< in no row of the table: told by the system's own description
    IllegalFileNameError = 52,
    FileNotFoundError = 53,
    FileAlreadyOpenError = 55,
    DiskError = 57,
    FileAlreadyExistsError = 58,
    DiskFullError = 61,
    FileCorruptError = 62,
    TooManyFilesError = 67,
    DeviceUnavailableError = 68,
    PermissionDeniedError = 70,
    DiskNotReadyError = 71,
    PathAccessError = 75,
    PathNotFoundError = 76,
};

/// Why a file operation failed.
struct FileError {
    int code = UnknownFileError; ///< the program's code, the key of its table of messages
    int systemError = 0;         ///< the system's errno, 0 where the program itself refused
    QString description;         ///< the system's own words
};

/// The program's code for a system error (an errno). `folderMissing` tells that the folder of the path is not there,
/// which a missing file alone does not say.
int fileErrorCode(int systemError, FileAction action, bool folderMissing = false);

/// The same with the system's description.
FileError fileErrorOf(int systemError, FileAction action, bool folderMissing = false);
