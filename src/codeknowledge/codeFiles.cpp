#include "codeknowledge/codeFiles.h"

#include <QSet>
#include <algorithm>
#include <optional>

namespace
{
constexpr QChar mark = u'\u00BB';
constexpr QChar deprecatedMark = u'\u00AB';
const QString htmlKey = QStringLiteral("html");
const QString cssKey = QStringLiteral("css");

/// Hands each line of a text to `use`, until that returns false.
template <typename Use>
bool forEachLine(QStringView text, Use use)
{
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf(u"\r\n");
        if (!use(end < 0 ? text : text.first(end)))
            return false;
        text = end < 0 ? QStringView() : text.sliced(end + 2);
    }
    return true;
}

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

/// Makes the nodes and lists of the HTML branch, line by line.
class HtmlReader
{
public:
    /// For a text of so many lines.
    explicit HtmlReader(qsizetype lines)
    {
        m_codes.branch.nodes.reserve(static_cast<size_t>(lines) + 1);
        m_codes.branch.nodes.push_back(
            {QStringLiteral("HyperText Markup Language"), htmlKey, QStringLiteral("ImgNode1"), -1});
    }

    /// False if the line has no place.
    bool read(const HtmlLine &line)
    {
        switch (line.kind()) {
        case HtmlLine::Element:
            return readElement(line);
        case HtmlLine::Attribute:
            return readAttribute(line);
        default:
            return readValue(line);
        }
    }

    HtmlCodes finish(bool complete)
    {
        m_codes.branch.complete = complete;
        if (complete)
            endSyntax();
        return std::move(m_codes);
    }

private:
    /// The number of the new node.
    int add(const HtmlLine &line, const QString &text, int parent)
    {
        m_codes.branch.nodes.push_back({text, {}, imageOf(line), parent});
        return static_cast<int>(m_codes.branch.nodes.size()) - 1;
    }

    bool readElement(const HtmlLine &line)
    {
        constexpr int root = 0;
        m_element = add(line, line.text, root);
        m_attribute.reset();
        const QString name = u'<' + line.text;
        m_codes.elements.lstCodeAssistantElements.append(name);
        m_codes.elements.lstCodeAssistantElementsFull.append((line.deprecated ? u'd' : u'e') + name);
        endSyntax();
        m_syntax = name;
        return true;
    }

    bool readAttribute(const HtmlLine &line)
    {
        if (!m_element)
            return false;
        const AttributeText attribute = attributeText(line.text);
        m_attribute = add(line, attribute.name, *m_element);
        m_syntax.append(u' ').append(attribute.name);
        if (!attribute.hint.isEmpty())
            m_syntax.append(u'[').append(attribute.hint).append(u']');
        return true;
    }

    bool readValue(const HtmlLine &line)
    {
        if (!m_attribute)
            return false;
        add(line, line.text, *m_attribute);
        return true;
    }

    void endSyntax()
    {
        if (!m_syntax.isEmpty())
            m_codes.elements.lstCodeAssistantSyntax.append(m_syntax + u'>');
    }

    HtmlCodes m_codes;
    QString m_syntax; ///< of the element that is being read
    std::optional<int> m_element;
    std::optional<int> m_attribute; ///< of the element that is being read
};

/// Makes the nodes of the CSS branch, line by line.
class CssReader
{
public:
    /// For a text of so many lines.
    explicit CssReader(qsizetype lines)
    {
        m_branch.nodes.reserve(static_cast<size_t>(lines) + 1);
        m_branch.nodes.push_back({QStringLiteral("Cascading Style Sheets"), cssKey, QStringLiteral("ImgNodeCSS1"), -1});
    }

    /// False if the line has no place.
    bool read(const CssLine &line)
    {
        if (!line.isValue)
            return readProperty(line.text);
        if (m_property)
            m_branch.nodes.push_back({line.text, {}, QStringLiteral("ImgNodeCSSValue"), *m_property});
        return m_property.has_value();
    }

    CodeBranch finish(bool complete)
    {
        m_branch.complete = complete;
        return std::move(m_branch);
    }

private:
    bool readProperty(const QString &name)
    {
        constexpr int root = 0;
        if (m_keys.contains(name))
            return false;
        m_property.reset(); // values are put under a key, and a property without a name has none
        if (!name.isEmpty()) {
            m_keys.insert(name);
            m_property = static_cast<int>(m_branch.nodes.size());
        }
        m_branch.nodes.push_back({name + u':', name, QStringLiteral("ImgNodeCSSProperty"), root});
        return true;
    }

    CodeBranch m_branch;
    QSet<QString> m_keys{htmlKey, cssKey}; ///< of the whole tree
    std::optional<int> m_property;         ///< the one read last
};
} // namespace

HtmlLine htmlLine(QStringView line)
{
    HtmlLine result;
    const auto isMark = [](QChar c) { return c == mark || c == deprecatedMark; };
    const QChar *const behindMarks = std::find_if_not(line.begin(), line.end(), isMark);
    if (std::none_of(behindMarks, line.end(), isMark)) { // as good as every line
        result.depth = static_cast<int>(behindMarks - line.begin());
        result.deprecated = std::find(line.begin(), behindMarks, deprecatedMark) != behindMarks;
        result.text = line.sliced(result.depth).toString();
        return result;
    }
    for (const QChar c : line) {
        if (c == mark || c == deprecatedMark)
            ++result.depth;
        else
            result.text += c;
        result.deprecated = result.deprecated || c == deprecatedMark;
    }
    return result;
}

AttributeText attributeText(const QString &text)
{
    const qsizetype behindEquals = text.indexOf(u'=') + 1;
    if (behindEquals == 0 || behindEquals == text.size())
        return {text, {}};
    return {text.first(behindEquals), text.sliced(behindEquals)};
}

CssLine cssLine(QStringView line)
{
    if (line.size() >= 2 && line[0] == mark && line[1] == mark)
        return {true, line.sliced(2).toString()};
    return {false, line.mid(1).toString()};
}

HtmlCodes readHtmlCodes(QStringView text)
{
    HtmlReader reader(text.count(u'\n') + 1);
    const bool complete = forEachLine(text, [&](QStringView line) { return reader.read(htmlLine(line)); });
    return reader.finish(complete);
}

CodeBranch readCssCodes(QStringView text)
{
    CssReader reader(text.count(u'\n') + 1);
    const bool complete = forEachLine(text, [&](QStringView line) { return reader.read(cssLine(line)); });
    return reader.finish(complete);
}
