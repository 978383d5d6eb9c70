#pragma once

#include "texttools/pageProblems.h"
#include "texttools/pageRules.h"

/// Tells what the tokenizer stumbled over.
void tellFault(const html::FoundFault &found, QStringView text, PageProblems &problems);

/// Looks for character references ("&amp;", "&#233;") in a part of the page that no browser would read as they are
/// meant. `inAttribute`: there, a name without ";" in front of "=" or a letter is text.
void checkReferences(QStringView text, html::Range part, bool inAttribute, const PageRules &rules,
                     PageProblems &problems);
