#pragma once

#include "services/fileSystem.h"
#include "storage/saveNotes.h"

#include <memory>

class FileWatch;
enum class Durability;

/// The machine's own files.
class LocalFileSystem final : public FileSystem
{
public:
    /// From here on a limit on the size of files is told as an error instead of ending the program.
    /// `statePath` is the program's folder for state, where saves that are under way are noted; without one, no file is
    /// written in place.
    explicit LocalFileSystem(const QString &statePath = {});
    ~LocalFileSystem() override;

    FileContents readAll(const QString &path) override;
    std::optional<FileError> checkReadable(const QString &path) override;
    std::optional<FileError> writeWhole(const QString &path, const QByteArray &bytes) override;
    std::optional<FileError> writeScratch(const QString &path, const QByteArray &bytes) override;
    FileContents readPart(const QString &path, qint64 offset, qint64 length) override;
    std::optional<FileError> writeInPieces(const QString &path, const PieceSource &next) override;
    bool isLink(const QString &path) override;

    bool exists(const QString &path) override;
    bool isFolder(const QString &path) override;
    bool isSameFile(const QString &a, const QString &b) override;
    QStringList volumes() override;
    std::optional<qint64> size(const QString &path) override;
    std::optional<FileStamp> stamp(const QString &path) override;
    std::optional<FileDetails> details(const QString &path) override;

    void watch(const QStringList &paths, std::function<void()> changed) override;
    FolderListing list(const QString &folder) override;
    std::optional<FileError> makeFolder(const QString &folder) override;
    std::optional<FileError> removeFile(const QString &path) override;
    std::optional<QString> setAside(const QString &path) override;
    std::optional<FileError> copyFile(const QString &from, const QString &to) override;

private:
    std::optional<FileError> write(const QString &path, const QByteArray &bytes, Durability durability) const;
    const SaveNotes *notes() const { return m_notes ? &*m_notes : nullptr; }

    std::optional<SaveNotes> m_notes;
    std::unique_ptr<FileWatch> m_watch; ///< made with the first file that is watched
};
