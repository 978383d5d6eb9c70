#pragma once

#include "texttools/pageCheck.h"

class TextSurface;

/// Underlines what a check has found, without a change of the text's own formats; with an empty list, nothing is marked
/// any more. Where the surface cannot do that, nothing is drawn.
void showPageMarks(TextSurface &surface, const QList<PageProblem> &problems);
