#pragma once

#include <QString>

class Document;
struct ProgramContext;

/// Shows the active document in its window's browser: the file, if it is saved and unchanged, or else a copy of its
/// text in the program's folder. A copy that cannot be written is passed over, and the browser shows the one of before.
void UpdateLivePreview(ProgramContext &context);

/// The same as the text comes along by itself. For an empty new page no engine is started: the empty browser looks the
/// same, and a start of the program needs none of it.
void FollowWithLivePreview(ProgramContext &context);

/// Whether a browser at that address shows the document: its file, or the copy of an unsaved one.
bool isShownUnder(const Document &document, const QString &address);

// The commands of the active document's browser; without a document they do nothing.
void GoBack(ProgramContext &context);
void GoForward(ProgramContext &context);
void Stop(ProgramContext &context);
void Refresh(ProgramContext &context);
void Navigate(ProgramContext &context, const QString &path);

/// Whether a page's source gives a reader anything to see: something between its body's tags, or a text without such
/// tags.
bool showsSomething(const QString &source);
