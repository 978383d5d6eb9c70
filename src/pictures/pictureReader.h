#pragma once

#include <QByteArray>
#include <QStringList>
#include <functional>
#include <optional>

class QSize;

/// Does the work of the process that reads a picture: the exit status if this is one, nothing in any other process. It
/// goes before all else in the main function of each program that calls LoadPicture.
std::optional<int> readPictureIfAsked(int argc, char **argv);

/// How LoadPicture and its reader talk.
namespace pictureReader
{
inline constexpr const char *Mark = "TAGWRIGHTER_READS_PICTURE"; ///< set in the environment of a reader
inline constexpr char Ready = 'R'; ///< the first byte that a reader writes: it is about to open the file

/// The arguments of a reader. It writes the picture's size and then its pixels, each as a QDataStream has them: two
/// qint32 for a size; two more and the bytes of Format_ARGB32_Premultiplied, row by row, for the pixels. It ends with
/// 0 unless the file holds no picture.
QStringList arguments(const QString &path, const QSize &largest);

/// What a reader does on its way through a picture.
struct Steps {
    std::function<void(const QByteArray &)> send;
    std::function<void()> beforeDrawing; ///< the picture is a drawing, which may name other files
};
/// The reading itself, of a file's bytes. False if they are no picture, of which the size may have been sent by then.
bool decode(QByteArray bytes, const QSize &largest, const Steps &steps);
} // namespace pictureReader
