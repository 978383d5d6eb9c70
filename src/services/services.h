#pragma once

#include <QString>

class Clipboard;
class Clock;
class CommonDialogs;
class FileClasses;
class FileSystem;
class HelpViewer;
class InternetTransfers;
class Launcher;
class MessageBoxes;
class ModalLoop;
class PageViews;
class Printing;
class Random;
class SettingsStore;
class SystemFacts;
class TimerSource;
class WizardServer;
class Worker;
class Yielder;

/// What the program needs of the desktop, handed down to all that use it. Its owner outlives every user.
struct Services {
    MessageBoxes &messageBoxes;
    CommonDialogs &commonDialogs;
    SettingsStore &settings;
    FileSystem &files;
    Launcher &launcher;
    Clipboard &clipboard;
    Clock &clock;
    Random &random;
    HelpViewer &help;
    TimerSource &timers;
    FileClasses &fileClasses;
    ModalLoop &modalLoop;
    Yielder &yielder;
    PageViews &pageViews;
    Worker &worker;
    InternetTransfers &transfers;
    WizardServer &wizards;
    Printing &printing;
    SystemFacts &systemFacts;
    QString appPath;            ///< the program's folder (`App.Path`), without a final separator
    QString installedPath = {}; ///< where an installation keeps what it brought along; empty where that is `appPath`
    QString statePath; ///< where the program keeps what it has to remember by itself, without a final separator
};
