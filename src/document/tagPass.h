#pragma once

#include "document/paintList.h"
#include "document/structureTree.h"
#include "document/textSearch.h"

#include <QString>

/// The colouring of tags, attributes, values and comments, and the source of the structure tree.
///
/// Positions follow the arithmetic that the pass is defined by: `m_lt` counts from 0, `m_gt` and all results of
/// searches from 1, so that `m_gt` is also the place behind the tag counted from 0. Where a step cannot be done (a cut
/// that starts before the text, a selection of negative length) its target keeps what it had.
class TagPass
{
public:
    /// What is handed in must outlive the pass.
    TagPass(QStringView text, PaintList &paints, StructureTree &structure);

    /// Goes on to the next place at which pending events may run, and is true there; false once the pass is over.
    /// `cancelled` is looked at between tags. `structureShown` tells whether the tree takes nodes just now.
    bool advance(bool cancelled, bool structureShown);

private:
    enum class Place { Start, AtTag, AtValue, End };

    void toNextTag();
    void toNextValue();
    bool findTag();
    qsizetype repairedEnd(qsizetype gt);
    void colourTag(bool structureShown);
    void colourAttributes();
    void colourValue();
    void colourComment();

    QStringView m_text;
    PaintList &m_paints;
    StructureTree &m_structure;

    NextOccurrence m_opening;       // "<" from where the pass stands
    NextOccurrence m_closing;       // ">" likewise
    NextOccurrence m_secondOpening; // "<" behind the tag's own
    NextOccurrence m_lineEndInTag;
    NextOccurrence m_lineEnd;
    NextOccurrence m_blank;
    NextOccurrence m_commentEnd;

    Place m_place = Place::Start;
    qsizetype m_pos = 0;
    qsizetype m_lt = 0;
    qsizetype m_gt = 0;
    QStringView m_tag;
    qsizetype m_valueSearch = 1; // where in the tag the next "=" is sought, from 1
};
