#include "codeknowledge/codeTree.h"

TreeNode CodeTree::node(int number) const
{
    if (isHtml(number))
        return m_html.node(number);
    TreeNode node = m_css.node(number - m_html.size());
    if (node.parent >= 0)
        node.parent += m_html.size();
    return node;
}

int CodeTree::parentOf(int number) const
{
    if (isHtml(number))
        return m_html.parentOf(number);
    const int parent = m_css.parentOf(number - m_html.size());
    return parent < 0 ? parent : parent + m_html.size();
}

int CodeTree::rowOf(int number) const
{
    if (isHtml(number))
        return m_html.rowOf(number);
    const bool isRoot = number == m_html.size();
    return isRoot ? static_cast<int>(m_html.size() > 0) : m_css.rowOf(number - m_html.size());
}

int CodeTree::childCount(int number) const
{
    if (number < 0)
        return static_cast<int>(m_html.size() > 0) + static_cast<int>(m_css.size() > 0);
    return isHtml(number) ? m_html.childCount(number) : m_css.childCount(number - m_html.size());
}

int CodeTree::child(int number, int row) const
{
    if (number < 0)
        return row == 0 && m_html.size() > 0 ? 0 : m_html.size();
    return isHtml(number) ? m_html.child(number, row) : m_html.size() + m_css.child(number - m_html.size(), row);
}

std::optional<int> CodeTree::find(const QString &key) const
{
    for (const LazyCodeBranch *branch : {&m_html, &m_css}) {
        const int offset = branch == &m_html ? 0 : m_html.size();
        if (branch->size() > 0 && branch->node(0).key == key)
            return offset;
    }
    const int properties = m_css.size() > 0 && !key.isEmpty() ? m_css.childCount(0) : 0;
    for (int row = 0; row < properties; ++row) {
        const int number = m_css.child(0, row);
        if (m_css.node(number).key == key)
            return m_html.size() + number;
    }
    return std::nullopt;
}
