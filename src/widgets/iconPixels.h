#pragma once

#include <QtGlobal>

class QColor;
class QImage;
class QString;

/// How the build keeps the icons that it has drawn: a file for each size, `:/icons/SIDE.pixels`, which begins with the
/// number of its icons (quint32) and one of these for each, in the order of their names. Pixels are compressed, each
/// icon's by themselves: a start wants a few of them, and all would be in its memory otherwise.
struct IconPixels {
    char name[24] = {}; ///< ends with a 0
    quint32 isColoured =
        0;              ///< four bytes a pixel, as QImage::Format_ARGB32_Premultiplied; otherwise one, how opaque it is
    quint32 place = 0;  ///< of its pixels, as qCompress() makes them, in bytes from the file's start
    quint32 length = 0; ///< of those, in bytes
};

/// An icon of the set, of so many pixels at each side, in a colour unless it has its own. Null if the build has drawn
/// none of that name and size.
QImage drawnIcon(const QString &name, int side, const QColor &colour);
