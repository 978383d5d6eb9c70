#include "houseFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

QStringList filesUnder(const QString &folder, const QStringList &patterns)
{
    QStringList result;
    for (QDirIterator i(folder, patterns, QDir::Files, QDirIterator::Subdirectories); i.hasNext();)
        result << QDir(folder).relativeFilePath(i.next());
    result.sort();
    return result;
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
