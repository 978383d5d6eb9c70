#pragma once

#include <QString>

class FileList;
class FileSystem;
class ListView;
class SettingsStore;
struct ProgramContext;

/// The list of what a new document can begin from, as the New dialog and the Welcome screen show it.

/// Fills the list with the blank document and the files of the templates folder; `dirTemplates` lists that folder. The
/// first row is selected.
void FillNewDocumentList(SettingsStore &store, FileList &dirTemplates, ListView &lstNew);

/// Makes the document of the selected row; false, and nothing done, if none is selected.
bool OpenSelectedTemplate(ProgramContext &context, const ListView &lstNew);

/// The path of the selected row's template; empty for the blank document, and without a selection.
QString selectedTemplate(SettingsStore &store, const ListView &lstNew);

/// Makes a blank document, filled as the settings say.
void openBlankDocument(ProgramContext &context);

/// The start of a template's page, for a look at it; empty if there is none to be read.
QString templatePreview(FileSystem &files, const QString &path);
