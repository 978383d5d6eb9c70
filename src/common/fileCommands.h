#pragma once

#include <QString>

class Document;

/// What moves documents between windows and files, as the start-up, the documents and the commands call it.
class FileCommands
{
public:
    FileCommands() = default;
    FileCommands(const FileCommands &) = delete;
    FileCommands &operator=(const FileCommands &) = delete;
    virtual ~FileCommands() = default;

    /// Opens a file into a new document; failures are told to the user. With `unicode` it is read as UTF-16.
    virtual void OpenDocumentFile(const QString &path, bool unicode) = 0;
    /// The same; with `asTemplate` the document stays new and nameless.
    virtual void OpenTemplateFile(const QString &path, bool asTemplate) = 0;
    virtual void OpenCombinedTemplate(const QString &path) = 0;
    virtual void OpenProject(const QString &path) = 0;

    /// Asks about unsaved changes as the document, or the exit, demands. False keeps the document open.
    virtual bool mayClose(Document &document) = 0;
    /// One minute of a document's automatic saving has passed.
    virtual void autoSaveTick(Document &document) = 0;
    /// The box for the error of a file operation, by the program's error code.
    virtual void FileErrors(int errorNumber, const QString &description) = 0;
    /// The box for an operation on a large text that ran out of memory; other errors pass silently.
    virtual void MemoryErrors(int errorNumber) = 0;
};
