#include "common/fileFormatText.h"

#include "common/document.h"

QString fileFormatText(const Document &document)
{
    const FileFormat &format = document.fileFormat;
    const QString lineEnd = lineEndName(format.lineEnd);
    if (document.mixedLineEnds)
        return QStringLiteral("%1, mixed line ends (saved as %2)").arg(encodingName(format), lineEnd);
    return encodingName(format) + QStringLiteral(", ") + lineEnd;
}
