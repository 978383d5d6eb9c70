#pragma once

#include <QList>

class Form;

namespace drive
{
class Stage;

/// What has to hold after each line of a free play, beside the standing rules:
///
/// - The widget of each document holds the text that its surface tells of, in as many lines, and the selection lies in
///   it.
/// - The file of a document without changes holds its text, unless another program has written it since.
/// - No form is shown modally but those that the program waits for, of which `modal` are all, the innermost last.
/// - No timer of a form that is not loaded is running.
void checkFreeRules(Stage &stage, const QList<Form *> &modal);

/// Undoes what can be undone in the active document, and redoes it: each text on the way back has to be the one that
/// stood there on the way there. Nothing without a document, or with nothing to undo.
void checkUndoLeadsBack(Stage &stage);
} // namespace drive
