#include "common/charsets.h"

#include <algorithm>
#include <array>
#include <memory>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

namespace
{
/// Labels of pages, and the encoding that a browser takes them for. Labels that the library knows as the same encoding
/// need no row.
struct LabelRow {
    const char *label;
    const char *charset;
};

// clang-format off
constexpr std::array labelRows{
    LabelRow{"866", "IBM866"}, LabelRow{"cp866", "IBM866"}, LabelRow{"csibm866", "IBM866"}, LabelRow{"ibm866", "IBM866"},
    LabelRow{"latin2", "ISO-8859-2"}, LabelRow{"iso8859-2", "ISO-8859-2"}, LabelRow{"iso-8859-2", "ISO-8859-2"},
    LabelRow{"iso-8859-3", "ISO-8859-3"}, LabelRow{"iso-8859-4", "ISO-8859-4"}, LabelRow{"iso-8859-5", "ISO-8859-5"},
    LabelRow{"iso-8859-6", "ISO-8859-6"}, LabelRow{"iso-8859-7", "ISO-8859-7"}, LabelRow{"iso-8859-8", "ISO-8859-8"},
    LabelRow{"iso-8859-8-i", "ISO-8859-8"}, LabelRow{"logical", "ISO-8859-8"}, LabelRow{"visual", "ISO-8859-8"},
    LabelRow{"iso-8859-10", "ISO-8859-10"}, LabelRow{"iso-8859-13", "ISO-8859-13"},
    LabelRow{"iso-8859-14", "ISO-8859-14"}, LabelRow{"iso-8859-15", "ISO-8859-15"}, LabelRow{"latin9", "ISO-8859-15"},
    LabelRow{"iso-8859-9", "windows-1254"}, LabelRow{"iso8859-9", "windows-1254"}, LabelRow{"latin5", "windows-1254"},
    LabelRow{"iso-8859-11", "windows-874"}, LabelRow{"tis-620", "windows-874"}, LabelRow{"dos-874", "windows-874"},
    LabelRow{"windows-874", "windows-874"},
    LabelRow{"koi", "KOI8-R"}, LabelRow{"koi8", "KOI8-R"}, LabelRow{"koi8_r", "KOI8-R"}, LabelRow{"koi8-r", "KOI8-R"},
    LabelRow{"cskoi8r", "KOI8-R"}, LabelRow{"koi8-u", "KOI8-U"}, LabelRow{"koi8-ru", "KOI8-U"},
    LabelRow{"mac", "macintosh"}, LabelRow{"macintosh", "macintosh"}, LabelRow{"x-mac-roman", "macintosh"},
    LabelRow{"x-mac-cyrillic", "x-mac-cyrillic"}, LabelRow{"x-mac-ukrainian", "x-mac-cyrillic"},
    LabelRow{"windows-1250", "windows-1250"}, LabelRow{"cp1250", "windows-1250"}, LabelRow{"x-cp1250", "windows-1250"},
    LabelRow{"windows-1251", "windows-1251"}, LabelRow{"cp1251", "windows-1251"}, LabelRow{"x-cp1251", "windows-1251"},
    LabelRow{"windows-1253", "windows-1253"}, LabelRow{"cp1253", "windows-1253"},
    LabelRow{"windows-1254", "windows-1254"}, LabelRow{"cp1254", "windows-1254"},
    LabelRow{"windows-1255", "windows-1255"}, LabelRow{"windows-1256", "windows-1256"},
    LabelRow{"windows-1257", "windows-1257"}, LabelRow{"windows-1258", "windows-1258"},
    LabelRow{"gb2312", "GBK"}, LabelRow{"gb_2312-80", "GBK"}, LabelRow{"chinese", "GBK"}, LabelRow{"gbk", "GBK"},
    LabelRow{"x-gbk", "GBK"}, LabelRow{"gb18030", "gb18030"},
    LabelRow{"big5", "Big5"}, LabelRow{"big5-hkscs", "Big5"}, LabelRow{"cn-big5", "Big5"}, LabelRow{"x-x-big5", "Big5"},
    LabelRow{"euc-jp", "EUC-JP"}, LabelRow{"x-euc-jp", "EUC-JP"}, LabelRow{"iso-2022-jp", "ISO-2022-JP"},
    LabelRow{"shift_jis", "Shift_JIS"}, LabelRow{"shift-jis", "Shift_JIS"}, LabelRow{"sjis", "Shift_JIS"},
    LabelRow{"x-sjis", "Shift_JIS"}, LabelRow{"ms_kanji", "Shift_JIS"}, LabelRow{"windows-31j", "Shift_JIS"},
    LabelRow{"euc-kr", "EUC-KR"}, LabelRow{"korean", "EUC-KR"}, LabelRow{"ks_c_5601-1987", "EUC-KR"},
    LabelRow{"ksc5601", "EUC-KR"}, LabelRow{"windows-949", "EUC-KR"},
};

/// Where the library means another encoding by the name than browsers do.
constexpr std::array libraryRows{
    LabelRow{"ISO-8859-8", "ISO-8859-8"}, LabelRow{"Shift_JIS", "windows-31j"}, LabelRow{"EUC-KR", "windows-949"},
    LabelRow{"Big5", "Big5-HKSCS"},
};
// clang-format on

template <std::size_t Count>
const char *rowOf(const std::array<LabelRow, Count> &rows, const QString &label)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const LabelRow &row) {
        return label.compare(QLatin1String(row.label), Qt::CaseInsensitive) == 0;
    });
    return found == rows.end() ? nullptr : found->charset;
}

