#pragma once

#include <QIcon>
#include <QList>

/// The small pictures of the project's lists: 1 an editor file, 2 an other file.
QList<QIcon> projectFileIcons();

/// Those of the local files, and which of them a file has by the extension of its name; both count from 1.
QList<QIcon> localFileIcons();
int localFileIcon(const QString &path);
