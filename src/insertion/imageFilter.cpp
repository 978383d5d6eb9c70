#include "insertion/imageFilter.h"

QString imageFilter(const QString &supported)
{
    return QStringLiteral("All Files (*.*)|*.*|%1|*.gif;*.jpg;*.jpeg;*.bmp;*.dib;*.ico;*.cur"
                          "|GIF Files (*.gif)|*.gif|JPEG Files (*.jpg; *.jpeg)|*.jpg;*.jpeg"
                          "|Bitmap Files (*.bmp; *.dib)|*.bmp;*.dib|Icons and Cursor Files (*.ico; *.cur)|*.ico;*.cur")
        .arg(supported);
}
