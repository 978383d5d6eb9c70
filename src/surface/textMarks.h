#pragma once

#include "common/markedRange.h"
#include "surface/formatRuns.h"

#include <QList>
#include <vector>

/// The marks of a text, of all owners, in positions of TextSurface.
///
/// What lies between two places is found without a look at the others; an edit moves those behind it.
class TextMarks
{
public:
    /// Takes these in the place of all that the owner had; those that do not lie in the text are left out, and those
    /// that reach behind its end are cut. Tells where the text looks different now, in no order.
    std::vector<TextStretch> set(MarkOwner owner, const QList<MarkedRange> &marks, qsizetype textLength);
    /// The characters between two places have given way to `added` ones. Marks stay at their text; those that lost all
    /// of theirs go.
    void move(qsizetype from, qsizetype to, qsizetype added);
    void clear();

    QList<MarkedRange> all() const; ///< in order of their starts
    bool isEmpty() const { return m_marks.empty(); }
    /// Hands over each mark that touches what is between two places, in order of their starts.
    template <typename Take>
    void forEachAt(qsizetype from, qsizetype to, const Take &take) const
    {
        for (auto i = firstFrom(from - m_longest); i != m_marks.end() && i->mark.start <= to; ++i) {
            if (i->mark.start + i->mark.length >= from)
                take(i->mark);
        }
    }

private:
    struct Owned {
        MarkedRange mark;
        MarkOwner owner = MarkOwner::Search;
    };
    std::vector<Owned>::const_iterator firstFrom(qsizetype position) const;
    void noteLongest();

    std::vector<Owned> m_marks; ///< in order of their starts
    qsizetype m_longest = 0;    ///< characters of a mark
};
