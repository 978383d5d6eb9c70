#pragma once

#include "common/textSelection.h"
#include "document/textSearch.h"

#include <QSet>
#include <QString>
#include <vector>

/// A node of the document structure tree.
struct StructureNode {
    qsizetype start = 0;  ///< what a click on the node selects: its first character from 0,
    qsizetype length = 0; ///< and how many, which may be negative where a paragraph's end was taken from an earlier one
    QString text;
    QLatin1String image;   ///< key of the picture
    qsizetype parent = -1; ///< index of the node that it hangs under; -1 for a root
    /// "<start>,<length>*": the star keeps the tree from taking the key for a number.
    QString key() const;
};

/// The elements of a document in the order of its source, filled tag by tag.
class StructureTree
{
public:
    /// `text` is the whole document; it must outlive the tree's filling.
    explicit StructureTree(QStringView text);

    /// Adds what a tag makes in the tree: nothing, a node, or a paragraph with its alignment. `tag` is the tag as
    /// written, `start` its first character from 0 and `length` the number of characters selected for it. A node whose
    /// key is there already is left out.
    void AddStructureNode(QStringView tag, qsizetype start, qsizetype length);

    const std::vector<StructureNode> &nodes() const { return m_nodes; }

private:
    bool paragraphStandsBefore(qsizetype end);
    void addParagraph(qsizetype start, qsizetype length);
    void addAlignment(QStringView lowered, qsizetype start);
    void add(qsizetype start, qsizetype length, const QString &text, QLatin1String image, qsizetype parent = -1);
    qsizetype lastNode() const { return static_cast<qsizetype>(m_nodes.size()) - 1; }

    NextOccurrence m_paragraphEnd;
    NextOccurrence m_closedParagraph; // "<p>" and "<p ", for the first of them in the document
    NextOccurrence m_spacedParagraph;
    // What one paragraph leaves for those behind it that have none of their own.
    qsizetype m_close = 0;
    QString m_alignment;

    std::vector<StructureNode> m_nodes;
    QSet<std::pair<qsizetype, qsizetype>> m_keys;
};

/// What a click on the node with this key sets: SelStart and then SelLength, which the surface refuses if it is
/// negative.
TextSelection selectionOfNode(QStringView key);
