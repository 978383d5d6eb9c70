#include "insertion/modExcludePath.h"

#include "common/addressText.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "common/text.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"

#include <QDir>

QString withoutDocumentFolder(const QString &path, const QString &documentPath)
{
    if (documentPath.isEmpty())
        return path;
    const QString base = FolderOfPath(documentPath).toLower();
    if (Find(path.toLower(), base).value_or(0) < 1)
        return path;
    const QString rest = path.mid(base.size());
    return rest.isEmpty() ? path : rest;
}

namespace
{
/// Whether two paths begin with the same two folders, as those of one user's do.
bool areNeighbours(const QString &a, const QString &b)
{
    constexpr int Folders = 2;
    return a.section(u'/', 1, Folders) == b.section(u'/', 1, Folders) && a.count(u'/') > Folders;
}
} // namespace

QString addressFromDocument(const QString &path, const QString &documentPath, bool exists)
{
    const bool isNative = path.startsWith(u'/') && !path.startsWith(QStringLiteral("//"));
    if (!isNative || documentPath.isEmpty() || (!exists && !areNeighbours(path, documentPath)))
        return path;
    const QString slashed = exists ? path : QString(path).replace(u'\\', u'/');
    const QString relative = QDir(FolderOfPath(documentPath)).relativeFilePath(slashed);
    // A file's name may hold what has a meaning in addresses.
    const QString address = encodedAddress(relative);
    const bool looksLikeScheme = address.section(u'/', 0, 0).contains(u':');
    return looksLikeScheme ? QStringLiteral("./") + address : address;
}

QString ExcludePath(ProgramContext &context, const QString &path)
{
    const Document *document = context.mainWindow->activeDocument();
    if (!document || !settings::isOn(context.services.settings, settings::ExcludeBasePath))
        return path;
    if (context.state.habits.HabitPaths)
        return addressFromDocument(path, document->DocSavePath, context.services.files.exists(path));
    return withoutDocumentFolder(path, document->DocSavePath);
}
