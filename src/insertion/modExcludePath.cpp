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

QString ExcludePath(ProgramContext &context, const QString &path)
{
    const Document *document = context.mainWindow->activeDocument();
    if (!document || !settings::isOn(context.services.settings, settings::ExcludeBasePath))
        return path;
    if (context.state.habits.HabitPaths)
        return addressFromDocument(path, document->DocSavePath, context.services.files.exists(path));
    return withoutDocumentFolder(path, document->DocSavePath);
}
