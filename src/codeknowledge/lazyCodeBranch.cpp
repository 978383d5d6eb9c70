#include "codeknowledge/lazyCodeBranch.h"

#include "codeknowledge/codeFiles.h"

LazyCodeBranch::LazyCodeBranch(bool html, CodeOutline outline, std::function<CodeBranch()> read)
    : m_html(html), m_outline(std::move(outline)), m_read(std::move(read)), m_whole(std::nullopt)
{
}

const CodeBranch &LazyCodeBranch::whole() const
{
    if (m_whole)
        return *m_whole;
    m_whole = m_read();
    if (!isOutlined(*m_whole))
        m_whole = standIn();
    return *m_whole;
}

/// The nodes that somebody holds by their numbers have to stay, whatever became of the file.
bool LazyCodeBranch::isOutlined(const CodeBranch &branch) const
{
    if (!branch.isComplete() || branch.size() != m_outline->size() || branch.childCount(0) != m_outline->count())
        return false;
    for (int row = 0; row < m_outline->count(); ++row)
        if (branch.child(0, row) != m_outline->row(row).number)
            return false;
    return true;
}

/// A branch of as many nodes, of which only those of the outline have a text.
CodeBranch LazyCodeBranch::standIn() const
{
    const QString deeper = QString(2, QChar(codeMark)); // an attribute, or a value in CSS
    QString lines;
    for (int number = 1, row = 0; number < m_outline->size(); ++number) {
        const bool outer = row < m_outline->count() && m_outline->row(row).number == number;
        lines.append(outer ? m_outline->line(row) : deeper).append(u'\n');
        row += static_cast<int>(outer);
    }
    const QByteArray bytes = "\xEF\xBB\xBF" + lines.toUtf8();
    return m_html ? CodeBranch::ofHtml(bytes) : CodeBranch::ofCss(bytes);
}

TreeNode LazyCodeBranch::node(int number) const
{
    if (m_outline && number == 0)
        return CodeBranch::root(m_html);
    const auto row = m_outline ? m_outline->find(number) : std::nullopt;
    return row ? CodeBranch::outerNode(m_html, m_outline->line(*row)) : whole().node(number);
}

int LazyCodeBranch::parentOf(int number) const
{
    if (m_outline && number == 0)
        return -1;
    return m_outline && m_outline->find(number) ? 0 : whole().parentOf(number);
}

int LazyCodeBranch::childCount(int number) const
{
    if (m_outline && number == 0)
        return m_outline->count();
    const auto row = m_outline && !m_whole ? m_outline->find(number) : std::nullopt;
    return row ? m_outline->row(*row).children : whole().childCount(number);
}

int LazyCodeBranch::child(int number, int row) const
{
    return m_outline && number == 0 ? m_outline->row(row).number : whole().child(number, row);
}

int LazyCodeBranch::rowOf(int number) const
{
    if (m_outline && number == 0)
        return 0;
    const auto row = m_outline ? m_outline->find(number) : std::nullopt;
    return row ? *row : whole().rowOf(number);
}

bool LazyCodeBranch::isElement(int number) const
{
    if (!m_html || number == 0)
        return false;
    return (m_outline && m_outline->find(number)) || whole().isElement(number);
}
