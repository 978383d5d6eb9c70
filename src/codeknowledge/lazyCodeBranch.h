#pragma once

#include "codeknowledge/codeBranch.h"
#include "codeknowledge/codeOutline.h"

#include <functional>
#include <optional>

/// A branch of the code tree whose file is read once something is asked that its outline does not tell: what stands
/// below the nodes right under the root.
class LazyCodeBranch
{
public:
    LazyCodeBranch() = default;                                     ///< of no nodes, not even a root
    LazyCodeBranch(CodeBranch whole) : m_whole(std::move(whole)) {} // NOLINT(google-explicit-constructor)
    /// The function gives the branch that this is the outline of, later. Where it has another one by then, what stands
    /// below the nodes of the outline has no text.
    LazyCodeBranch(bool html, CodeOutline outline, std::function<CodeBranch()> read);

    /// False: a line had no place in the tree, and what stands behind it was not read.
    bool isComplete() const { return m_outline || m_whole->isComplete(); }
    const CodeBranch &whole() const;

    /// As those of CodeBranch.
    int size() const { return m_outline ? m_outline->size() : m_whole->size(); }
    TreeNode node(int number) const;
    int parentOf(int number) const;
    int childCount(int number) const;
    int child(int number, int row) const;
    int rowOf(int number) const;
    bool isElement(int number) const;

private:
    bool isOutlined(const CodeBranch &branch) const;
    CodeBranch standIn() const;

    bool m_html = true;
    std::optional<CodeOutline> m_outline;
    std::function<CodeBranch()> m_read;
    mutable std::optional<CodeBranch> m_whole = CodeBranch(); ///< nothing: not read yet
};
