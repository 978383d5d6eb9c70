#include "desktop/programFolder.h"

#include "common/paths.h"
#include "storage/wholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <QStandardPaths>

namespace
{
// The list of what was put into the folder already. What is on it and no longer there, the user took away.
const char *const listOfSeeds = ".installed";

bool holdsDataFiles(const QString &folder)
{
    return QFile::exists(joinPath(folder, QStringLiteral("Html.tcb")));
}

QSet<QString> seededBefore(const QString &folder)
{
    QFile file(joinPath(folder, QString::fromLatin1(listOfSeeds)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList names = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    return {names.begin(), names.end()};
}

void writeSeeded(const QString &folder, const QSet<QString> &names)
{
    QStringList sorted = names.values();
    sorted.sort();
    const QByteArray path = QFile::encodeName(joinPath(folder, QString::fromLatin1(listOfSeeds)));
    (void)writeWholeFile(path, sorted.join(u'\n').toUtf8(), Durability::Lazy);
}

// Makes what `source` is, a folder or a copy of a file, unless something stands there. False if that could not be done.
bool seed(const QFileInfo &source, const QString &target)
{
    if (QFileInfo::exists(target) || QFileInfo(target).isSymLink())
        return true;
    if (source.isDir())
        return QDir().mkpath(target);
    QFile file(source.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    return writeWholeFile(QFile::encodeName(target), file.readAll(), Durability::Lazy) == 0;
}

void seedFolder(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    const QSet<QString> before = seededBefore(to);
    QSet<QString> names = before;
    const QDir source(from);
    QDirIterator walk(from, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        const QString name = source.relativeFilePath(walk.filePath());
        if (!before.contains(name) && seed(walk.fileInfo(), joinPath(to, name)))
            names += name;
    }
    if (names != before)
        writeSeeded(to, names);
}
} // namespace

ProgramPlaces runningProgramPlaces()
{
    const QString executableFolder = QCoreApplication::applicationDirPath();
    const QString installed = QDir(executableFolder + QStringLiteral("/../share/tagwrighter")).canonicalPath();
    return {executableFolder, installed, QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)};
}

QString programFolder(const ProgramPlaces &places)
{
    if (holdsDataFiles(places.executableFolder) && QFileInfo(places.executableFolder).isWritable())
        return withoutFinalSeparator(places.executableFolder);
    QString folder = joinPath(places.userDataHome, QStringLiteral("tagwrighter"));
    if (!places.installedData.isEmpty())
        seedFolder(places.installedData, folder);
    return folder;
}
