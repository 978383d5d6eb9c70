#include "common/encodings.h"

#include "common/charsets.h"
#include "common/lineBreaks.h"
#include "common/text.h"
#include "common/utf8.h"
#include "common/windows1252.h"

#include <QSet>
#include <QtEndian>

#include <algorithm>

namespace
{
constexpr QByteArrayView utf8Mark("\xEF\xBB\xBF", 3);
constexpr char16_t byteOrderMark = 0xFEFF;

std::optional<QByteArray> toWindows1252(const QString &text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *out = bytes.data();
    for (const QChar c : text) {
        const std::optional<char> byte = windows1252Byte(c.unicode());
        if (!byte)
            return std::nullopt;
        *out++ = *byte;
    }
    return bytes;
}

// UTF-8, with a byte order mark or without if the bytes are that. Halves of pairs are taken behind a mark alone, as no
// other program writes them and a page in Windows-1252 may by chance.
std::optional<Encoding> utf8EncodingOf(QByteArrayView bytes)
{
    const std::optional<Utf8Contents> contents = utf8Contents(bytes);
    if (!contents)
        return std::nullopt;
    if (bytes.startsWith(utf8Mark))
        return Encoding::Utf8Bom;
    return contents->loneHalves ? std::nullopt : std::optional(Encoding::Utf8);
}

struct RawText {
    QString text;
    Encoding encoding = Encoding::Utf8;
};

RawText fromUtf16(const QByteArray &bytes)
{
    const bool bigEndian = bytes.startsWith("\xFE\xFF");
    const bool marked = bigEndian || bytes.startsWith("\xFF\xFE");
    QByteArray whole = bytes.sliced(marked ? 2 : 0);
    if (whole.size() % 2 != 0)
        whole += '\0';
    QString text(whole.size() / 2, Qt::Uninitialized);
    if (bigEndian)
        qFromBigEndian<char16_t>(whole.constData(), text.size(), text.data());
    else
        qFromLittleEndian<char16_t>(whole.constData(), text.size(), text.data());
    return {text, bigEndian ? Encoding::Utf16BE : Encoding::Utf16LE};
}

QByteArray toUtf16(const QString &text, bool bigEndian)
{
    const QString marked = QChar(byteOrderMark) + text;
    QByteArray bytes(marked.size() * 2, Qt::Uninitialized);
    if (bigEndian)
        qToBigEndian<char16_t>(marked.constData(), marked.size(), bytes.data());
    else
        qToLittleEndian<char16_t>(marked.constData(), marked.size(), bytes.data());
    return bytes;
}

RawText fromPlainBytes(const QByteArray &bytes)
{
    const std::optional<Encoding> encoding = utf8EncodingOf(bytes);
    if (!encoding)
        return {fromWindows1252(bytes), Encoding::Windows1252};
    const qsizetype start = encoding == Encoding::Utf8Bom ? utf8Mark.size() : 0;
    return {fromUtf8WithHalves(QByteArrayView(bytes).sliced(start)), *encoding};
}

LineEnd lineEndOf(const LineBreaks &breaks)
{
    if (breaks.cr > 0 && breaks.lf == 0 && breaks.crLf == 0)
        return LineEnd::Cr;
    return breaks.lf > breaks.crLf ? LineEnd::Lf : LineEnd::CrLf;
}

QString withOnlyCrLf(const QString &text, const LineBreaks &breaks)
{
    return breaks.areAllCrLf() ? text : withCrLf(text);
}

QString withLineEnd(const QString &text, LineEnd lineEnd)
{
    QString normal = withOnlyCrLf(text, lineBreaksOf(text));
    if (lineEnd != LineEnd::CrLf)
        normal.remove(lineEnd == LineEnd::Lf ? u'\r' : u'\n');
    return normal;
}

DecodedText withBreaksCounted(const QString &raw, Encoding encoding)
{
    const LineBreaks breaks = lineBreaksOf(raw);
    const int kinds = (breaks.crLf > 0 ? 1 : 0) + (breaks.lf > 0 ? 1 : 0) + (breaks.cr > 0 ? 1 : 0);
    return {withOnlyCrLf(raw, breaks), {encoding, lineEndOf(breaks), {}}, kinds > 1};
}

EncodedText asUtf8(const QString &text, bool mark)
{
    const bool needsMark = mark || text.startsWith(QChar(byteOrderMark)) || hasLoneHalves(text);
    const QByteArray bytes = toUtf8WithHalves(text);
    if (!needsMark)
        return {bytes, Encoding::Utf8};
    return {utf8Mark.toByteArray() + bytes, Encoding::Utf8Bom};
}

EncodedText insteadAsUtf8(const QString &text)
{
    EncodedText encoded = asUtf8(text, false);
    encoded.switchedToUtf8 = true;
    return encoded;
}

EncodedText asWindows1252(const QString &text)
{
    if (const std::optional<QByteArray> bytes = toWindows1252(text)) {
        const std::optional<Utf8Contents> contents = utf8Contents(*bytes);
        const bool isUtf8 = utf8EncodingOf(*bytes) && !(contents && contents->onlyAscii);
        if (!isUtf8 && !hasUtf16Mark(*bytes))
            return {*bytes, Encoding::Windows1252};
    }
    return insteadAsUtf8(text);
}

EncodedText asOther(const QString &text, const QString &charset)
{
    if (const std::optional<QByteArray> bytes = toCharset(text, charset); bytes && !hasUtf16Mark(*bytes)) {
        const std::optional<Utf8Contents> contents = utf8Contents(*bytes);
        if (!contents || contents->onlyAscii)
            return {*bytes, Encoding::Other};
    }
    return insteadAsUtf8(text);
}

/// Whether the encoding has a place for one character, which may be a pair.
bool fits(QStringView character, const FileFormat &format)
{
    if (format.encoding == Encoding::Windows1252)
        return character.size() == 1 && windows1252Byte(character.front().unicode());
    return format.encoding != Encoding::Other || toCharset(character, format.charset);
}

/// The length of the character that starts there: 2 for a pair.
qsizetype lengthOfCharacter(QStringView text, qsizetype start)
{
    const bool pair = text[start].isHighSurrogate() && start + 1 < text.size() && text[start + 1].isLowSurrogate();
    return pair ? 2 : 1;
}

QString referenceTo(QStringView character)
{
    if (character.size() == 1 && character.front().isSurrogate())
        return character.toString();
    const char32_t code = character.size() == 2 ? QChar::surrogateToUcs4(character[0], character[1])
                                                : char32_t(character.front().unicode());
    return QStringLiteral("&#%1;").arg(static_cast<uint>(code));
}
} // namespace

