#pragma once

#include <QString>
#include <QStringList>

class ListView;
class QComboBox;
class SettingsStore;
struct ProgramContext;

/// Two small memories: the files that were opened or saved last, and the addresses typed into the address bar.

/// Entries of the File menu's list, and of the longer one on the Welcome screen.
constexpr int RecentFileCount = 4;
constexpr int WelcomeFileCount = 20;

/// A path as its entry in the File menu shows it: in full up to 40 characters, else its start and the file's name.
QString recentFileCaption(const QString &path);
/// The list with the path in front; the last one falls off where the path is new. Slots may be empty.
QStringList withRecentFile(QStringList paths, const QString &path);

/// The files that either list holds, the newest ones first, each once.
QStringList recentFiles(SettingsStore &store);
/// Fills the four entries of the File menu.
void LoadRecentFilesMenu(ProgramContext &context);
/// Puts the path in front of both lists and shows the File menu's again.
void AddToRecentFiles(ProgramContext &context, const QString &path);
/// Puts the path in front of the Welcome screen's list, which may hold a path many times.
void AddToWelcomeList(SettingsStore &store, const QString &path);

/// Fills the Welcome screen's list: the project opened last, then the files. A path that is there many times has so
/// many rows, of which the first has it as its key.
void LoadWelcomeRecentList(SettingsStore &store, ListView &lstRecent);

/// Empties the history file: it holds an empty line then. False if it could not be written, which the user is told.
bool ClearAddressHistory(ProgramContext &context);
/// Fills the address bar from the history file; nothing if the user wants none kept, or there is no file.
void LoadAddressHistory(ProgramContext &context, QComboBox &combo);
/// Adds the address in the combo's edit field to its list and to the history file, unless the list has it, in any case
/// of its letters.
void RecordAddress(ProgramContext &context, QComboBox &combo);
/// The same with an address that is not quite what the edit field holds.
void RecordAddress(ProgramContext &context, QComboBox &combo, const QString &address);
