#include "desktop/desktopServices.h"

#include "browser/modulePageViews.h"
#include "browser/servedPages.h"
#include "common/paths.h"
#include "desktop/desktopClipboard.h"
#include "desktop/desktopCommonDialogs.h"
#include "desktop/desktopHelpViewer.h"
#include "desktop/desktopLauncher.h"
#include "desktop/desktopMessageBoxes.h"
#include "desktop/desktopPrinting.h"
#include "desktop/desktopSystemFacts.h"
#include "desktop/moduleTransfers.h"
#include "desktop/programFolder.h"
#include "desktop/qtTimerSource.h"
#include "desktop/stateFolder.h"
#include "desktop/threadWorker.h"
#include "desktop/wizardPrograms.h"
#include "desktop/xdgFileClasses.h"
#include "forms/eventModalLoop.h"
#include "services/clock.h"
#include "services/random.h"
#include "services/settings.h"
#include "services/yielder.h"
#include "storage/localFileSystem.h"
#include "storage/settingsFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace
{
QString dataFolder()
{
    return joinPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation),
                    QStringLiteral("tagwrighter"));
}

QString settingsFolder()
{
    return joinPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                    QStringLiteral("tagwrighter"));
}

/// The folder of the programs that only this one starts, beside the folder that it runs in.
QString libexecFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../" TAGWRIGHTER_LIBEXEC_FOLDER));
}

/// The help of the program's folder comes before the installed one, page by page.
QStringList helpFolders(const ProgramFolders &folders)
{
    QStringList help{joinPath(folders.own, QStringLiteral("help"))};
    if (!folders.installed.isEmpty())
        help += joinPath(folders.installed, QStringLiteral("help"));
    return help;
}
} // namespace

struct DesktopServices::Parts {
    explicit Parts(CommonDialogs *dialogs) : commonDialogs(dialogs ? *dialogs : desktopDialogs) {}

    ProgramFolders folders = programFolders(runningProgramPlaces());
    QString appPath = folders.own;
    DesktopMessageBoxes messageBoxes;
    DesktopPrinting printing{partFolders()};
    DesktopCommonDialogs desktopDialogs{printing};
    CommonDialogs &commonDialogs;
    SettingsFiles settings{settingsFolder()};
    LocalFileSystem files{stateFolder()};
    DesktopLauncher launcher;
    DesktopClipboard clipboard;
    SystemClock clock;
    Random random;
    DesktopHelpViewer help{helpFolders(folders), files, launcher};
    QtTimerSource timers;
    EventModalLoop modalLoop;
    EventYielder yielder;
    ServedPages pages{settings,
                      folders.installed.isEmpty() ? QStringList{appPath} : QStringList{appPath, folders.installed}};
    ModulePageViews pageViews{partFolders(), pages};
    ThreadWorker worker;
    DesktopSystemFacts systemFacts{appPath};
    XdgFileClasses fileClasses{currentXdgPlaces(), startInBackground};
    ModuleTransfers transfers{partFolders(), {.knownHosts = joinPath(dataFolder(), QStringLiteral("known_hosts"))}};
    WizardPrograms wizards{{appPath, libexecFolder()},
                           [this] { return settings::read(settings, settings::WorkingDir); }};
    Services services{
        .messageBoxes = messageBoxes,
        .commonDialogs = commonDialogs,
        .settings = settings,
        .files = files,
        .launcher = launcher,
        .clipboard = clipboard,
        .clock = clock,
        .random = random,
        .help = help,
        .timers = timers,
        .fileClasses = fileClasses,
        .modalLoop = modalLoop,
        .yielder = yielder,
        .pageViews = pageViews,
        .worker = worker,
        .transfers = transfers,
        .wizards = wizards,
        .printing = printing,
        .systemFacts = systemFacts,
        .appPath = appPath,
        .installedPath = folders.installed,
        .statePath = stateFolder(),
    };
};

DesktopServices::DesktopServices(CommonDialogs *dialogs) : parts(std::make_unique<Parts>(dialogs)) {}

DesktopServices::~DesktopServices() = default;

Services &DesktopServices::services()
{
    return parts->services;
}
