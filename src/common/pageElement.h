#pragma once

#include <QList>
#include <QString>

/// An element of a page as its source and a browser both know it: the one of that name, in lower case, which `number`
/// others stand in front of. Where they count another number of them in the whole page, they do not mean the same: the
/// browser has put some in, or a script has.
struct PageElement {
    QString name;
    qsizetype number = 0; ///< from 0
    qsizetype total = 0;
    bool operator==(const PageElement &) const = default;
};

/// An element and those around it, the innermost one first.
using ElementPath = QList<PageElement>;
