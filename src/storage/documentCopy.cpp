#include "storage/documentCopy.h"

#include "common/documentEncoding.h"
#include "common/paths.h"
#include "services/fileSystem.h"
#include "services/services.h"

DocumentCopy writeDocumentCopy(Services &services, const Document &document, const QString &name)
{
    const QString path = joinPath(services.appPath, name);
    FileFormat format = formatOfDocument(document, encodingOfDocument(document));
    format.lineEnd = LineEnd::CrLf;
    const QByteArray bytes = encode(document.txtEdit().Text(), format).bytes;
    return {path, services.files.writeScratch(path, bytes), bytes};
}
