#pragma once

#include "common/fileErrors.h"
#include "common/keptPage.h"

#include <QList>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

class FileSystem;

/// Where unsaved text is kept: a folder for each running program below `recovery` of the folder for state, which the
/// user alone may enter and whose lock dies with its process. What programs that have ended left there is anybody's who
/// comes first.
class RecoveryFolder
{
public:
    /// `statePath` is the program's folder for state; nothing is made there before something is kept.
    RecoveryFolder(FileSystem &files, const QString &statePath);
    ~RecoveryFolder();
    RecoveryFolder(const RecoveryFolder &) = delete;
    RecoveryFolder &operator=(const RecoveryFolder &) = delete;

    /// A page that a program left behind when it ended.
    struct Found {
        QString file; ///< the path it is kept under from now on
        KeptPage page;
        bool active = false; ///< it was the active one
    };
    struct Finds {
        QList<Found> pages; ///< in the order in which they stood
        QString unreadable; ///< the folder with what could not be read; empty where there is nothing of the kind
    };
    /// Takes over what ended programs left. Each page stays on the disk all the while.
    Finds takeOver();

    /// The path for a page that is not kept yet. Nothing is made.
    QString newFile() const;
    /// Writes a page; the folder is made where it is not there.
    std::optional<FileError> write(const QString &file, const QByteArray &bytes);
    /// Notes which page is the active one; `file` is its path, empty for none.
    void writeActive(const QString &file);
    /// Takes a page away, and the folder with the last one. The path of no page is no failure.
    void remove(const QString &file);

private:
    class Lock;
    std::optional<FileError> makeOwn();
    void takeOverSession(const QString &session, Finds &finds);
    QString setAside(const QString &file);

    FileSystem &m_files;
    QString m_root; ///< the folder `recovery`
    QString m_own;  ///< this program's folder in it, there or not
    std::unique_ptr<Lock> m_lock;
    std::vector<std::unique_ptr<Lock>> m_others; ///< of folders whose pages could not be moved
};
