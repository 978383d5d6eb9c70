#include "common/utf8.h"

#include "common/likeCharacters.h"

#include <QStringDecoder>

#include <cstring>

namespace
{
uchar byteAt(QByteArrayView bytes, qsizetype i)
{
    return static_cast<uchar>(bytes[i]);
}

bool isContinuation(QByteArrayView bytes, qsizetype i)
{
    return i < bytes.size() && (byteAt(bytes, i) & 0xC0U) == 0x80U;
}

// Where the ASCII from `start` on ends, eight bytes at a step: most pages are nearly all ASCII.
qsizetype endOfAscii(QByteArrayView bytes, qsizetype start)
{
    constexpr quint64 highBits = 0x8080808080808080U;
    qsizetype i = start;
    for (; i + 8 <= bytes.size(); i += 8) {
        quint64 word = 0;
        std::memcpy(&word, bytes.data() + i, 8);
        if (word & highBits)
            break;
    }
    while (i < bytes.size() && byteAt(bytes, i) < 0x80U)
        ++i;
    return i;
}

// The length that a lead byte promises and the least second byte that makes no shorter form possible; 0 for no lead.
struct Lead {
    qsizetype length = 0;
    uchar least = 0x80U;
    uchar most = 0xBFU;
};

Lead leadOf(uchar byte)
{
    if (byte >= 0xC2U && byte <= 0xDFU)
        return {2};
    if (byte == 0xE0U)
        return {3, 0xA0U};
    if (byte >= 0xE1U && byte <= 0xEFU)
        return {3};
    if (byte == 0xF0U)
        return {4, 0x90U};
    if (byte >= 0xF1U && byte <= 0xF3U)
        return {4};
    if (byte == 0xF4U)
        return {4, 0x80U, 0x8FU};
    return {};
}

// The length of the character at `i`, 0 if it is not valid.
qsizetype lengthAt(QByteArrayView bytes, qsizetype i)
{
    const Lead lead = leadOf(byteAt(bytes, i));
    if (lead.length == 0 || !isContinuation(bytes, i + 1))
        return 0;
    if (byteAt(bytes, i + 1) < lead.least || byteAt(bytes, i + 1) > lead.most)
        return 0;
    for (qsizetype k = 2; k < lead.length; ++k) {
        if (!isContinuation(bytes, i + k))
            return 0;
    }
    return lead.length;
}

bool isHalfAt(QByteArrayView bytes, qsizetype i)
{
    return i + 2 < bytes.size() && byteAt(bytes, i) == 0xEDU && byteAt(bytes, i + 1) >= 0xA0U;
}

bool isLowHalfAt(QByteArrayView bytes, qsizetype i)
{
    return isHalfAt(bytes, i) && byteAt(bytes, i + 1) >= 0xB0U;
}

bool isPairOfHalvesAt(QByteArrayView bytes, qsizetype i)
{
    return isHalfAt(bytes, i) && !isLowHalfAt(bytes, i) && isLowHalfAt(bytes, i + 3);
}

QString properText(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}

QChar halfAt(QByteArrayView bytes, qsizetype i)
{
    const uint code = 0xD000U | (byteAt(bytes, i + 1) & 0x3FU) << 6U | (byteAt(bytes, i + 2) & 0x3FU);
    return QChar(static_cast<char16_t>(code));
}

bool isLoneHalf(QStringView text, qsizetype i)
{
    if (text[i].isHighSurrogate())
        return i + 1 >= text.size() || !text[i + 1].isLowSurrogate();
    return text[i].isLowSurrogate() && (i == 0 || !text[i - 1].isHighSurrogate());
}

/// The place of the first half from a place on that stands alone; the text's length where there is none.
qsizetype nextLoneHalf(QStringView text, qsizetype from)
{
    const auto next = [text](qsizetype place) { return firstLike<0xF800, 0xD800>(text, place); };
    qsizetype i = next(from);
    while (i < text.size() && !isLoneHalf(text, i))
        i = next(i + 1);
    return i;
}

void appendHalf(QByteArray &bytes, char16_t code)
{
    bytes += static_cast<char>(0xED);
    bytes += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
    bytes += static_cast<char>(0x80U | (code & 0x3FU));
}
} // namespace

std::optional<Utf8Contents> utf8Contents(QByteArrayView bytes)
{
    Utf8Contents contents;
    qsizetype i = endOfAscii(bytes, 0);
    while (i < bytes.size()) {
        const qsizetype length = lengthAt(bytes, i);
        if (length == 0 || isPairOfHalvesAt(bytes, i))
            return std::nullopt;
        contents.onlyAscii = false;
        contents.loneHalves = contents.loneHalves || isHalfAt(bytes, i);
        i = endOfAscii(bytes, i + length);
    }
    return contents;
}

QString fromUtf8WithHalves(QByteArrayView bytes)
{
    QString text;
    qsizetype start = 0;
    for (qsizetype i = bytes.indexOf(static_cast<char>(0xED)); i >= 0;
         i = bytes.indexOf(static_cast<char>(0xED), i + 3)) {
        if (!isHalfAt(bytes, i))
            continue;
        text += properText(bytes.sliced(start, i - start)) + halfAt(bytes, i);
        start = i + 3;
    }
    return start == 0 ? properText(bytes) : text + properText(bytes.sliced(start));
}

bool hasLoneHalves(QStringView text)
{
    return nextLoneHalf(text, 0) < text.size();
}

QByteArray toUtf8WithHalves(QStringView text)
{
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype i = nextLoneHalf(text, 0); i < text.size(); i = nextLoneHalf(text, i + 1)) {
        bytes += text.sliced(start, i - start).toUtf8();
        appendHalf(bytes, text[i].unicode());
        start = i + 1;
    }
    return start == 0 ? text.toUtf8() : bytes + text.sliced(start).toUtf8();
}
