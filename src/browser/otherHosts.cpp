#include "browser/otherHosts.h"

#include "services/settings.h"
#include "services/settingsStore.h"

#include <QDir>
#include <QFileInfo>

namespace
{
const QString Section = QStringLiteral("PreviewOtherHosts"); // a key for each folder that is allowed them
}

QString otherHosts::folderOf(const QString &path)
{
    return path.isEmpty() ? QString() : QFileInfo(QDir::cleanPath(path)).path();
}

bool otherHosts::areShown(SettingsStore &settings, const QString &folder)
{
    return settings.GetSetting(QLatin1String(settings::MainApp), Section, folder) == u"True";
}

void otherHosts::setShown(SettingsStore &settings, const QString &folder, bool shown)
{
    if (shown)
        settings.SaveSetting(QLatin1String(settings::MainApp), Section, folder, QStringLiteral("True"));
    else
        settings.DeleteSetting(QLatin1String(settings::MainApp), Section, folder);
}
