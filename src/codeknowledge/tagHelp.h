#pragma once

#include "common/textSurface.h"

class CodeKnowledge;
struct ProgramContext;

/// The text between the angle brackets around the caret, cut at the ends of its line; between two tags, the text up to
/// the nearest bracket. Nothing at the start of a line. Looks at the caret's line alone.
QString ReadTagAtCaret(const TextSurface &edit);

/// The help topic for the text of a tag: the page of its element, of the start and the end tag alike, or the page that
/// tells that there is none.
QString tagHelpTopic(const CodeKnowledge &codes, const QString &tag);

/// Opens the help on the tag at the caret of the active document.
void ShowTagHelp(ProgramContext &context);
