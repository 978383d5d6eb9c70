#include "files/modFileNames.h"

#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/text.h"
#include "services/fileSystem.h"

#include <algorithm>

namespace
{
constexpr qsizetype TooLongTitle = 50;
constexpr QStringView forbidden = u"?*:/\\\"<>|";

/// What stands between the title's tags. The positions count from 1, and a page without the opening tag is cut from
/// position 7 on.
QString titleOf(const QString &text)
{
    const QString lower = LCase(text);
    const qsizetype start = Find(lower, u"<title>").value_or(0) + 7;
    const qsizetype end = Find(lower, u"</title>", start).value_or(0);
    return end > start ? Mid(text, start, end - start).value_or(QString()) : QString();
}
} // namespace

bool FileExists(FileSystem &files, const QString &path)
{
    return files.exists(path);
}

bool isFileOf(FileSystem &files, const Document &document, const QString &path)
{
    return !document.DocSavePath.isEmpty() &&
           (document.DocSavePath == path || files.isSameFile(document.DocSavePath, path));
}

bool IsFileOpen(const MainWindow &mainWindow, FileSystem &files, const QString &path, const QString &ownPath)
{
    if (path == ownPath)
        return false;
    const QList<Document *> documents = mainWindow.openDocuments();
    return std::any_of(documents.begin(), documents.end(), [&](const Document *document) {
        return document != mainWindow.activeDocument() &&
               (document->DocSavePath.toLower() == path.toLower() || isFileOf(files, *document, path));
    });
}

bool IsFileNameClean(const QString &name)
{
    return std::none_of(name.begin(), name.end(), [](QChar c) { return forbidden.contains(c); });
}

QString DefaultFileNameFromTitle(const QString &pageText, const QString &folder, FileSystem &files)
{
    const QString title = titleOf(pageText);
    QString name = title + QStringLiteral(".html");
    if (title.isEmpty() || title.size() >= TooLongTitle || title.contains(u'\r') ||
        title.toLower() == u"enter_title_here" || !IsFileNameClean(name))
        return {};
    if (FileExists(files, joinPath(folder, title)) || FileExists(files, joinPath(folder, name)))
        return {};
    return name;
}
