#pragma once

#include "common/document.h"
#include "common/habits.h"

/// A document's text on its way between the window and the bytes of its file.

/// How a save is asked to write: plainly, or as UTF-16.
enum class SaveForm {
    AsOpened,   ///< the Save command: as UTF-16 only if the document was opened so
    Plain,      ///< a plain row of the Save As dialog
    UnicodeRow, ///< a Unicode row of it: UTF-16, little-endian
};

/// The format in which a save writes the document; characters may still make it another, as encode() tells.
FileFormat formatOfSave(const Document &document, SaveForm form);

/// The bytes of a text that is saved as the document's: the text, and by the classic way one line break more, which
/// each save adds.
EncodedText encodedForSave(const QString &text, const Document &document, SaveForm form, const Habits &habits);

/// Takes over how a file was read: the text's format, and whether a Unicode row read it.
void noteOpened(Document &document, const DecodedText &opened, bool unicode);
/// Takes over how the document was written.
void noteSaved(Document &document, Encoding written);

/// What the user is to know of how a document is written; empty if all is as it was and as the page says. `document` is
/// as it was before the save.
QString saveRemark(const Document &document, SaveForm form, const EncodedText &encoded);
