#include "insertion/imageFilter.h"

#include "common/fileBook.h"
#include "common/programState.h"
#include "forms/programContext.h"

QString imageFilter(const ProgramContext &context, const QString &supported)
{
    const FileBook &book = fileBook(context.state.habits);
    return QStringLiteral("All Files (*.*)|*.*|%1|*.%2"
                          "|GIF Files (*.gif)|*.gif|JPEG Files (*.jpg; *.jpeg)|*.jpg;*.jpeg"
                          "|Bitmap Files (*.bmp; *.dib)|*.bmp;*.dib|Icons and Cursor Files (*.ico; *.cur)|*.ico;*.cur")
               .arg(supported, book.pictureKinds.join(QLatin1String(";*."))) +
           book.pictureRows;
}
