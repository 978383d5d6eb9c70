#pragma once

#include "common/codeKnowledge.h"

#include <vector>

/// A code tree of a few elements, written as in the data file: a line an element, its attributes indented by one,
/// theirs values by two.
class SmallCodes final : public CodeKnowledge
{
public:
    explicit SmallCodes(const QString &lines)
    {
        m_nodes.push_back({QStringLiteral("HyperText Markup Language"), QStringLiteral("html"), {}, -1});
        std::vector<int> above{0, 0, 0, 0};
        for (const QString &line : lines.split(u'\n', Qt::SkipEmptyParts)) {
            const auto depth = static_cast<size_t>(line.size() - line.trimmed().size());
            m_nodes.push_back({line.trimmed(), {}, {}, above[depth]});
            above[depth + 1] = static_cast<int>(m_nodes.size()) - 1;
        }
        m_htmlNodes = static_cast<int>(m_nodes.size());
        m_nodes.push_back({QStringLiteral("Cascading Style Sheets"), QStringLiteral("css"), {}, -1});
        m_nodes.push_back({QStringLiteral("color:"), QStringLiteral("color"), {}, m_htmlNodes});
    }

    const CodeElements &elements() const override { return m_elements; }
    QString lstCodeAssistantSyntax(int) const override { return {}; }
    int HtmlCodeNodeCount() const override { return m_htmlNodes; }
    int nodeCount() const override { return static_cast<int>(m_nodes.size()); }
    TreeNode node(int number) const override { return m_nodes[static_cast<size_t>(number)]; }
    int parentOf(int number) const override { return node(number).parent; }

private:
    CodeElements m_elements;
    std::vector<TreeNode> m_nodes;
    int m_htmlNodes = 0;
};
