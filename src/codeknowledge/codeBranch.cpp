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
            const int entry = entryOf(number);
            m_parents.push_back(entry);
            m_levels[0].push_back(number);
            (entry ? m_inner : m_outer).push_back(number);
            attribute = 0;
        } else if (depth == HtmlLine::AttributeDepth && !m_levels[0].empty()) {
            m_parents.push_back(m_levels[0].back());
            m_levels[1].push_back(number);
            attribute = number;
        } else if (depth != HtmlLine::AttributeDepth && attribute) {
            m_parents.push_back(attribute);
        } else {
            break;
        }
    }
    for (std::vector<int> &nodes : m_levels)
        nodes.shrink_to_fit();
    m_outer.shrink_to_fit();
    m_inner.shrink_to_fit();
    std::stable_sort(m_inner.begin(), m_inner.end(), [this](int a, int b) { return parentOf(a) < parentOf(b); });
}

/// The element under which that of a line stands, which has been read by then; the root if it names none.
int CodeBranch::entryOf(int number) const
{
    const QString entry = elementText(htmlLine(lineOf(number)).text).entry;
    if (entry.isEmpty())
        return 0;
    const auto isEntry = [&](int outer) { return htmlLine(lineOf(outer)).text == entry; };
    if (!m_inner.empty() && isEntry(parentOf(m_inner.back()))) // they mostly stand together
        return parentOf(m_inner.back());
    const auto found = std::find_if(m_outer.begin(), m_outer.end(), isEntry);
    return found == m_outer.end() ? 0 : *found;
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
        m_outer.push_back(number);
    }
}

bool CodeBranch::isElement(int number) const
{
    return m_html && std::binary_search(m_levels[0].begin(), m_levels[0].end(), number);
}

int CodeBranch::depthOf(int number) const
{
    int depth = 0;
    for (; number > 0; number = parentOf(number)) {
        ++depth;
        if (isElement(number))
            break;
    }
    return depth;
}

/// Where in m_inner those that stand under an element begin, and behind the last one.
std::pair<int, int> CodeBranch::innerOf(int number) const
{
    const auto first =
        std::partition_point(m_inner.begin(), m_inner.end(), [&](int one) { return parentOf(one) < number; });
    const auto last = std::partition_point(first, m_inner.end(), [&](int one) { return parentOf(one) == number; });
    return {static_cast<int>(first - m_inner.begin()), static_cast<int>(last - m_inner.begin())};
}

std::vector<int> CodeBranch::attributesOf(int element) const
{
    std::vector<int> found;
    for (int row = innerOf(element).second - innerOf(element).first; row < childCount(element); ++row)
        found.push_back(child(element, row));
    return found;
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

/// What stands below a node, but for the elements of other languages.
CodeBranch::Below CodeBranch::below(int number) const
{
    const int depth = depthOf(number);
    if (depth == 0)
        return {&m_outer, 0, static_cast<int>(m_outer.size())};
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

int CodeBranch::childCount(int number) const
{
    const auto [first, last] = innerOf(number);
    return last - first + below(number).count;
}

int CodeBranch::child(int number, int row) const
{
    const auto [first, last] = innerOf(number);
    if (row < last - first)
        return m_inner[static_cast<size_t>(first) + static_cast<size_t>(row)];
    row -= last - first;
    const Below children = below(number);
    return children.level ? (*children.level)[static_cast<size_t>(children.first) + static_cast<size_t>(row)]
                          : children.first + row;
}

int CodeBranch::rowOf(int number) const
{
    if (number == 0)
        return 0;
    const auto [first, last] = innerOf(parentOf(number));
    if (isInner(number))
        return static_cast<int>(std::lower_bound(m_inner.begin() + first, m_inner.begin() + last, number) -
                                m_inner.begin()) -
               first;
    const Below siblings = below(parentOf(number));
    if (!siblings.level)
        return last - first + number - siblings.first;
    const auto place = std::lower_bound(siblings.level->begin() + siblings.first, siblings.level->end(), number);
    return last - first + static_cast<int>(place - siblings.level->begin()) - siblings.first;
}

TreeNode CodeBranch::node(int number) const
{
    if (number > 0)
        return m_html ? htmlNode(number) : cssNode(number);
    return root(m_html);
}

TreeNode CodeBranch::root(bool html)
{
    if (html)
        return {QStringLiteral("HyperText Markup Language"), htmlKey, QStringLiteral("ImgNode1"), -1};
    return {QStringLiteral("Cascading Style Sheets"), cssKey, QStringLiteral("ImgNodeCSS1"), -1};
}

TreeNode CodeBranch::outerNode(bool html, const QString &line)
{
    if (html) {
        const HtmlLine element = htmlLine(line);
        return {element.text, {}, imageOf(element), 0};
    }
    const QString property = cssLine(line).text;
    return {property + u':', property, QStringLiteral("ImgNodeCSSProperty"), 0};
}

TreeNode CodeBranch::htmlNode(int number) const
{
    if (parentOf(number) == 0)
        return outerNode(true, lineOf(number));
    const HtmlLine line = htmlLine(lineOf(number));
    const QString text = line.kind() == HtmlLine::Attribute ? attributeText(line.text).name
                         : isInner(number)                  ? elementText(line.text).name
                                                            : line.text;
    return {text, {}, imageOf(line), parentOf(number)};
}

TreeNode CodeBranch::cssNode(int number) const
{
    if (parentOf(number) == 0)
        return outerNode(false, lineOf(number));
    return {cssLine(lineOf(number)).text, {}, QStringLiteral("ImgNodeCSSValue"), parentOf(number)};
}
