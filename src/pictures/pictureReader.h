#pragma once

#include <QByteArray>
#include <QStringList>
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
} // namespace pictureReader
