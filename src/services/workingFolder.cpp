#include "services/workingFolder.h"

#include "common/paths.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"

QString workingFolder(Services &services)
{
    QString folder = settings::read(services.settings, settings::WorkingDir);
    if (!folder.isEmpty() && !services.files.isFolder(folder))
        services.files.makeFolder(folder); // where it can't be made, the dialog starts elsewhere
    return folder;
}

void makeOwnWorkingFolder(Services &services)
{
    const QString folder = settings::read(services.settings, settings::WorkingDir);
    if (folder.startsWith(joinPath(services.appPath, QString())))
        workingFolder(services);
}
