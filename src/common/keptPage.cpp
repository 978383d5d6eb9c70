#include "common/keptPage.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

namespace
{
constexpr QByteArrayView Mark("Tagwrighter kept page 2\n");
constexpr QByteArrayView EarlierMark("Tagwrighter kept page 1\n"); ///< without the two that were added last
static_assert(Mark.size() == EarlierMark.size());
constexpr qsizetype DigestSize = 32; ///< bytes of SHA-256
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
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

QByteArray keptPageBytes(const KeptPage &page)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    const FileStamp stamp = page.stamp.value_or(FileStamp{});
    stream << page.order << page.path << page.newDoc << page.unicode << static_cast<quint8>(page.format.encoding)
           << static_cast<quint8>(page.format.lineEnd) << page.format.charset << static_cast<quint8>(page.plainEncoding)
           << page.mixedLineEnds << page.internetOrigin << page.selStart << page.selLength << page.stamp.has_value()
           << stamp.size << stamp.modifiedNanoseconds << stamp.inode << page.fileDigest << page.text << page.changed
           << page.startsAnew;
    return Mark.toByteArray() + digestOf(body) + body;
}

std::optional<KeptPage> keptPageOf(const QByteArray &bytes)
{
    const bool isEarlier = bytes.startsWith(EarlierMark);
    if (!isEarlier && !bytes.startsWith(Mark))
        return std::nullopt;
    const QByteArray digest = bytes.mid(Mark.size(), DigestSize);
    const QByteArray body = bytes.mid(Mark.size() + DigestSize);
    if (digestOf(body) != digest) // which also holds for what was cut short
        return std::nullopt;
    KeptPage page;
    FileStamp stamp;
    quint8 encoding = 0;
    quint8 lineEnd = 0;
    quint8 plainEncoding = 0;
    bool stamped = false;
    QDataStream stream(body);
    stream.setVersion(StreamVersion);
    stream >> page.order >> page.path >> page.newDoc >> page.unicode >> encoding >> lineEnd >> page.format.charset >>
        plainEncoding >> page.mixedLineEnds >> page.internetOrigin >> page.selStart >> page.selLength >> stamped >>
        stamp.size >> stamp.modifiedNanoseconds >> stamp.inode >> page.fileDigest >> page.text;
    if (!isEarlier)
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
