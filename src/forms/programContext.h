#pragma once

#include <QString>
#include <functional>
#include <memory>

struct ProgramState;
struct Services;
class CodeKnowledge;
class Document;
class FileCommands;
class FormRuntime;
class MainWindow;
class NodeTreeModel;
class SiteProject;
class UnsavedText;
class ScreenPointer;
class Uploads;

/// What every form is given: the desktop's services, the forms of the session and the state that they share.
struct ProgramContext {
    Services &services;
    FormRuntime &forms;
    ProgramState &state;
    ScreenPointer &screenPointer;
    MainWindow *mainWindow = nullptr;                  ///< set by the main window's form for as long as it exists
    FileCommands *files = nullptr;                     ///< what opens, saves and closes documents
    UnsavedText *unsavedText = nullptr;                ///< what keeps it safe while the program runs
    SiteProject *project = nullptr;                    ///< the open project; nothing until there is a project pane
    const CodeKnowledge *codes = nullptr;              ///< what the program knows of HTML and CSS
    std::shared_ptr<NodeTreeModel> codeElements = {};  ///< the elements that the code assistant offers in all documents
    QString version = {};                              ///< the program's: major.minor.revision
    QString makerSite = {};                            ///< the address of the maker's web site
    std::function<Document *()> newBlankDocument = {}; ///< shows a new, empty document; nothing if memory ran out
    Uploads *uploads = nullptr;                        ///< the pages on their way to servers
    std::function<void()> end = {};                    ///< ends the program at once; no further handler of a form runs
    /// Ends the program and starts it anew with all documents as they are. Where the user or a full disk is against
    /// that, it goes on.
    std::function<void()> startAnew = {};
};
