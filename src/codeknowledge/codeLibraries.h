#pragma once

#include "codeknowledge/codeTree.h"
#include "common/codeKnowledge.h"

#include <memory>

class FileSystem;
class NodeTreeModel;

/// The program's knowledge of HTML and CSS, from the data files `Html.tcb` and `Css.tcb` in the program's folder. They
/// are read when something first asks for it, so that a start does not wait for them, and kept as they are: some 1.5
/// MiB. Of those that came with the program the tree's first rows are known without.
class CodeLibraries final : public CodeKnowledge
{
public:
    CodeLibraries();
    ~CodeLibraries() override;

    /// Takes the place where both files stand, once; `files` must be there until they are read. Nothing is reported:
    /// what cannot be read is not there. Without `Html.tcb` nothing is read; a line that has no place in the tree ends
    /// the reading of both files.
    void LoadCodeLibraries(FileSystem &files, const QString &folder);
    /// The same for two files by their paths.
    void LoadCodeLibraries(FileSystem &files, const QString &html, const QString &css);
    /// Whether both files were read to their ends.
    bool isComplete() const;

    const CodeElements &elements() const override;
    QString lstCodeAssistantSyntax(int row) const override;
    int syntaxCount() const; ///< the rows of lstCodeAssistantSyntax
    int HtmlCodeNodeCount() const override;
    int nodeCount() const override { return codes().size(); }
    TreeNode node(int number) const override { return codes().node(number); }
    int parentOf(int number) const override { return codes().parentOf(number); }
    bool isElement(int number) const override { return codes().isElement(number); }

    /// The nodes of the code tree.
    std::shared_ptr<NodeTreeModel> tree() const { return m_tree; }
    /// The elements as the code assistant offers them, one root node for each row of lstCodeAssistantElementsFull.
    std::shared_ptr<NodeTreeModel> elementNodes() const { return m_elementNodes; }

private:
    class Source;
    const CodeTree &codes() const;

    std::shared_ptr<Source> m_source; ///< the trees' models hold it, too, and may outlive us with their windows
    std::shared_ptr<NodeTreeModel> m_tree;
    std::shared_ptr<NodeTreeModel> m_elementNodes;
};
