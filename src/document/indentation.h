#pragma once

#include "common/textSelection.h"

#include <QString>
#include <optional>

/// `length` characters from `start`, counted from 0, give way to `text`.
struct TextReplacement {
    qsizetype start = 0;
    qsizetype length = 0;
    QString text;
    bool operator==(const TextReplacement &) const = default;
};

/// What indenting does, in this order.
struct IndentResult {
    std::optional<TextReplacement> replacement; ///< nothing: the text stays
    std::optional<TextSelection> recorded; ///< the selection of the undo snapshot to be taken; nothing: none is taken
    TextSelection selection;               ///< what is selected in the end
    bool takesFocus = false;
};

/// One indent step.
inline constexpr QStringView IndentStep = u"    ";

/// Moves the lines of the selection by one step, inwards or outwards; without a selection, the caret. `text` has every
/// line break as CR LF, and the selection lies inside it.
///
/// The walk through the selection counts by lengths that run ahead of, or behind, what was put in or taken out: of the
/// line breaks behind the first, indenting passes over one in the last four characters of the selection, and outdenting
/// takes up one that starts before the selection's end and whose step ends within four characters behind it. Outdenting
/// does nothing unless the first four characters (of the selection; without one, in front of the caret) are a step.
IndentResult IndentText(QStringView text, TextSelection selection, bool indent);
