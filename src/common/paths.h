#pragma once

#include <QString>

/// Path helpers. Those with capital names keep rules that other behaviour rests on, odd ones included; what opens,
/// joins or takes apart real files uses the plain ones below. A path that starts with a single "/" is split at "/",
/// every other text at "\".

/// The character at which a path is split: '/' or '\'.
QChar separatorOf(QStringView path);

/// The text with a "\" in front unless it starts with one.
QString PrependBackslash(const QString &text);
/// What stands behind the last separator; the whole path without one.
QString FileNameOnly(const QString &path);
/// What stands before the first place at which the file name occurs in the path, be it in a folder's name: "c:\" for
/// "c:\a\a", and nothing for a path that ends with its separator.
QString FolderOfPath(const QString &path);
/// The two for URLs, split at "/".
QString UrlNameOnly(const QString &url);
QString UrlFolderOfPath(const QString &url);
/// What stands behind the last ".", without it; nothing if there is none or a separator follows it.
QString GetFileExtension(const QString &path);
/// A size in bytes as kilobytes, rounded down, but 1 for anything from 1 to 1023.
qint64 GetFileSizeKB(qint64 bytes);
/// Every "\" as "/".
QString NetPathName(const QString &path);

/// The folder with its final separator, by the last separator; nothing for a bare name.
QString folderOf(const QString &path);
/// `name` in `folder`, with the folder's separator between them unless one stands there already. An empty folder gives
/// the name.
QString joinPath(const QString &folder, const QString &name);
/// The path without the separators at its end; a root stays.
QString withoutFinalSeparator(const QString &path);
