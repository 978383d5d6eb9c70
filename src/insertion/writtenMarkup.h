#pragma once

#include "insertion/rightMarkup.h"

struct ProgramContext;

/// What goes into the active document for markup that a dialog or a command has made: all of them write through here.
/// It is `made` itself, or the same put right (see MarkupBook).
QString writtenMarkup(const ProgramContext &context, const QString &made);
MarkupPair writtenAround(const ProgramContext &context, const MarkupPair &made);
