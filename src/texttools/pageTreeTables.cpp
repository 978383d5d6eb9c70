// What the parts of tables open and close.
#include "texttools/pageTree.h"

namespace
{
bool isTablePart(PageTag tag)
{
    return tag == PageTag::Table || tag == PageTag::Rows || tag == PageTag::Row;
}
} // namespace

bool PageTree::startInTable(const html::Token &token, int element, PageTag tag)
{
    switch (tag) {
    case PageTag::Caption:
    case PageTag::Col:
    case PageTag::Colgroup:
    case PageTag::Rows:
        return startTablePart(token, tag);
    case PageTag::Row:
        return startRow(token);
    case PageTag::Cell:
        return startCell(token);
    default:
        break;
    }
    if (top().tag == PageTag::Colgroup && tag != PageTag::Template)
        pop(&token);
    const bool passes = tag == PageTag::Script || tag == PageTag::Style || tag == PageTag::Template || element == 0;
    if (isTablePart(top().tag) && !passes && tag != PageTag::Table && top().judged) {
        if (m_problems.wants("misplaced"))
            m_problems.error("misplaced", token.range,
                             QStringLiteral("%1 may not stand in %2; browsers put it in front of the table.")
                                 .arg(shown(token.name), shown(top())),
                             QStringLiteral("Put it into a cell."));
        top().judged = false;
        return true;
    }
    if (tag == PageTag::Table && isTablePart(top().tag)) {
        m_problems.error("in-its-like", token.range, QStringLiteral("A table may stand in a cell of a table only."),
                         QStringLiteral("Put it into <td>."));
        closeTo(inTableScope(PageTag::Table), nullptr);
    }
    return closeForStart(token, tag);
}

/// caption, colgroup, col, tbody, thead and tfoot.
bool PageTree::startTablePart(const html::Token &token, PageTag tag)
{
    const qsizetype table = inTableScope(PageTag::Table);
    if (table < 0) {
        ignore(token);
        return false;
    }
    if (!(tag == PageTag::Col && top().tag == PageTag::Colgroup))
        closeTo(table + 1, &token);
    if (tag == PageTag::Col && top().tag == PageTag::Table)
        imply("colgroup", token);
    return true;
}

bool PageTree::startRow(const html::Token &token)
{
    const qsizetype table = inTableScope(PageTag::Table);
    if (table < 0) {
        ignore(token);
        return false;
    }
    const qsizetype rows = inTableScope(PageTag::Rows);
    closeTo(rows > table ? rows + 1 : table + 1, &token);
    if (rows <= table)
        imply("tbody", token);
    return true;
}

bool PageTree::startCell(const html::Token &token)
{
    const qsizetype table = inTableScope(PageTag::Table);
    if (table < 0) {
        ignore(token);
        return false;
    }
    const qsizetype row = inTableScope(PageTag::Row);
    if (row > table) {
        closeTo(row + 1, &token);
        return true;
    }
    m_problems.error("misplaced", token.range, QStringLiteral("%1 stands in no row.").arg(shown(token.name)),
                     QStringLiteral("Put <tr> in front of it."));
    startRow(token);
    imply("tr", token);
    return true;
}
