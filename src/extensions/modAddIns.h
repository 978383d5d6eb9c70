#pragma once

#include <QList>
#include <QString>

class SettingsStore;
struct ProgramContext;

/// Add-ins: outside programs that the user has given an entry in the menu. Each has a number, counted from 1, which is
/// never given again; a number without a name is one that was removed.

/// One add-in as the settings hold it.
struct AddIn {
    int number = 0;
    QString name;
    bool shown = true; ///< stands in the menu
};

/// Those that there are, by their numbers.
QList<AddIn> installedAddIns(SettingsStore &store);

/// Keeps a program as a new add-in, under its file's name without the ending.
void installAddIn(SettingsStore &store, const QString &program);
/// Forgets an add-in; its program is not touched.
void removeAddIn(SettingsStore &store, int number);
void showAddIn(SettingsStore &store, int number, bool shown);

/// Starts the add-in of that number; nothing for 0. A failure is told.
void StartAddIn(ProgramContext &context, int index);
/// Tells that a program called so could not be started.
void tellAddInFailed(ProgramContext &context, const QString &name);

/// Makes the entries of the menu anew.
void FillAddInMenu(ProgramContext &context);
