#pragma once

#include "common/colour.h"

#include <QList>
#include <QString>
#include <QtGlobal>
#include <optional>

/// What a text surface draws with a range beside the text's own look; it changes neither text nor format.
enum class MarkKind {
    Match,       ///< one of the places that a search has found: a ground of its own
    Pair,        ///< one of two ends that belong together: a ground of another colour
    Error,       ///< a fault in the source: underlined with a wave, and a sign in the margin
    Hint,        ///< what could be better: the same in another colour
    Changed,     ///< a text that has changed: a bar in the margin
    Colour,      ///< a value that names a colour: a small square of that colour behind it
    CurrentLine, ///< the lines that the range touches: a faint ground from side to side
};

/// Whose marks they are. Each owner has a list of its own, so that none takes those of another away.
enum class MarkOwner {
    Search,
    Tags,
    Check,
    Structure,
    Colours,
    Changes,
};

/// A mark, in positions of TextSurface.
struct MarkedRange {
    qsizetype start = 0;
    qsizetype length = 0; ///< 0: a place; only the margin shows it
    MarkKind kind = MarkKind::Match;
    QString tip = {};                       ///< what the user reads with the pointer on the mark; empty for none
    std::optional<ColourValue> colour = {}; ///< of a Colour mark
    bool operator==(const MarkedRange &) const = default;
};

/// What a user reads who points at these marks: each tip once, in their order, a line each.
QString tipOf(const QList<MarkedRange> &marks);
