#include "platform/desktopServices.h"

#include "common/paths.h"
#include "platform/clock.h"
#include "platform/desktopClipboard.h"
#include "platform/desktopCommonDialogs.h"
#include "platform/desktopHelpViewer.h"
#include "platform/desktopLauncher.h"
#include "platform/desktopMessageBoxes.h"
#include "platform/eventModalLoop.h"
#include "platform/localFileSystem.h"
#include "platform/modulePageViews.h"
#include "platform/programFolder.h"
#include "platform/qtTimerSource.h"
#include "platform/random.h"
#include "platform/settingsFiles.h"
#include "platform/xdgFileClasses.h"
#include "platform/yielder.h"

#include <QStandardPaths>

namespace
{
QString settingsFolder()
{
    return joinPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                    QStringLiteral("tagwrighter"));
}
} // namespace

struct DesktopServices::Parts {
    QString appPath = programFolder(runningProgramPlaces());
    DesktopMessageBoxes messageBoxes;
    DesktopCommonDialogs commonDialogs;
    SettingsFiles settings{settingsFolder()};
    LocalFileSystem files;
    DesktopLauncher launcher;
    DesktopClipboard clipboard;
    SystemClock clock;
    Random random;
    DesktopHelpViewer help{joinPath(appPath, QStringLiteral("help")), files, launcher};
    QtTimerSource timers;
    EventModalLoop modalLoop;
    EventYielder yielder;
    ModulePageViews pageViews{moduleFolders()};
    XdgFileClasses fileClasses{currentXdgPlaces(), startInBackground};
    Services services{messageBoxes, commonDialogs, settings,    files,     launcher, clipboard, clock,  random,
                      help,         timers,        fileClasses, modalLoop, yielder,  pageViews, appPath};
};

DesktopServices::DesktopServices() : parts(std::make_unique<Parts>()) {}

DesktopServices::~DesktopServices() = default;

Services &DesktopServices::services()
{
    return parts->services;
}
