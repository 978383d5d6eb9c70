#pragma once

#include "storage/saveNotes.h"
#include "storage/systemFile.h"

#include <QByteArray>
#include <optional>
#include <sys/types.h>

/// A new file while it is being written. Where the file system can, it has no name until it is whole; once it has one,
/// it is locked and noted, so that the next start finds what a kill leaves behind.
class FreshFile
{
public:
    /// Makes it in that folder. `notes` may be nothing.
    FreshFile(const QByteArray &folder, mode_t mode, const SaveNotes *notes);
    FreshFile(const FreshFile &) = delete;
    FreshFile &operator=(const FreshFile &) = delete;
    ~FreshFile();

    int error() const { return m_openError; } ///< why there is none; 0 if there is
    int number() const { return m_file.number(); }

    /// Gives it its place, over what is there; 0 or an errno. It stays open, and can be read.
    int moveTo(const QByteArray &path);

private:
    int openFresh(mode_t mode);
    int openNamed(mode_t mode);
    int giveName();

    QByteArray m_folder;
    const SaveNotes *m_notes;
    QByteArray m_name; ///< empty while the file has none
    std::optional<SaveNotes::Stray> m_stray;
    int m_openError = 0;
    Descriptor m_file;
};
