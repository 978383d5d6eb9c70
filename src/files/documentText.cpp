#include "files/documentText.h"

#include "common/document.h"
#include "common/documentEncoding.h"
#include "common/pageCharset.h"

#include <QStringList>

namespace
{
Encoding encodingOfSave(const Document &document, SaveForm form)
{
    if (form == SaveForm::UnicodeRow)
        return Encoding::Utf16LE;
    return form == SaveForm::Plain ? document.plainEncoding : encodingOfDocument(document);
}

bool isOtherKind(const FileFormat &a, const FileFormat &b)
{
    const auto kind = [](const FileFormat &format) {
        return format.encoding == Encoding::Utf8Bom ? Encoding::Utf8 : format.encoding;
    };
    return kind(a) != kind(b);
}

QString encodingRemark(const Document &document, SaveForm form, const EncodedText &encoded)
{
    if (encoded.switchedToUtf8)
        return QStringLiteral("Saved as UTF-8: in %1 this text would not read back the same.")
            .arg(encodingName(formatOfSave(document, form)));
    // In the dialog the user has chosen; a plain save that changes the file's encoding is told.
    const FileFormat written = formatOfDocument(document, encoded.encoding);
    if (form == SaveForm::AsOpened && isOtherKind(written, document.fileFormat))
        return QStringLiteral("Saved as %1; the file was %2 before.")
            .arg(encodingName(written), encodingName(document.fileFormat));
    return {};
}

QString charsetRemark(const QString &pageText, const FileFormat &format)
{
    const QString charset = declaredCharset(pageText);
    if (charset.isEmpty() || namesEncoding(charset, format))
        return {};
    return QStringLiteral("The page names the encoding \"%1\" but is saved as %2.").arg(charset, encodingName(format));
}

QString withBreak(const QString &text)
{
    return text + QStringLiteral("\r\n");
}
} // namespace

FileFormat formatOfSave(const Document &document, SaveForm form)
{
    return formatOfDocument(document, encodingOfSave(document, form));
}

EncodedText encodedForSave(const QString &text, const Document &document, SaveForm form, const Habits &habits)
{
    return encode(habits.HabitSave ? text : withBreak(text), formatOfSave(document, form));
}

void noteOpened(Document &document, const DecodedText &opened, bool unicode)
{
    document.IsInUnicode = unicode;
    document.fileFormat = opened.format;
    document.mixedLineEnds = opened.mixedLineEnds;
    document.plainEncoding = unicode ? Encoding::Utf8 : opened.format.encoding; // UTF-16 by its mark stays so
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
                        charsetRemark(document.txtEdit().Text(), formatOfDocument(document, encoded.encoding))};
    remarks.removeAll(QString());
    return remarks.join(u' ');
}
