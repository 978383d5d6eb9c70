#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// An element of a page as the structure pane shows it. Positions count from 0.
struct OutlineNode {
    qsizetype start = 0;   ///< of its start tag; of an end tag that closes nothing, of that
    qsizetype length = 0;  ///< of the tag
    QString name;          ///< in lower case
    qsizetype parent = -1; ///< the index of the element around it; -1 for none
    QString fault;         ///< why it is wrong, in one sentence; empty for an element that is right
    bool operator==(const OutlineNode &) const = default;
};

/// The elements of a page in the order of their tags, nested as they are written. An element whose end tag may be left
/// out ends where a browser ends it, and that is no fault. An element that is not closed, closed twice or wrongly
/// nested is one.
std::vector<OutlineNode> pageOutline(QStringView text);

/// The names of the elements that are open at the end of a text, the innermost one first.
QStringList openElementsAtEnd(QStringView text);
/// Those of them that stay open in front of a start tag of that name. A paragraph does, whatever comes: an author who
/// wants it closed says so.
QStringList openInFrontOf(const QStringList &open, const QString &name);