bool hasUtf16Mark(const QByteArray &bytes)
{
    return bytes.size() % 2 == 0 && (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"));
}

DecodedText decode(const QByteArray &bytes, bool unicodeRow)
{
    const RawText raw = unicodeRow ? fromUtf16(bytes) : fromPlainBytes(bytes);
    return withBreaksCounted(raw.text, raw.encoding);
}

std::optional<DecodedText> decodeAs(const QByteArray &bytes, const QString &charset)
{
    const std::optional<QString> text = fromCharset(bytes, charset);
    if (!text)
        return std::nullopt;
    DecodedText decoded = withBreaksCounted(*text, Encoding::Other);
    decoded.format.charset = charset;
    return decoded;
}

EncodedText encode(const QString &text, const FileFormat &format)
{
    const QString lines = withLineEnd(text, format.lineEnd);
    switch (format.encoding) {
    case Encoding::Utf16LE:
    case Encoding::Utf16BE:
        return {toUtf16(lines, format.encoding == Encoding::Utf16BE), format.encoding};
    case Encoding::Windows1252:
        return asWindows1252(lines);
    case Encoding::Other:
        return asOther(lines, format.charset);
    case Encoding::Utf8:
    case Encoding::Utf8Bom:
        break;
    }
    return asUtf8(lines, format.encoding == Encoding::Utf8Bom);
}

QStringList charactersThatDoNotFit(const QString &text, const FileFormat &format)
{
    QStringList characters;
    QSet<QString> seen;
    for (qsizetype place = 0; place < text.size(); place += lengthOfCharacter(text, place)) {
        if (text[place].unicode() < 0x80)
            continue;
        const QString character = text.sliced(place, lengthOfCharacter(text, place));
        if (seen.contains(character))
            continue;
        seen.insert(character);
        if (!fits(character, format))
            characters.append(character);
    }
    return characters;
}

QString withReferences(const QString &text, const FileFormat &format)
{
    const QStringList unfit = charactersThatDoNotFit(text, format);
    if (unfit.isEmpty() && !encode(text, format).switchedToUtf8)
        return text;
    const QSet<QString> replaced(unfit.begin(), unfit.end());
    QString written;
    written.reserve(text.size());
    for (qsizetype place = 0; place < text.size();) {
        const QStringView character = QStringView(text).sliced(place, lengthOfCharacter(text, place));
        const bool ascii = character.front().unicode() < 0x80;
        const bool refer = !ascii && (replaced.isEmpty() || replaced.contains(character.toString()));
        written += refer ? referenceTo(character) : character.toString();
        place += character.size();
    }
    return written;
}

QByteArray encodeOwnFile(const QString &text)
{
    return encode(text, {Encoding::Windows1252, LineEnd::CrLf, {}}).bytes;
}

QString decodeOwnFile(const QByteArray &bytes)
{
    return decode(bytes).text;
}

QString encodingName(const FileFormat &format)
{
    switch (format.encoding) {
    case Encoding::Utf8:
        return QStringLiteral("UTF-8");
    case Encoding::Utf8Bom:
        return QStringLiteral("UTF-8 with mark");
    case Encoding::Windows1252:
        return QStringLiteral("Windows-1252");
    case Encoding::Utf16LE:
        return QStringLiteral("UTF-16 LE");
    case Encoding::Utf16BE:
        return QStringLiteral("UTF-16 BE");
    case Encoding::Other:
        return format.charset;
    }
    return QString();
}

QString lineEndName(LineEnd lineEnd)
{
    switch (lineEnd) {
    case LineEnd::CrLf:
        return QStringLiteral("CR LF");
    case LineEnd::Lf:
        return QStringLiteral("LF");
    case LineEnd::Cr:
        return QStringLiteral("CR");
    }
    return QString();
}
