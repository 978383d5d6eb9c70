#include "desktop/xdgFileClasses.h"

#include "desktop/xdgFiles.h"
#include "storage/wholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>

namespace
{
constexpr int AfterTheStart = 3000; // milliseconds

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// True if the file had to be written, and could be.
bool writeIfDifferent(const QString &path, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    if (contentsOf(path) == bytes)
        return false;
    QDir().mkpath(QFileInfo(path).path());
    return writeWholeFile(QFile::encodeName(path), bytes, Durability::Lazy) == 0;
}

// The list of associations is not ours alone: one that cannot be read, or would not be written as it was read, is left.
void writeAssociations(const QString &path, const QStringList &otherHtmlPrograms)
{
    const QByteArray before = contentsOf(path);
    const QString text = QString::fromUtf8(before);
    if (text.toUtf8() != before || (before.isEmpty() && QFileInfo(path).size() > 0))
        return;
    (void)writeIfDifferent(path, withAssociations(text, otherHtmlPrograms));
}
} // namespace

XdgPlaces currentXdgPlaces()
{
    QStringList dataDirs = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    dataDirs.removeAll(dataHome);
    return {dataHome, QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), dataDirs,
            QCoreApplication::applicationFilePath()};
}

XdgFileClasses::XdgFileClasses(XdgPlaces xdgPlaces, Run runInBackground)
    : places(std::move(xdgPlaces)), run(std::move(runInBackground))
{
}

void XdgFileClasses::registerAll()
{
    const QString entry = QStringLiteral("/applications/tagwrighter.desktop");
    const auto holdsEntry = [&](const QString &folder) { return QFile::exists(folder + entry); };
    // Where the program is installed for everybody, its types and its entry stand there already.
    if (std::none_of(places.dataDirs.begin(), places.dataDirs.end(), holdsEntry))
        registerProgram(places.dataHome + entry);
    writeAssociations(places.configHome + QStringLiteral("/mimeapps.list"), otherHtmlPrograms());
}

void XdgFileClasses::registerProgram(const QString &entry)
{
    if (writeIfDifferent(places.dataHome + QStringLiteral("/mime/packages/tagwrighter.xml"), mimePackage()))
        run(QStringLiteral("update-mime-database"), {places.dataHome + QStringLiteral("/mime")});
    if (writeIfDifferent(entry, desktopEntry(places.program)))
        run(QStringLiteral("update-desktop-database"), {places.dataHome + QStringLiteral("/applications")});
}

QStringList XdgFileClasses::otherHtmlPrograms() const
{
    QStringList programs;
    for (const QString &folder : QStringList(places.dataHome) + places.dataDirs) {
        const QByteArray cache = contentsOf(folder + QStringLiteral("/applications/mimeinfo.cache"));
        programs += programsInCache(QString::fromUtf8(cache), QStringLiteral("text/html"));
    }
    return programs;
}

void startInBackground(const QString &program, const QStringList &arguments)
{
    // No start waits for it: the window is to be on show first.
    QTimer::singleShot(AfterTheStart, qApp, [program, arguments] {
        const QString path = QStandardPaths::findExecutable(program);
        if (!path.isEmpty())
            QProcess::startDetached(path, arguments);
    });
}
