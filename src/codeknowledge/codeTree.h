#pragma once

#include "codeknowledge/lazyCodeBranch.h"

#include <optional>

/// The code tree: the branches of HTML and of CSS, one behind the other. Nodes are numbered from 0 through both.
class CodeTree
{
public:
    /// A branch of no nodes is not in the tree.
    CodeTree(LazyCodeBranch html, LazyCodeBranch css) : m_html(std::move(html)), m_css(std::move(css)) {}

    const LazyCodeBranch &html() const { return m_html; }
    const LazyCodeBranch &css() const { return m_css; }

    int size() const { return m_html.size() + m_css.size(); }
    TreeNode node(int number) const;
    bool isElement(int number) const { return isHtml(number) && m_html.isElement(number); }
    int parentOf(int number) const;                    ///< -1 for a root
    int rowOf(int number) const;                       ///< among its siblings, from 0
    int childCount(int number) const;                  ///< -1 is what the roots stand under
    int child(int number, int row) const;              ///< the row counts from 0
    std::optional<int> find(const QString &key) const; ///< nothing if no node has it

private:
    bool isHtml(int number) const { return number < m_html.size(); }

    LazyCodeBranch m_html;
    LazyCodeBranch m_css;
};
