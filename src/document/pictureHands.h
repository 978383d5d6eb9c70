#pragma once

#include "common/textSelection.h"

#include <QStringList>

class Document;
struct PictureElement;
struct ProgramContext;

/// What writes the elements of pictures that are dropped on a page or pasted into it, each time as one step of its
/// history. Without that rule, nothing does but the command.

/// The pictures among files that were dropped on a document; none where it is no page.
QStringList picturesAmong(const ProgramContext &context, const Document &document, const QStringList &files);
/// Writes the elements of picture files, with their addresses and sizes. A page without a file gets one first, or is
/// left as it is.
void WritePictures(ProgramContext &context, Document &document, const QStringList &files, TextSelection place);
/// Writes elements that are ready; for a page in whose folder their files stand.
void WriteElements(Document &document, const QList<PictureElement> &pictures, TextSelection place);

/// Pastes into the active document what was copied as a picture, or as a list of files with pictures among them. False
/// where something else was copied.
bool PasteAsPicture(ProgramContext &context);
/// The command: the same, also of a picture that was copied along with a text.
void PastePicture(ProgramContext &context);