struct CloseConverter {
    void operator()(UConverter *converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

/// A converter that stops at what it cannot convert; nothing for a name that the library does not know.
Converter converterOf(const QString &charset)
{
    const char *library = rowOf(libraryRows, charset);
    const QByteArray name = library ? QByteArray(library) : charset.toLatin1();
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(name.constData(), &status));
    if (U_FAILURE(status) || !converter)
        return {};
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    ucnv_setFallback(converter.get(), false);
    return U_SUCCESS(status) ? std::move(converter) : Converter();
}

/// Encodings that are told by their bytes, or that have states of their own for what markup is written in.
bool isToldOtherwise(UConverter *converter)
{
    switch (ucnv_getType(converter)) {
    case UCNV_UTF8:
    case UCNV_UTF16_BigEndian:
    case UCNV_UTF16_LittleEndian:
    case UCNV_UTF16:
    case UCNV_UTF32_BigEndian:
    case UCNV_UTF32_LittleEndian:
    case UCNV_UTF32:
    case UCNV_UTF7:
    case UCNV_IMAP_MAILBOX:
    case UCNV_CESU8:
    case UCNV_SCSU:
    case UCNV_BOCU1:
    case UCNV_HZ:
    case UCNV_LATIN_1:
    case UCNV_US_ASCII:
        return true;
    default:
        return false;
    }
}

bool holdsAscii(const QString &charset)
{
    QByteArray ascii("\t\n\r");
    for (char c = ' '; c <= '~'; ++c)
        ascii += c;
    return fromCharset(ascii, charset) == QString::fromLatin1(ascii);
}

bool isWindows1252(const QString &charset)
{
    UErrorCode status = U_ZERO_ERROR;
    const char *standard = ucnv_getStandardName(charset.toLatin1().constData(), "IANA", &status);
    return standard && qstricmp(standard, "windows-1252") == 0;
}

std::optional<QString> decoded(UConverter &converter, const QByteArray &bytes)
{
    // No encoding here has a byte that stands for more than two characters.
    QString text(bytes.size() * 2 + 1, Qt::Uninitialized);
    auto *const start = reinterpret_cast<char16_t *>(text.data());
    char16_t *out = start;
    const char *in = bytes.constData();
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(&converter, &out, start + text.size(), &in, in + bytes.size(), nullptr, true, &status);
    if (U_FAILURE(status))
        return std::nullopt;
    text.truncate(out - start);
    return text;
}
} // namespace

std::optional<QString> charsetOfLabel(const QString &label)
{
    const QString name = label.trimmed();
    if (const char *known = rowOf(labelRows, name))
        return QString::fromLatin1(known);
    const Converter converter = converterOf(name);
    if (name.isEmpty() || !converter || isToldOtherwise(converter.get()) || isWindows1252(name) || !holdsAscii(name))
        return std::nullopt;
    return name;
}

std::optional<QString> fromCharset(const QByteArray &bytes, const QString &charset)
{
    const Converter converter = converterOf(charset);
    if (!converter)
        return std::nullopt;
    std::optional<QString> text = decoded(*converter, bytes);
    return text && toCharset(*text, charset) == bytes ? text : std::nullopt;
}

std::optional<QByteArray> toCharset(QStringView text, const QString &charset)
{
    const Converter converter = converterOf(charset);
    if (!converter)
        return std::nullopt;
    const auto room = UCNV_GET_MAX_BYTES_FOR_STRING(text.size(), ucnv_getMaxCharSize(converter.get()));
    QByteArray bytes(static_cast<qsizetype>(room), Qt::Uninitialized);
    char *out = bytes.data();
    const auto *in = reinterpret_cast<const char16_t *>(text.utf16());
    UErrorCode status = U_ZERO_ERROR;
    ucnv_fromUnicode(converter.get(), &out, out + bytes.size(), &in, in + text.size(), nullptr, true, &status);
    if (U_FAILURE(status))
        return std::nullopt;
    bytes.truncate(out - bytes.constData());
    return bytes;
}
