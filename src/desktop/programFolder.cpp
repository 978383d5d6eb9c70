#include "desktop/programFolder.h"

#include "common/paths.h"
#include "storage/wholeFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>

namespace
{
// The list of what was put into the folder already. What is on it and no longer there, the user took away.
const char *const listOfSeeds = ".installed";

// What the user may change, so that each has a copy: folders, and files beside them.
const char *const copied[] = {"Template", "MyPages", "CodeLibrary", "Syntax.dic"};

bool isCopied(const QString &name)
{
    const QString first = name.section(u'/', 0, 0);
    return std::any_of(std::begin(copied), std::end(copied), [&](const char *c) { return first == QLatin1String(c); });
}

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

// An earlier version copied everything. What nobody has changed since hides what an upgrade brings.
void removeOldCopies(const QString &folder, const QSet<QString> &names)
{
    const QDateTime seeded = QFileInfo(joinPath(folder, QString::fromLatin1(listOfSeeds))).lastModified();
    QStringList folders;
    for (const QString &name : names) {
        const QFileInfo copy(joinPath(folder, name));
        if (copy.isDir() && !copy.isSymLink())
            folders += copy.filePath();
        else if (copy.isFile() && copy.lastModified() <= seeded)
            QFile::remove(copy.filePath());
    }
    std::sort(folders.begin(), folders.end(), std::greater<>()); // what lies in another comes before it
    for (const QString &emptied : std::as_const(folders))
        QDir().rmdir(emptied); // and stays if the user has put something there
}

void seedFolder(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    const QSet<QString> before = seededBefore(to);
    QSet<QString> names;
    QSet<QString> oldCopies;
    for (const QString &name : before)
        (isCopied(name) ? names : oldCopies) += name;
    removeOldCopies(to, oldCopies);
    const QDir source(from);
    QDirIterator walk(from, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        const QString name = source.relativeFilePath(walk.filePath());
        if (isCopied(name) && !before.contains(name) && seed(walk.fileInfo(), joinPath(to, name)))
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

ProgramFolders programFolders(const ProgramPlaces &places)
{
    const QString beside = withoutFinalSeparator(places.executableFolder);
    if (holdsDataFiles(beside) && QFileInfo(beside).isWritable())
        return {beside, {}};
    ProgramFolders folders{joinPath(places.userDataHome, QStringLiteral("tagwrighter")), places.installedData};
    if (folders.installed.isEmpty() && holdsDataFiles(beside))
        folders.installed = beside;
    if (!folders.installed.isEmpty())
        seedFolder(folders.installed, folders.own);
    return folders;
}
