// What the tree knows in the middle of a page, held against what it knew there before a change of the text.
#include "texttools/pageTree.h"

#include <algorithm>

bool OpenElement::isSame(const OpenElement &older, const PageShift &shift) const
{
    return element == older.element && tag == older.tag && space == older.space && implied == older.implied &&
           judged == older.judged && holdsHtml == older.holdsHtml && filled == older.filled && item == older.item &&
           inItem == older.inItem && textTold == older.textTold && model == older.model && state == older.state &&
           transparent == older.transparent && without == older.without && plus == older.plus && seen == older.seen &&
           !shift.touches(older.name) && shift.moved(older.name) == name && shift.moved(older.start) == start;
}

void OpenElement::move(const PageShift &shift)
{
    shift.move(start);
    shift.move(name);
}

bool PageTree::State::isSame(const State &older, const PageShift &shift) const
{
    const bool flags = head == older.head && body == older.body && wholePage == older.wholePage &&
                       afterBody == older.afterBody && xml == older.xml;
    if (!flags || open.size() != older.open.size() || ignored != older.ignored || reopened != older.reopened ||
        ended.size() != older.ended.size())
        return false;
    for (auto one = ended.begin(); one != ended.end(); ++one) {
        const auto was = older.ended.constFind(one.key());
        if (was == older.ended.constEnd() || shift.touches(*was) || shift.moved(*was) != *one)
            return false;
    }
    return std::equal(open.rbegin(), open.rend(), older.open.rbegin(),
                      [&](const OpenElement &now, const OpenElement &was) { return now.isSame(was, shift); });
}

void PageTree::State::move(const PageShift &shift)
{
    for (OpenElement &one : open)
        one.move(shift);
    for (html::Range &range : ended)
        shift.move(range);
}
