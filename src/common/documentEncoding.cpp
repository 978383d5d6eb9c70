#include "common/documentEncoding.h"

Encoding encodingOfDocument(const Document &document)
{
    if (!document.IsInUnicode)
        return document.plainEncoding;
    return document.fileFormat.encoding == Encoding::Utf16BE ? Encoding::Utf16BE : Encoding::Utf16LE;
}

FileFormat formatOfDocument(const Document &document, Encoding encoding)
{
    return {encoding, document.fileFormat.lineEnd, document.fileFormat.charset};
}

bool isUtf16(Encoding encoding)
{
    return encoding == Encoding::Utf16LE || encoding == Encoding::Utf16BE;
}
