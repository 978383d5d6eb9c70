#pragma once

#include <QString>

class Document;

/// What keeps the unsaved text of the open documents safe while the program runs.
class UnsavedText
{
public:
    UnsavedText() = default;
    UnsavedText(const UnsavedText &) = delete;
    UnsavedText &operator=(const UnsavedText &) = delete;
    virtual ~UnsavedText() = default;

    /// The document's text has changed: it is kept soon. Called at every key, and costs next to nothing.
    virtual void noteChange(Document &document) = 0;
    /// Another document has become the active one.
    virtual void noteActivation() = 0;
    /// The document was saved, given up or closed by the user's word: what is kept of it goes.
    virtual void forget(Document &document) = 0;
    /// Brings back what a program left that ended without being asked to. `opened` is the page that this start was
    /// called for, which stays the active one; nothing for none. What no document's line can tell is given back, empty
    /// for nothing.
    virtual QString restore(Document *opened) = 0;
    /// Keeps all unsaved text now, and returns when it is on the disk.
    virtual void keepNow() = 0;
    /// Keeps every open document, those without changes as well, for a start of the program that follows at once and
    /// brings them back without a word. False where one could not be kept; the program then goes on as it was.
    virtual bool keepForStartAnew() = 0;
};
