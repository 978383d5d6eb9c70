#pragma once

#include "common/treeNode.h"

#include <QChar>
#include <optional>

class CodeKnowledge;
struct ProgramContext;

/// What a double click on the node of that number in the code tree puts in place of the selection: an element as the
/// start of its tag, a value in quotes, anything else behind a blank, unless `before`, the character in front of the
/// caret, is a blank or a line feed. Nothing for the two roots, which are known by their texts.
std::optional<QString> chosenCode(const CodeKnowledge &codes, int number, std::optional<QChar> before);

/// A double click on a node: its code goes into the active document, which gets the focus.
void treCodes_DblClick(ProgramContext &context, int node);

/// Enter on a node: its text goes into the active document just as it stands, the caret in front of it. The focus stays
/// in the tree.
void treCodes_Enter(ProgramContext &context, int node);
