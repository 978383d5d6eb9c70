#include "files/documentText.h"

#include "common/documentEncoding.h"
#include "files/metaElements.h"

#include <QStringList>

namespace
{
bool isUtf16(Encoding encoding)
{
    return encoding == Encoding::Utf16LE || encoding == Encoding::Utf16BE;
}

Encoding encodingOfSave(const Document &document, SaveForm form)
{
    if (form == SaveForm::UnicodeRow)
        return Encoding::Utf16LE;
    return form == SaveForm::Plain ? document.plainEncoding : encodingOfDocument(document);
}

bool isOtherKind(Encoding a, Encoding b)
{
    const auto kind = [](Encoding encoding) { return encoding == Encoding::Utf8Bom ? Encoding::Utf8 : encoding; };
    return kind(a) != kind(b);
}

QString encodingRemark(const Document &document, SaveForm form, const EncodedText &encoded)
{
    if (encoded.switchedToUtf8)
        return QStringLiteral("Saved as UTF-8: in Windows-1252 this text would not read back the same.");
    // In the dialog the user has chosen; a plain save that changes the file's encoding is told.
    if (form == SaveForm::AsOpened && isOtherKind(encoded.encoding, document.fileFormat.encoding))
        return QStringLiteral("Saved as %1; the file was %2 before.")
            .arg(encodingName(encoded.encoding), encodingName(document.fileFormat.encoding));
    return {};
}

QString charsetRemark(const QString &pageText, Encoding encoding)
{
    const QString charset = declaredCharset(pageText);
    if (charset.isEmpty() || namesEncoding(charset, encoding))
        return {};
    return QStringLiteral("The page names the encoding \"%1\" but is saved as %2.")
        .arg(charset, encodingName(encoding));
}
} // namespace

FileFormat formatOfSave(const Document &document, SaveForm form)
{
    return {encodingOfSave(document, form), document.fileFormat.lineEnd};
}

EncodedText encodedForSave(const Document &document, SaveForm form)
{
    return encode(document.txtEdit().Text() + QStringLiteral("\r\n"), formatOfSave(document, form));
}

void noteOpened(Document &document, const DecodedText &opened, bool unicode)
{
    document.IsInUnicode = unicode;
    document.fileFormat = opened.format;
    document.mixedLineEnds = opened.mixedLineEnds;
    document.plainEncoding = isUtf16(opened.format.encoding) ? Encoding::Utf8 : opened.format.encoding;
}

void noteSaved(Document &document, Encoding written)
{
    document.fileFormat.encoding = written;
    document.mixedLineEnds = false;
    if (!isUtf16(written))
        document.plainEncoding = written;
}

QString saveRemark(const Document &document, SaveForm form, const EncodedText &encoded)
{
    QStringList remarks{encodingRemark(document, form, encoded),
                        charsetRemark(document.txtEdit().Text(), encoded.encoding)};
    remarks.removeAll(QString());
    return remarks.join(u' ');
}
