#include "services/programFiles.h"

#include "common/paths.h"
#include "services/fileSystem.h"
#include "services/services.h"

QString programFile(const Services &services, const QString &name)
{
    QString own = joinPath(services.appPath, name);
    if (services.installedPath.isEmpty() || services.files.exists(own))
        return own;
    QString installed = joinPath(services.installedPath, name);
    return services.files.exists(installed) ? installed : own;
}
