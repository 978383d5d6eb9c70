#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

/// The container of a combined template as bytes: a page and the files that it uses, in one file.
///
/// It starts with a magic text and the position of a directory; the contents of its files follow, one behind the other,
/// and the directory with their places, sizes and names ends it. Numbers are little-endian. Positions count from 1, as
/// the container itself counts. Nothing here trusts a number that was read: each is checked before it is used.
namespace container
{
constexpr int MagicSize = 31;
constexpr int HeaderSize = MagicSize + 4; ///< the magic and the directory's position
constexpr int LongestName = 254;          ///< bytes; a reader takes these and the NUL behind them
constexpr int MostNames = 999;            ///< that a reader takes in
constexpr qint64 LargestPosition = 0x7FFFFFFF;

/// The page's own name in a container.
QString pageName();

/// One file of a container.
struct Entry {
    QString name;
    qint64 position = 0; ///< of its first byte, counted from 1
    qint64 size = 0;     ///< bytes
    bool operator==(const Entry &) const = default;
};

/// Whether the bytes start as a container does, in whatever case its letters are.
bool hasMagic(QByteArrayView bytes);

/// The header. `directory` is the directory's position; 0 in an empty container.
QByteArray header(qint64 directory);

/// The directory's position as the header's bytes tell it, whatever the magic; nothing if there are too few of them, if
/// the container is empty, or if the position does not lie in a file of `fileSize` bytes.
std::optional<qint64> DirectoryPos(QByteArrayView header, qint64 fileSize);

/// How many bytes of a directory can be of use to a reader, so that no more need be read.
constexpr qint64 LargestDirectory = qint64(MostNames) * (8 + LongestName + 1);

/// The entries of a directory, up to `MostNames` of them. It ends at its last byte, and at an entry that is cut off or
/// has no name, a position of 0 or a size of 0, behind which nothing can be reached. Their places are as they were
/// read.
QList<Entry> entries(QByteArrayView directory);

/// Whether the entry's contents lie in a file of `fileSize` bytes.
bool liesIn(const Entry &entry, qint64 fileSize);

/// An entry's bytes. Nothing if they could not be read back: an empty or too long name, or one with a NUL; a place that
/// four bytes do not hold.
std::optional<QByteArray> entryBytes(const Entry &entry);

/// The first entry of that name, in whatever case its letters are.
std::optional<Entry> find(const QList<Entry> &entries, const QString &name);

/// Whether a file of that name stays in the folder that it is unpacked to: a plain name, without a separator of any
/// kind, a drive or a control character, and not one of the two that stand for a folder.
bool isPlainName(const QString &name);
} // namespace container
