#pragma once

#include "codeknowledge/codeFiles.h"
#include "widgets/nodeTreeModel.h"

class FileSystem;

/// The program's knowledge of HTML and CSS, read from the data files `Html.tcb` and `Css.tcb` in the program's folder.
class CodeLibraries final : public CodeKnowledge
{
public:
    CodeLibraries();

    /// Reads both files, once. Nothing is reported: what cannot be read is not there. Without `Html.tcb` nothing is
    /// read; a line that has no place in the tree ends the reading of both files.
    void LoadCodeLibraries(FileSystem &files, const QString &folder);
    /// Whether both files were read to their ends.
    bool isComplete() const { return m_complete; }

    const CodeElements &elements() const override { return m_elements; }
    int HtmlCodeNodeCount() const override { return m_htmlNodes; }
    int nodeCount() const override { return m_tree->size(); }
    const TreeNode &node(int number) const override { return m_tree->at(number); }

    /// The nodes of the code tree.
    std::shared_ptr<NodeTreeModel> tree() { return m_tree; }
    /// The elements as the code assistant offers them, one root node for each row of lstCodeAssistantElementsFull.
    std::shared_ptr<NodeTreeModel> elementNodes() { return m_elementNodes; }

private:
    bool loadHtml(FileSystem &files, const QString &folder);
    bool loadCss(FileSystem &files, const QString &folder);
    void addBranch(CodeBranch branch);
    void addElementNodes();

    std::shared_ptr<NodeTreeModel> m_tree = std::make_shared<NodeTreeModel>();
    std::shared_ptr<NodeTreeModel> m_elementNodes = std::make_shared<NodeTreeModel>();
    CodeElements m_elements;
    int m_htmlNodes = 0;
    bool m_complete = false;
};
