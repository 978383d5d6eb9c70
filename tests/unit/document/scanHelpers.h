#pragma once

#include "document/syntaxScanner.h"
#include "unit/document/plainEdit.h"

#include <string>
#include <vector>

/// A whole pass over a text; `cancelAt` counts the places at which events may run from 1, 0 for no cancel.
void scanAll(SyntaxScanner &scanner, bool structureShown = false, int cancelAt = 0);

/// The formats that a text which has the format `before` throughout shows after a pass.
std::vector<CharacterFormat> formatsAfter(const QString &text, const SyntaxScanner &scanner,
                                          const ColouringOptions &options, const CharacterFormat &before = {});

/// One letter for each character's look. Plain: "." default, "a" attribute, "v" value, "c" comment, "%" ASP code.
/// Bold: "T" tag, "V" value. Underlined: "l" link, "L" bold link, "u" default colour. "?" is none of these.
std::string lookOf(const std::vector<CharacterFormat> &formats, const ColouringOptions &options);

/// "key|image|text|parent" of each node.
std::vector<std::string> nodesOf(const StructureTree &tree);
