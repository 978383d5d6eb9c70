#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The texts by which a Linux desktop learns of the program's kinds of files.

/// The package of MIME types for those of the program's own.
QString mimePackage();

/// The desktop entry of the program at `program`.
QString desktopEntry(const QString &program);

/// A program's path as the first word of an Exec line.
QString execWord(const QString &program);

/// The user's list of associations with the program's in it: first in the defaults of the types it opens, and behind
/// all others, `otherHtmlPrograms` too, for those it is only offered for. All other lines stay as they are.
QString withAssociations(const QString &mimeApps, const QStringList &otherHtmlPrograms);

/// The programs for a type in a desktop's cache ("type=a.desktop;b.desktop;").
QStringList programsInCache(const QString &cache, const QString &mimeType);
