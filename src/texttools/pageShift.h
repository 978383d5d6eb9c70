#pragma once

#include "common/html/tokenizer.h"

/// How the places of a text lie in another one that came of it by one change: of the first, what stands from `start` to
/// `oldEnd` has become what stands from `start` to `newEnd`; all else is the same.
struct PageShift {
    qsizetype start = 0;
    qsizetype oldEnd = 0;
    qsizetype newEnd = 0;

    /// The least change that makes one text of the other.
    static PageShift between(QStringView older, QStringView newer);

    qsizetype by() const { return newEnd - oldEnd; }
    /// Where a range stands now; start -1 where the change has taken an end of it.
    html::Range moved(html::Range range) const;
    void move(html::Range &range) const { range = moved(range); }
    /// Whether something within the range has changed.
    bool touches(html::Range range) const { return start < range.start + range.length && oldEnd > range.start; }
};
