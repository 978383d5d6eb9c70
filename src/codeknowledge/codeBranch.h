#pragma once

#include "codeknowledge/ownLines.h"
#include "common/treeNode.h"

#include <array>
#include <utility>

/// A branch of the code tree: the nodes that a data file gives, over the bytes of the file. Beside them it holds
/// numbers alone; a text is made when it is asked for. Nodes are numbered from 0, which is the root; node n is the
/// file's line n, counted from 1. Under an element of HTML can stand those of another language, in front of its
/// attributes.
class CodeBranch
{
public:
    CodeBranch() = default; ///< of no nodes, not even a root

    /// Reads `Html.tcb`. A value behind no attribute of its element, and an attribute in front of all elements, have no
    /// place in the tree.
    static CodeBranch ofHtml(const QByteArray &bytes);
    /// Reads `Css.tcb`, whose properties have their names as keys. A value in front of all properties has no place in
    /// the tree, and a property whose name is a key already.
    static CodeBranch ofCss(const QByteArray &bytes);

    /// False: a line had no place in the tree, and what stands behind it was not read.
    bool isComplete() const { return m_complete; }

    int size() const { return static_cast<int>(m_parents.size()); }
    TreeNode node(int number) const;
    static TreeNode root(bool html);
    /// The node of a line that stands right under the root.
    static TreeNode outerNode(bool html, const QString &line);
    int parentOf(int number) const { return m_parents[static_cast<size_t>(number)]; } ///< -1 for the root's
    int childCount(int number) const;
    int child(int number, int row) const; ///< the row counts from 0
    int rowOf(int number) const;          ///< among its siblings, from 0

    /// The elements of `Html.tcb`, in its order, those under others included; the row counts from 0.
    int elementCount() const { return m_html ? static_cast<int>(m_levels[0].size()) : 0; }
    int element(int row) const { return m_levels[0][static_cast<size_t>(row)]; }
    bool isElement(int number) const;
    /// The attributes of an element, in the order of the file.
    std::vector<int> attributesOf(int element) const;

    /// The line that a node other than the root was made of.
    QString lineOf(int number) const { return m_lines.text(number - 1); }

private:
    /// The nodes right below one: part of a level, or numbers that follow one another.
    struct Below {
        const std::vector<int> *level = nullptr;
        int first = 0; ///< the place in the level, or the number
        int count = 0;
    };

    CodeBranch(const QByteArray &bytes, bool html);
    void placeHtml();
    int entryOf(int number) const;
    bool isInner(int number) const { return isElement(number) && parentOf(number) != 0; }
    std::pair<int, int> innerOf(int number) const;
    void placeCss();
    int lastDepth() const { return m_html ? 3 : 2; }
    int depthOf(int number) const; ///< an element's is 1, wherever it stands
    int behind(int number, int depth) const;
    Below below(int number) const;
    TreeNode htmlNode(int number) const;
    TreeNode cssNode(int number) const;

    OwnLines m_lines;
    bool m_html = true;
    bool m_complete = false;
    std::vector<int> m_parents; ///< of each node
    /// The nodes of each depth below the root's but the last one; those of the last depth stand right behind the node
    /// above them. An element counts as one of the first depth wherever it stands.
    std::array<std::vector<int>, 2> m_levels;
    std::vector<int> m_outer; ///< the elements right under the root
    std::vector<int> m_inner; ///< the other ones, by the number of the element that they stand under
};
