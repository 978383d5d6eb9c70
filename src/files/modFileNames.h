#pragma once

#include <QString>

class Document;
class FileSystem;
class MainWindow;

/// Whether a file, and no folder, of that path is there.
bool FileExists(FileSystem &files, const QString &path);

/// Whether the path leads to the document's file: it is the document's own, or another way there.
bool isFileOf(FileSystem &files, const Document &document, const QString &path);

/// Whether an open document other than the active one bears that path, letter case ignored, or another that leads to
/// its file. `ownPath` is the active document's: that one is its own to save to.
bool IsFileOpen(const MainWindow &mainWindow, FileSystem &files, const QString &path, const QString &ownPath);

/// Whether a file name, without a folder, holds none of the characters ? * : / \ " < > |
bool IsFileNameClean(const QString &name);

/// The name a new page is offered under: its title and ".html". Nothing if the title is empty, still the built-in one,
/// 50 characters or longer, broken over lines or no name for a file, or if `folder` has a file of that name, or of the
/// name with ".html", already.
QString DefaultFileNameFromTitle(const QString &pageText, const QString &folder, FileSystem &files);
