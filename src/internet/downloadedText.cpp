#include "internet/downloadedText.h"

#include "common/charsets.h"
#include "common/pageCharset.h"

#include <QStringDecoder>

namespace
{
const QByteArray Utf8Mark = QByteArrayLiteral("\xEF\xBB\xBF");

/// Windows-1252 even where the bytes would pass for UTF-8. Decoded, they go a way on which nothing but their line ends
/// is left to guess.
DecodedText decodeWindows1252(const QByteArray &bytes)
{
    QStringDecoder decoder("windows-1252", QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    DecodedText read = decode(Utf8Mark + text.toUtf8());
    read.format.encoding = Encoding::Windows1252;
    return read;
}
} // namespace

DecodedText decodeDownload(const QByteArray &bytes, const QString &charset)
{
    const QString label = charset.trimmed().toLower();
    if (!label.isEmpty() && namesEncoding(label, {.encoding = Encoding::Windows1252}))
        return decodeWindows1252(bytes);
    if (label.startsWith(u"utf-16"))
        return decode(bytes, true);
    const std::optional<QString> known = charsetOfLabel(label);
    const std::optional<DecodedText> read = known ? decodeAs(bytes, *known) : std::nullopt;
    return read ? *read : decodePage(bytes);
}
