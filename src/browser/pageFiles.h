#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>

class QIODevice;

/// Which files of the machine a page gets to see.
namespace pageFiles
{
/// The media type of what a page shows, by the name's ending: pictures, styles, fonts, scripts, frames, sounds and
/// films. Empty for anything else.
QByteArray shownType(const QString &name);

/// The media type of a page that the program itself shows, which may have any name: what the name does not tell is seen
/// from its first bytes. "application/octet-stream" for what is no text.
QByteArray pageType(const QString &name, const QByteArray &beginning);

/// Whether no part of a relative path is empty, hidden, or leads up.
bool isPlain(const QString &relative);

/// What a file has to be in order to be handed out.
struct Fence {
    QString folder;     ///< it stands in here or below, links on its way followed, and no folder in between is hidden
    QStringList closed; ///< nothing in or below these is handed out, unless `folder` itself lies below
};

/// A regular file, open for reading, that stands within the fence and has no other name beside its own, under which it
/// could stand elsewhere. Nothing if it is not such a file.
std::unique_ptr<QIODevice> openWithin(const QString &path, const Fence &fence);
/// Any regular file.
std::unique_ptr<QIODevice> openRegular(const QString &path);
} // namespace pageFiles
