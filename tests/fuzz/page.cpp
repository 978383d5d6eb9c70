// A page from the disk, in whatever encoding it is or says it is.
#include "common/charsets.h"
#include "common/pageCharset.h"
#include "common/tags.h"
#include "files/metaElements.h"
#include "fuzz/fuzzInput.h"
#include "project/linkScan.h"

namespace
{
constexpr const char *Charsets[] = {"KOI8-R",       "windows-1251", "windows-1254", "ISO-8859-2", "Shift_JIS",
                                    "EUC-JP",       "ISO-2022-JP",  "GB18030",      "Big5",       "EUC-KR",
                                    "windows-1255", "windows-874",  "IBM866",       "UTF-16BE",   "no such"};

/// What is saved as it was opened has the same bytes, and what is read again is the same text.
void comesBack(const QByteArray &bytes, const DecodedText &page, bool unicodeRow)
{
    const EncodedText saved = encode(page.text, page.format);
    if (!page.mixedLineEnds && !unicodeRow)
        HAS_TO_HOLD(saved.bytes == bytes);
    HAS_TO_HOLD(decodePage(saved.bytes, unicodeRow).text == page.text);
}

void readsAs(const QByteArray &bytes, const QString &label)
{
    const std::optional<QString> charset = charsetOfLabel(label);
    const std::optional<DecodedText> page = charset ? decodeAs(bytes, *charset) : std::nullopt;
    if (!page || page->mixedLineEnds)
        return;
    const EncodedText saved = encode(page->text, page->format);
    HAS_TO_HOLD(saved.bytes == bytes || (saved.switchedToUtf8 && decodePage(saved.bytes).text == page->text));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const bool unicodeRow = input.number() % 2 == 1;
    const QString charset = QLatin1String(input.oneOf(Charsets));
    const QByteArray bytes = input.rest();
    const DecodedText page = decodePage(bytes, unicodeRow);
    comesBack(bytes, page, unicodeRow);
    readsAs(bytes, charset);
    (void)withDeclaredCharset(page.text, charset);
    (void)withReferences(page.text, page.format);
    (void)metaContent(page.text, QStringLiteral("author"));
    (void)withoutTags(page.text);
    for (LinkScan links(page.text); links.next();)
        HAS_TO_HOLD(links.position() > 0 && links.position() <= page.text.size());
    const QByteArray own = encodeOwnFile(page.text);
    HAS_TO_HOLD(decodeOwnFile(own) == page.text);
    return 0;
}
