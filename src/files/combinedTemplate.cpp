#include "files/combinedTemplate.h"

#include "common/encodings.h"

#include <QtEndian>

#include <algorithm>

namespace container
{
namespace
{
constexpr char Magic[] = "TagwrighterCombinedTemplateFile";
static_assert(sizeof Magic == MagicSize + 1);

constexpr qsizetype PlaceSize = 8; // of an entry: the position and the size of its data

qint64 numberAt(QByteArrayView bytes, qsizetype place)
{
    return qFromLittleEndian<qint32>(bytes.data() + place);
}

QByteArray numberBytes(qint64 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToLittleEndian(static_cast<qint32>(number), bytes.data());
    return bytes;
}

/// The entry that starts at `place`, which moves behind it; nothing where the directory ends.
std::optional<Entry> entryAt(QByteArrayView directory, qsizetype &place)
{
    if (directory.size() - place <= PlaceSize)
        return std::nullopt;
    const QByteArrayView named = directory.sliced(place + PlaceSize);
    const qsizetype length = named.first(std::min<qsizetype>(named.size(), LongestName + 1)).indexOf('\0');
    if (length < 0)
        return std::nullopt;
    const Entry entry{decodeOwnFile(named.first(length).toByteArray()), numberAt(directory, place),
                      numberAt(directory, place + 4)};
    place += PlaceSize + length + 1;
    return entry;
}
} // namespace

QString pageName()
{
    return QStringLiteral("index_tmp.dat");
}

bool hasMagic(QByteArrayView bytes)
{
    return bytes.size() >= MagicSize && bytes.first(MagicSize).compare(Magic, Qt::CaseInsensitive) == 0;
}

QByteArray header(qint64 directory)
{
    return QByteArray(Magic, MagicSize) + numberBytes(directory);
}

std::optional<qint64> DirectoryPos(QByteArrayView header, qint64 fileSize)
{
    if (header.size() < HeaderSize)
        return std::nullopt;
    const qint64 position = numberAt(header, MagicSize);
    return position > 0 && position <= fileSize ? std::optional(position) : std::nullopt;
}

QList<Entry> entries(QByteArrayView directory)
{
    QList<Entry> found;
    qsizetype place = 0;
    while (found.size() < MostNames) {
        const std::optional<Entry> entry = entryAt(directory, place);
        if (!entry || entry->name.isEmpty() || entry->position == 0 || entry->size == 0)
            break;
        found.append(*entry);
    }
    return found;
}

bool liesIn(const Entry &entry, qint64 fileSize)
{
    return entry.position > 0 && entry.size > 0 && entry.size <= fileSize &&
           entry.position - 1 <= fileSize - entry.size;
}

std::optional<QByteArray> entryBytes(const Entry &entry)
{
    const QByteArray name = encodeOwnFile(entry.name);
    const bool named = !name.isEmpty() && name.size() <= LongestName && !name.contains('\0');
    const bool placed =
        entry.position > 0 && entry.position <= LargestPosition && entry.size >= 0 && entry.size <= LargestPosition;
    if (!named || !placed)
        return std::nullopt;
    return numberBytes(entry.position) + numberBytes(entry.size) + name + '\0';
}

std::optional<Entry> find(const QList<Entry> &entries, const QString &name)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry &entry) { return entry.name.toLower() == name.toLower(); });
    return found == entries.end() ? std::nullopt : std::optional(*found);
}

bool isPlainName(const QString &name)
{
    if (name.isEmpty() || name == u"." || name == u"..")
        return false;
    const bool drive = name.size() > 1 && name[1] == u':';
    return !drive && std::none_of(name.begin(), name.end(), [](QChar character) {
        return character == u'/' || character == u'\\' || character.unicode() < 32;
    });
}
} // namespace container
