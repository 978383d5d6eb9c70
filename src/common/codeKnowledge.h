#pragma once

#include "common/treeNode.h"

#include <QStringList>

/// The elements as the code assistant and the context help use them: row n of each list speaks of the same
/// element, in the order of the data file.
struct CodeElements {
    QStringList lstCodeAssistantElements;     ///< "<" and the name
    QStringList lstCodeAssistantElementsFull; ///< "e<" and the name, "d<" for a deprecated element
    QStringList htmlNames;                    ///< those of HTML alone, not those of drawings and formulas
    bool operator==(const CodeElements &) const = default;
};

/// What the program knows of HTML and CSS. It is read once, by need, and never changes.
class CodeKnowledge
{
public:
    CodeKnowledge() = default;
    CodeKnowledge(const CodeKnowledge &) = delete;
    CodeKnowledge &operator=(const CodeKnowledge &) = delete;
    virtual ~CodeKnowledge() = default;

    virtual const CodeElements &elements() const = 0;
    /// "<", the name, the attributes with their hints, ">" of the element in that row of the lists, from 0. Empty for a
    /// row that there is not; a file that could not be read to its end leaves the last one out.
    virtual QString lstCodeAssistantSyntax(int row) const = 0;

    /// The nodes of the HTML branch of the code tree, its root included: they are the nodes 0 to this number - 1. It is
    /// 0 unless the whole branch could be read.
    virtual int HtmlCodeNodeCount() const = 0;
    /// The code tree, the program's one dictionary of elements, attributes and values. Nodes are numbered from 0; the
    /// roots have the keys "html" and "css".
    virtual int nodeCount() const = 0;
    virtual TreeNode node(int number) const = 0;
    /// The parent of a node, without the making of its texts; -1 for a root.
    virtual int parentOf(int number) const = 0;
    /// Whether a node is an element: one of HTML right under the root, or one of another language, such as that of
    /// drawings, under the one of HTML that it is entered by.
    virtual bool isElement(int number) const { return parentOf(number) >= 0 && node(parentOf(number)).key == u"html"; }
};
