#pragma once

#include "common/encodings.h"
#include "common/fileStamp.h"
#include "common/notices.h"
#include "common/textSurface.h"

#include <QFont>
#include <optional>

class Browser;

/// A document as the other subsystems know it. The window is the document: its form, frmWrite, is the one
/// implementation.
class Document
{
public:
    Document() = default;
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;
    virtual ~Document() = default;

    QString DocSavePath;            ///< full path it was loaded from or saved to; empty if none
    bool boolDirty = false;         ///< unsaved changes exist
    bool NewDoc = false;            ///< never saved: a save asks for a name
    qint16 DocNumber = 0;           ///< serial number, never used twice in a session
    QString DocKeyDescription;      ///< key of its tab: DocNumber and "Key"
    bool IsInUnicode = false;       ///< saved as UTF-16
    QString InternetOriginURL;      ///< where it was downloaded from; empty otherwise
    bool UnsuccessfulClose = false; ///< Save As was cancelled during a close

    FileFormat fileFormat;                   ///< how the file stands as bytes
    Encoding plainEncoding = Encoding::Utf8; ///< what it is written in unless as Unicode
    bool mixedLineEnds = false;              ///< the file has line ends of more than one kind; a save makes them one
    std::optional<FileStamp> fileStamp;      ///< the file's state when it was opened or saved last; nothing if unknown
    Notices notices;                         ///< what stands in the line above the text
    qint16 autoSaveTicks = 0;                ///< minutes since the last automatic save
    qsizetype AvailableDocumentLines = 0;    ///< lines as UpdateLineInformation last counted them

    virtual QString documentCaption() const = 0; ///< window title: "Untitled" and the number, or the full path
    virtual void setDocumentCaption(const QString &caption) = 0;
    virtual TextSurface &txtEdit() = 0;
    const TextSurface &txtEdit() const { return const_cast<Document *>(this)->txtEdit(); }

    /// Closes the document's window, asking first where there is something to lose. False if it stays open.
    virtual bool unload() = 0;
    /// Brings the document's window to the front and the focus to its edit surface.
    virtual void activate() = 0;
    /// Puts the document's window behind the others, whereupon the one that was active before it is the active one.
    virtual void sendToBack() {}

    /// Puts the document's tab at the end of the strip, under the window's caption and without taking a tab away; a key
    /// that is in the strip already adds no second tab.
    virtual void DocSelUpdate() = 0;
    /// Once a file name is known: takes the old tab away and adds one under the file's name. An empty path counts as
    /// none.
    virtual void DocSelUpdate(const QString &path) = 0;

    /// The switch of `tmrAutoSave`.
    virtual bool autoSaveEnabled() const = 0;
    virtual void setAutoSaveEnabled(bool enabled) = 0;

    virtual void CheckWordWrapSettings() = 0;

    /// The font of the source.
    virtual QFont editorFont() const { return {}; }
    /// Takes over the font and the tab width that the settings have.
    virtual void applyEditorSettings() {}

    /// The browser of its window; nothing where the window has none.
    virtual Browser *brwWebBrowser() { return nullptr; }
    /// Shows or hides the preview beside the source, as the setting says, and lays the two out.
    virtual void SplitEditingPreviewWindows() {}
    virtual void RepositionEditingandPreviewWindows() {}

    /// Takes the text and its selection into the document's history.
    virtual void UndoRedoChange() = 0;
    /// The same where the document stands in its history, unless the text is there already. Called in front of a change
    /// and behind it, it makes that change one step: one Undo brings back the text that stood there before.
    virtual void UndoRedoStep() { UndoRedoChange(); }
    /// The text as it stands is the one that the document was opened with.
    virtual void beginHistory() {}
    /// Go one step through the history; nothing at its ends.
    virtual void Undo() = 0;
    virtual void Redo() = 0;
    /// Which of the two the menus offer now.
    struct UndoRedo {
        bool undo = false;
        bool redo = false;
    };
    virtual UndoRedo IsUndoRedoPossible() const = 0;
    virtual int UndoPosition() const = 0; ///< the entry of the history that the document stands at, from 1

    /// Moves the lines of the selection, or the caret, by one indent step.
    virtual void IndentText(bool indent) = 0;
    /// Lays the whole source out anew, for readers.
    virtual void OptimiseSyntax() = 0;

    /// Brings what is told of the text's lines up to date.
    virtual void UpdateLineInformation() = 0;
    /// The switch of `tmrRefresh`: off, the text is coloured at its next change only.
    virtual void setRefreshEnabled(bool) {}
    /// Colours the document after text was put in from outside.
    virtual void ExternalCallColourCode() = 0;
};
