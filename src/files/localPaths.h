#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

/// The paths of local files in a page, and the mark that stands for their folder in a combined template's page.

/// Stands in a packed page for the folder of the accompanying files, whatever it turns out to be.
constexpr QChar FolderMark = QChar(1);

/// The files of one page that are packed with it, at most.
constexpr int MostAccompanyingFiles = 999;

/// A page whose local paths are reduced to a mark and the file's bare name, and the paths that stood there.
struct ReducedPage {
    QString text;
    QStringList files; ///< each once, in the order of their first use
};

/// Reduces the local paths of a page. A path is the text between two double quotation marks inside a tag that holds the
/// mark of a full local path, starts with a letter or a backslash, or with a "/", and names an existing file, which
/// `isFile` tells.
ReducedPage reduceLocalPaths(const QString &page, const std::function<bool(const QString &)> &isFile);

/// The places of the mark in a text, from the first.
QList<qsizetype> folderMarks(const QString &text);
