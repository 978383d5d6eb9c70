#include "common/keptPage.h"

#include "common/quickDigest.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

namespace
{
constexpr QByteArrayView Mark("Tagwrighter kept page 3\n");
constexpr QByteArrayView SecondMark("Tagwrighter kept page 2\n"); ///< numbers the other way round, SHA-256
constexpr QByteArrayView FirstMark("Tagwrighter kept page 1\n");  ///< like it, without the two that were added last
static_assert(Mark.size() == FirstMark.size() && Mark.size() == SecondMark.size());
constexpr qsizetype DigestSize = sizeof(quint64);
constexpr qsizetype EarlierDigestSize = 32; ///< bytes of SHA-256
constexpr QDataStream::Version StreamVersion = QDataStream::Qt_6_0;

/// A number that stands for a choice; nothing for one that is no such choice.
template <class Choice>
std::optional<Choice> choiceOf(quint8 number, Choice last)
{
    return number <= static_cast<quint8>(last) ? std::optional(static_cast<Choice>(number)) : std::nullopt;
}
} // namespace

QByteArray digestOf(const QByteArray &bytes)
{
    QByteArray digest(DigestSize, Qt::Uninitialized);
    qToLittleEndian(QuickDigest::of(bytes), digest.data());
    return digest;
}

bool isDigestOf(const QByteArray &digest, const QByteArray &bytes)
{
    if (digest.size() == EarlierDigestSize)
        return digest == QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    return digest == digestOf(bytes);
}

QByteArray keptPageBytes(const KeptPage &page)
{
    constexpr qsizetype Rest = 1024; ///< about what the rest takes
    const FileStamp stamp = page.stamp.value_or(FileStamp{});
    QByteArray bytes = Mark.toByteArray() + QByteArray(DigestSize, '\0');
    bytes.reserve(bytes.size() + page.text.size() * qsizetype(sizeof(QChar)) + Rest);
    QDataStream stream(&bytes, QIODevice::Append);
    stream.setVersion(StreamVersion);
    stream.setByteOrder(QDataStream::LittleEndian); // as the text stands in the memory of most
    stream << page.order << page.path << page.newDoc << page.unicode << static_cast<quint8>(page.format.encoding)
           << static_cast<quint8>(page.format.lineEnd) << page.format.charset << static_cast<quint8>(page.plainEncoding)
           << page.mixedLineEnds << page.internetOrigin << page.selStart << page.selLength << page.stamp.has_value()
           << stamp.size << stamp.modifiedNanoseconds << stamp.inode << page.fileDigest << page.text << page.changed
           << page.startsAnew;
    const QByteArrayView body = QByteArrayView(bytes).sliced(Mark.size() + DigestSize);
    qToLittleEndian(QuickDigest::of(body), bytes.data() + Mark.size());
    return bytes;
}

namespace
{
/// The bytes behind mark and digest, if they are those that the digest is of; this also holds for what was cut short.
std::optional<QByteArrayView> bodyOf(QByteArrayView bytes)
{
    if (bytes.startsWith(Mark) && bytes.size() >= Mark.size() + DigestSize) {
        const QByteArrayView body = bytes.sliced(Mark.size() + DigestSize);
        const auto digest = qFromLittleEndian<quint64>(bytes.data() + Mark.size());
        return digest == QuickDigest::of(body) ? std::optional(body) : std::nullopt;
    }
    const bool isEarlier = bytes.startsWith(FirstMark) || bytes.startsWith(SecondMark);
    if (!isEarlier || bytes.size() < Mark.size() + EarlierDigestSize)
        return std::nullopt;
    const QByteArrayView body = bytes.sliced(Mark.size() + EarlierDigestSize);
    const QByteArrayView digest = bytes.sliced(Mark.size(), EarlierDigestSize);
    return digest == QCryptographicHash::hash(body, QCryptographicHash::Sha256) ? std::optional(body) : std::nullopt;
}
} // namespace

std::optional<KeptPage> keptPageOf(const QByteArray &bytes)
{
    const auto body = bodyOf(bytes);
    if (!body)
        return std::nullopt;
    KeptPage page;
    FileStamp stamp;
    quint8 encoding = 0;
    quint8 lineEnd = 0;
    quint8 plainEncoding = 0;
    bool stamped = false;
    QDataStream stream(QByteArray::fromRawData(body->data(), body->size()));
    stream.setVersion(StreamVersion);
    stream.setByteOrder(bytes.startsWith(Mark) ? QDataStream::LittleEndian : QDataStream::BigEndian);
    stream >> page.order >> page.path >> page.newDoc >> page.unicode >> encoding >> lineEnd >> page.format.charset >>
        plainEncoding >> page.mixedLineEnds >> page.internetOrigin >> page.selStart >> page.selLength >> stamped >>
        stamp.size >> stamp.modifiedNanoseconds >> stamp.inode >> page.fileDigest >> page.text;
    if (!bytes.startsWith(FirstMark))
        stream >> page.changed >> page.startsAnew;
    const auto read = choiceOf(encoding, Encoding::Other);
    const auto ends = choiceOf(lineEnd, LineEnd::Cr);
    const auto plain = choiceOf(plainEncoding, Encoding::Other);
    if (stream.status() != QDataStream::Ok || !stream.atEnd() || !read || !ends || !plain)
        return std::nullopt;
    page.format.encoding = *read;
    page.format.lineEnd = *ends;
    page.plainEncoding = *plain;
    if (stamped)
        page.stamp = stamp;
    return page;
}
