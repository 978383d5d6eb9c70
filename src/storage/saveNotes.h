#pragma once

#include <QByteArray>
#include <QStringList>

/// A folder that knows of each save that is under way what would have to be undone if it came to no end: the names of
/// new files in the user's folders, and the old bytes of files that are written in place. The user alone may enter it;
/// it is there only while something is noted.
class SaveNotes
{
public:
    /// Those below the program's folder for state, a full path; nothing need be there.
    explicit SaveNotes(const QString &statePath);

    const QByteArray &folder() const { return m_folder; }
    /// Where old bytes go that have no place of their own any more, and where nobody takes them for a note.
    const QByteArray &asideFolder() const { return m_asideFolder; }
    /// Makes the folder, and those above it that are missing; 0 or an errno.
    int makeFolder() const;
    /// Takes the folder away where nothing is noted in it.
    void removeIfEmpty() const;

    /// Notes the name of a new file before it is there, and strikes the note out at its end. That a note could not be
    /// made stops no save.
    class Stray
    {
    public:
        /// `notes` may be nothing.
        Stray(const SaveNotes *notes, const QByteArray &file);
        Stray(const Stray &) = delete;
        Stray &operator=(const Stray &) = delete;
        ~Stray();

    private:
        const SaveNotes *m_notes;
        QByteArray m_note; ///< empty where there is none
    };

    /// What became of saves whose process had ended within them.
    struct Settled {
        QStringList putBack; ///< files that were torn and have their old contents again
        QStringList aside;   ///< old contents that had no place to go back to, and are kept here
    };
    /// Undoes what ended processes left: new files that never took their place go, files that were half written in
    /// place get their old bytes back. What a running process notes is left alone.
    Settled settle() const;

private:
    void settleStray(const QByteArray &note) const;

    QByteArray m_folder;
    QByteArray m_asideFolder;
};

/// Makes a folder that the user alone may enter, and those above it that are missing; 0 or an errno.
int makeOwnFolder(const QByteArray &folder);

/// A name that is not taken, for a new file in a user's folder until it has its own.
QByteArray freshSaveName();
