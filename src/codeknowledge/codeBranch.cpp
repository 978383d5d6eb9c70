#include "codeknowledge/codeBranch.h"

#include "codeknowledge/codeFiles.h"

#include <QSet>
#include <algorithm>

namespace
{
const QString htmlKey = QStringLiteral("html");
const QString cssKey = QStringLiteral("css");

QString imageOf(const HtmlLine &line)
{
    if (line.deprecated)
        return QStringLiteral("ImgDepr");
    switch (line.kind()) {
    case HtmlLine::Element:
        return QStringLiteral("ImgNode2");
    case HtmlLine::Attribute:
        return QStringLiteral("ImgNode3");
    default:
        return QStringLiteral("ImgNode4");
    }
}
} // namespace

CodeBranch CodeBranch::ofHtml(const QByteArray &bytes)
{
    return CodeBranch(bytes, true);
}

CodeBranch CodeBranch::ofCss(const QByteArray &bytes)
{
    return CodeBranch(bytes, false);
}

CodeBranch::CodeBranch(const QByteArray &bytes, bool html) : m_lines(bytes), m_html(html)
{
    const int all = m_lines.size() + 1;
    m_parents.reserve(static_cast<size_t>(all));
    m_parents.push_back(-1);
    if (html)
        placeHtml();
    else
        placeCss();
    m_complete = size() == all;
}

/// Puts each node under the one that its line belongs to, until a line has no place.
void CodeBranch::placeHtml()
{
    int attribute = 0; // of the element that is being read
    for (int number = 1; number <= m_lines.size(); ++number) {
        const int depth = m_lines.count(number - 1, codeMark, deprecatedCodeMark);
        if (depth == HtmlLine::ElementDepth) {
            m_parents.push_back(0);
            m_levels[0].push_back(number);
            attribute = 0;
        } else if (depth == HtmlLine::AttributeDepth && !m_levels[0].empty()) {
            m_parents.push_back(m_levels[0].back());
            m_levels[1].push_back(number);
            attribute = number;
        } else if (depth != HtmlLine::AttributeDepth && attribute) {
            m_parents.push_back(attribute);
        } else {
            return;
        }
    }
}

void CodeBranch::placeCss()
{
    QSet<QString> keys{htmlKey, cssKey}; // of the whole tree
    int property = 0;                    // 0 for one without a name, which has no key that values could be put under
    for (int number = 1; number <= m_lines.size(); ++number) {
        if (m_lines.startsWithTwo(number - 1, codeMark)) {
            if (!property)
                return;
            m_parents.push_back(property);
            continue;
        }
        const QString name = cssLine(lineOf(number)).text;
        if (keys.contains(name))
            return;
        if (!name.isEmpty())
            keys.insert(name);
        property = name.isEmpty() ? 0 : number;
        m_parents.push_back(0);
        m_levels[0].push_back(number);
    }
}

int CodeBranch::depthOf(int number) const
{
    int depth = 0;
    for (; number > 0; number = parentOf(number))
        ++depth;
    return depth;
}

/// The first node behind a node of that depth which is not below it.
int CodeBranch::behind(int number, int depth) const
{
    int first = size();
    for (size_t level = 0; level < static_cast<size_t>(depth); ++level) {
        const auto next = std::upper_bound(m_levels[level].begin(), m_levels[level].end(), number);
        if (next != m_levels[level].end())
            first = std::min(first, *next);
    }
    return first;
}

CodeBranch::Below CodeBranch::below(int number) const
{
    const int depth = depthOf(number);
    if (depth == lastDepth())
        return {};
    const int end = behind(number, depth);
    if (depth + 1 == lastDepth())
        return {nullptr, number + 1, end - number - 1};
    const std::vector<int> &level = m_levels[static_cast<size_t>(depth)];
    const auto first = std::upper_bound(level.begin(), level.end(), number);
    const auto last = std::lower_bound(first, level.end(), end);
    return {&level, static_cast<int>(first - level.begin()), static_cast<int>(last - first)};
}

int CodeBranch::child(int number, int row) const
{
    const Below children = below(number);
    return children.level ? (*children.level)[static_cast<size_t>(children.first) + static_cast<size_t>(row)]
                          : children.first + row;
}

int CodeBranch::rowOf(int number) const
{
    if (number == 0)
        return 0;
    const Below siblings = below(parentOf(number));
    if (!siblings.level)
        return number - siblings.first;
    const auto place = std::lower_bound(siblings.level->begin() + siblings.first, siblings.level->end(), number);
    return static_cast<int>(place - siblings.level->begin()) - siblings.first;
}

TreeNode CodeBranch::node(int number) const
{
    if (number > 0)
        return m_html ? htmlNode(number) : cssNode(number);
    if (m_html)
        return {QStringLiteral("HyperText Markup Language"), htmlKey, QStringLiteral("ImgNode1"), -1};
    return {QStringLiteral("Cascading Style Sheets"), cssKey, QStringLiteral("ImgNodeCSS1"), -1};
}

TreeNode CodeBranch::htmlNode(int number) const
{
    const HtmlLine line = htmlLine(lineOf(number));
    const QString text = line.kind() == HtmlLine::Attribute ? attributeText(line.text).name : line.text;
    return {text, {}, imageOf(line), parentOf(number)};
}

TreeNode CodeBranch::cssNode(int number) const
{
    const CssLine line = cssLine(lineOf(number));
    if (line.isValue)
        return {line.text, {}, QStringLiteral("ImgNodeCSSValue"), parentOf(number)};
    return {line.text + u':', line.text, QStringLiteral("ImgNodeCSSProperty"), parentOf(number)};
}
