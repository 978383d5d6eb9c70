#pragma once

#include <QString>

class Document;

/// What moves documents between windows and files, as the start-up, the documents and the commands call it.
///
/// Failures are told to the user by each of these itself. While one runs, the main window takes no input; at its end it
/// does again, and the mouse pointer is the default one.
class FileCommands
{
public:
    FileCommands() = default;
    FileCommands(const FileCommands &) = delete;
    FileCommands &operator=(const FileCommands &) = delete;
    virtual ~FileCommands() = default;

    /// The Open command: asks for a file and opens it as the chosen row of the dialog says.
    virtual void ShowOpenDialog() = 0;
    /// Opens a file into a new document. With `unicode` it is read as UTF-16. A file that is open already is refused.
    virtual void OpenDocumentFile(const QString &path, bool unicode) = 0;
    /// The same; with `asTemplate` the document stays new and nameless.
    virtual void OpenTemplateFile(const QString &path, bool asTemplate) = 0;
    virtual void OpenCombinedTemplate(const QString &path) = 0;
    virtual void OpenProject(const QString &path) = 0;
    /// Opens what stands in a slot of the File menu's list, 1 to 4 with 1 the newest; nothing for an empty slot.
    virtual void OpenRecentFile(int index) = 0;

    /// Saves the active document; a new one asks for its name first. `closing`: the document closes if it is saved.
    /// False if it was not saved, whatever the reason.
    virtual bool SaveDocument(bool closing) = 0;
    /// Asks for the active document's new name and saves it there. An empty title stands for the dialog's usual one.
    virtual bool SaveDocumentAs(bool closing, const QString &title) = 0;
    /// Saves the documents with unsaved changes, one after the other.
    virtual void SaveAll() = 0;

    /// Shows the recent files in the File menu.
    virtual void LoadRecentFilesMenu() = 0;
    /// Puts a path in front of the recent files, as each open and save does.
    virtual void AddToRecentFiles(const QString &path) = 0;

    /// Reads the document's file anew, as one step of its history: it is clean then, and the caret stays where it was
    /// as far as there is text. False if the file cannot be read, which is told.
    virtual bool LoadAgain(Document &document) = 0;
    /// Looks whether another program has changed the document's file, and tells it in the line above the text.
    virtual void lookAtFile(Document &document) = 0;
    /// The document was brought back with a word on the state of its file, which is told once.
    virtual void noteFileTold(const Document &document) = 0;
    /// The document is closed.
    virtual void forgetFile(const Document &document) = 0;

    /// Asks about unsaved changes as the document, or the exit, demands. False keeps the document open.
    virtual bool mayClose(Document &document) = 0;
    /// The document's text changes for the first time since it was opened or saved.
    virtual void noteFirstChange(Document & /*document*/) {}
    /// One minute of a document's automatic saving has passed.
    virtual void autoSaveTick(Document &document) = 0;
    /// The box for the error of a file operation, by the program's error code; `description` is the system's own, told
    /// where the code is in no row of the table.
    virtual void FileErrors(int errorNumber, const QString &description = {}) = 0;
    /// The box for an operation on a large text that ran out of memory; other errors pass silently.
    virtual void MemoryErrors(int errorNumber) = 0;
};
