#include "files/templateFiles.h"

#include "services/fileSystem.h"

#include <algorithm>

namespace
{
using container::Entry;

FileError corrupt()
{
    return {.code = FileCorruptError, .systemError = 0, .description = {}};
}

/// A file with its place in the container.
struct PlacedFile {
    FileToPack file;
    Entry entry;
};

/// Gives the files their places, one behind the other. Those that are missing are left out, those that have no place
/// are reported and left out.
QList<PlacedFile> placed(FileSystem &files, const QList<FileToPack> &toPack, const PackingReports &reports)
{
    QList<PlacedFile> all;
    qint64 position = container::HeaderSize + 1;
    for (const FileToPack &file : toPack) {
        const std::optional<qint64> size = file.source.isEmpty() ? file.bytes.size() : files.size(file.source);
        if (!size)
            continue;
        const Entry entry{file.name, position, *size};
        if (!container::entryBytes(entry) || position + *size > container::LargestPosition) {
            reports.failed(file.name);
            continue;
        }
        all.append({file, entry});
        position += *size;
    }
    return all;
}

qint64 endOf(const QList<PlacedFile> &all)
{
    return all.isEmpty() ? 0 : all.last().entry.position + all.last().entry.size;
}

QByteArray directoryOf(const QList<PlacedFile> &all)
{
    QByteArray directory;
    for (const PlacedFile &file : all)
        directory += container::entryBytes(file.entry).value_or(QByteArray());
    return directory;
}

/// The bytes of a container, piece by piece: its header, the contents of its files, its directory.
class ContainerPieces
{
public:
    ContainerPieces(FileSystem &files, const QList<PlacedFile> &all, const PackingReports &reports)
        : m_files(files), m_all(all), m_reports(reports)
    {
    }

    FileContents next()
    {
        if (!std::exchange(m_started, true))
            return {container::header(endOf(m_all)), {}};
        while (m_file < m_all.size()) {
            if (m_done == 0)
                m_reports.begun(m_all[m_file].file.name);
            if (m_done < m_all[m_file].entry.size)
                return nextOfFile(m_all[m_file]);
            ++m_file;
            m_done = 0;
        }
        return {std::exchange(m_ended, true) ? QByteArray() : directoryOf(m_all), {}};
    }

    /// The file that could not be read to its end, if one was in the way.
    std::optional<qsizetype> failed() const { return m_failed; }

private:
    FileContents nextOfFile(const PlacedFile &file)
    {
        const qint64 length = std::min(PieceSize, file.entry.size - m_done);
        FileContents piece = file.file.source.isEmpty() ? FileContents{file.file.bytes.mid(m_done, length), {}}
                                                        : m_files.readPart(file.file.source, m_done, length);
        if (!piece.error && piece.bytes.size() != length) // it has become shorter meanwhile
            piece.error = corrupt();
        if (piece.error)
            m_failed = m_file;
        m_done += length;
        return piece;
    }

    FileSystem &m_files;
    const QList<PlacedFile> &m_all;
    const PackingReports &m_reports;
    bool m_started = false;
    bool m_ended = false;
    qsizetype m_file = 0;
    qint64 m_done = 0; ///< bytes of that file
    std::optional<qsizetype> m_failed;
};

/// The old file behind the place of the header.
class OldRest
{
public:
    OldRest(FileSystem &files, const QString &path) : m_files(files), m_path(path), m_size(files.size(path).value_or(0))
    {
    }

    FileContents next()
    {
        if (!std::exchange(m_started, true))
            return {container::header(0), {}};
        const qint64 length = std::min(PieceSize, m_size - m_done);
        if (length <= 0)
            return {};
        FileContents piece = m_files.readPart(m_path, m_done, length);
        m_done += length;
        return piece;
    }

private:
    FileSystem &m_files;
    QString m_path;
    qint64 m_size;
    qint64 m_done = container::HeaderSize;
    bool m_started = false;
};
} // namespace

bool IsCombinedTemplate(FileSystem &files, const QString &path)
{
    return container::hasMagic(files.readPart(path, 0, container::MagicSize).bytes);
}

std::optional<FileError> writeEmptyContainer(FileSystem &files, const QString &path)
{
    OldRest pieces(files, path);
    return files.writeInPieces(path, [&pieces] { return pieces.next(); });
}

Packed writeContainer(FileSystem &files, const QString &path, QList<FileToPack> toPack, const PackingReports &reports)
{
    while (true) {
        const QList<PlacedFile> all = placed(files, toPack, reports);
        ContainerPieces pieces(files, all, reports);
        const std::optional<FileError> error = files.writeInPieces(path, [&pieces] { return pieces.next(); });
        Packed packed{{}, error};
        if (!error)
            for (const PlacedFile &file : all)
                packed.names.append(file.file.name);
        if (!error || !pieces.failed())
            return packed;
        // Nothing was written: the others are packed without the one that could not be read.
        const FileToPack unreadable = all[*pieces.failed()].file;
        reports.failed(unreadable.name);
        toPack.clear();
        for (const PlacedFile &file : all)
            if (file.file.source != unreadable.source)
                toPack.append(file.file);
    }
}

ContainerListing readContainer(FileSystem &files, const QString &path)
{
    const FileContents start = files.readPart(path, 0, container::HeaderSize);
    if (start.error)
        return {{}, start.error};
    const qint64 size = files.size(path).value_or(0);
    const std::optional<qint64> position = container::DirectoryPos(start.bytes, size);
    if (!position)
        return {};
    const FileContents directory = files.readPart(path, *position - 1, container::LargestDirectory);
    return {container::entries(directory.bytes), directory.error};
}

std::optional<FileError> extractEntry(FileSystem &files, const QString &path, const Entry &entry, const QString &target)
{
    if (!container::liesIn(entry, files.size(path).value_or(0)))
        return corrupt();
    qint64 done = 0;
    return files.writeInPieces(target, [&]() -> FileContents {
        const qint64 length = std::min(PieceSize, entry.size - done);
        if (length == 0)
            return {};
        FileContents piece = files.readPart(path, entry.position - 1 + done, length);
        if (!piece.error && piece.bytes.size() != length)
            piece.error = corrupt();
        done += length;
        return piece;
    });
}
