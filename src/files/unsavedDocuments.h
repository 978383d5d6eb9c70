#pragma once

#include <QString>
#include <QStringList>

class Document;
class MainWindow;

/// The captions of the documents with unsaved changes, in loading order.
QStringList unsavedCaptions(const MainWindow &mainWindow);

/// The document that a row of a list of captions stands for; nothing if it is not open any more. The main window's own
/// way of writing it, "Tagwrighter - [caption]", counts too.
Document *documentOfRow(const MainWindow &mainWindow, const QString &row);

/// The title of the dialog that asks for a document's name.
QString saveAsTitle(const Document &document);
