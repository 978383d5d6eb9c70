#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <optional>

class QIODevice;

/// A picture as it was read from a file.
struct LoadedPicture {
    QSize size;    ///< its own size in pixels, as a browser shows it
    QImage pixels; ///< the picture, at most as large as was asked for; null if it would take too long or too much
};

/// Reads a picture, or the first frame of an animated one, from a regular file; nothing if the file holds none.
/// `largest` is what the pixels are shrunk to where the picture is larger.
///
/// Whatever the file holds, the reading takes no longer than a second and no more than 256 MB, and it cannot bring the
/// program down: it is done by a second process of the program itself, whose main function begins with
/// readPictureIfAsked.
std::optional<LoadedPicture> LoadPicture(const QString &path, const QSize &largest);

/// What the second process has answered, which nobody can vouch for: a picture may have got the better of it. Nothing
/// if it tells no size.
std::optional<LoadedPicture> pictureOfAnswer(QIODevice &answer, const QSize &largest);
