#include "document/abbreviation.h"

#include "document/abbreviationTree.h"
#include "document/lineIndent.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace abbreviation
{
namespace
{
constexpr int MostElements = 5000;
constexpr int LinedUpInline = 3; ///< so many inline elements side by side stand in lines of their own
const QString Break = QStringLiteral("\r\n");

QStringList words(const char *names)
{
    return QString::fromLatin1(names).split(u' ');
}

bool isVoid(const QString &name)
{
    static const QStringList names =
        words("area base br col embed hr img input link meta param source track wbr basefont bgsound frame");
    return names.contains(name);
}

bool isInline(const QString &name)
{
    static const QStringList names = words(
        "a abbr acronym applet audio b basefont bdi bdo big br button canvas cite code data del dfn em font i iframe "
        "img "
        "input ins kbd label map mark meter object output progress q ruby s samp select small span strike strong sub "
        "sup textarea time tt u var video wbr");
    return names.contains(name);
}

/// The attributes that an element hardly goes without.
QList<Attribute> usualAttributes(const QString &name)
{
    static const QHash<QString, QStringList> names{
        {QStringLiteral("a"), words("href")},           {QStringLiteral("area"), words("shape coords href alt")},
        {QStringLiteral("audio"), words("src")},        {QStringLiteral("base"), words("href")},
        {QStringLiteral("embed"), words("src type")},   {QStringLiteral("form"), words("action")},
        {QStringLiteral("iframe"), words("src")},       {QStringLiteral("img"), words("src alt")},
        {QStringLiteral("label"), words("for")},        {QStringLiteral("map"), words("name")},
        {QStringLiteral("object"), words("data type")}, {QStringLiteral("option"), words("value")},
        {QStringLiteral("param"), words("name value")}, {QStringLiteral("select"), words("name id")},
        {QStringLiteral("textarea"), words("name id")}, {QStringLiteral("video"), words("src")},
    };
    QList<Attribute> attributes;
    for (const QString &each : names.value(name))
        attributes.append({each, {}});
    if (name == u"input")
        attributes.append({QStringLiteral("type"), QStringLiteral("text")});
    if (name == u"link")
        attributes = {{QStringLiteral("rel"), QStringLiteral("stylesheet")}, {QStringLiteral("href"), {}}};
    return attributes;
}

QString impliedName(const QString &parent)
{
    static const QHash<QString, QString> children{
        {QStringLiteral("ul"), QStringLiteral("li")},           {QStringLiteral("ol"), QStringLiteral("li")},
        {QStringLiteral("menu"), QStringLiteral("li")},         {QStringLiteral("table"), QStringLiteral("tr")},
        {QStringLiteral("thead"), QStringLiteral("tr")},        {QStringLiteral("tbody"), QStringLiteral("tr")},
        {QStringLiteral("tfoot"), QStringLiteral("tr")},        {QStringLiteral("tr"), QStringLiteral("td")},
        {QStringLiteral("select"), QStringLiteral("option")},   {QStringLiteral("optgroup"), QStringLiteral("option")},
        {QStringLiteral("datalist"), QStringLiteral("option")}, {QStringLiteral("colgroup"), QStringLiteral("col")},
        {QStringLiteral("map"), QStringLiteral("area")},        {QStringLiteral("dl"), QStringLiteral("dt")},
    };
    const auto found = children.constFind(parent);
    if (found != children.constEnd())
        return *found;
    return isInline(parent) ? QStringLiteral("span") : QStringLiteral("div");
}

/// Where in a repetition an element stands.
struct Turn {
    int index = 0;
    int count = 1;
};

QString numbered(const QString &text, const Turn &turn)
{
    static const QRegularExpression sign(QStringLiteral("(\\$+)(?!#)(?:@(-)?(\\d{1,5})?)?"));
    QString result;
    qsizetype done = 0;
    for (auto match = sign.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch each = match.next();
        const int from = each.captured(3).isEmpty() ? 1 : each.captured(3).toInt();
        const int step = each.captured(2).isEmpty() ? turn.index : turn.count - 1 - turn.index;
        result += text.mid(done, each.capturedStart() - done);
        result += QString::number(from + step).rightJustified(each.capturedLength(1), u'0');
        done = each.capturedEnd();
    }
    return result + text.mid(done);
}

/// One element as it is to be written.
struct Element {
    QString name; ///< empty: text alone
    QList<Attribute> attributes;
    QString text;
    QList<Element> children;
};

/// Makes elements of nodes: repeats, numbers, names.
class Builder
{
public:
    explicit Builder(const QStringList &lines) : m_lines(lines) {}

    QList<Element> build(const QList<Node> &nodes, const QString &parent, const Turn &turn)
    {
        QList<Element> elements;
        for (const Node &node : nodes) {
            const bool byLine = node.takesLines && !m_lines.isEmpty();
            const int count = byLine ? static_cast<int>(m_lines.size()) : node.count;
            for (int i = 0; i < count && m_made <= MostElements; ++i) {
                QList<Element> made = one(node, parent, node.repeats ? Turn{i, count} : turn);
                if (byLine && !made.isEmpty()) {
                    m_lost = !put(made, m_lines[i]) || m_lost;
                    m_linesPut = true;
                }
                elements += made;
            }
        }
        return elements;
    }

    bool isTooMuch() const { return m_made > MostElements; }
    bool linesPut() const { return m_linesPut; }
    bool isLost() const { return m_lost; } ///< a line, in an element that holds nothing

    /// In place of each mark, or into the innermost element. False where that one takes none.
    static bool put(QList<Element> &elements, const QString &content)
    {
        if (replaceMarks(elements, content))
            return true;
        Element *inner = &elements.last();
        while (!inner->children.isEmpty() && !inner->children.last().name.isEmpty())
            inner = &inner->children.last();
        inner->text += content;
        return !isVoid(inner->name);
    }

private:
    QList<Element> one(const Node &node, const QString &parent, const Turn &turn)
    {
        if (node.isGroup)
            return build(node.children, parent, turn);
        ++m_made;
        Element element;
        element.text = numbered(node.text, turn);
        if (node.isText)
            return {element};
        element.name = node.name.isEmpty() ? impliedName(parent) : numbered(node.name, turn);
        element.attributes = usualAttributes(element.name);
        for (const Attribute &attribute : node.attributes)
            set(element.attributes, {attribute.name, numbered(attribute.value, turn), attribute.bare});
        element.children = build(node.children, element.name, turn);
        return {element};
    }

    static void set(QList<Attribute> &attributes, const Attribute &attribute)
    {
        const auto found = std::find_if(attributes.begin(), attributes.end(),
                                        [&](const Attribute &each) { return each.name == attribute.name; });
        if (found == attributes.end())
            attributes.append(attribute);
        else
            *found = attribute;
    }

    static bool replaceMarks(QList<Element> &elements, const QString &content)
    {
        const QString mark = QStringLiteral("$#");
        bool found = false;
        const auto replace = [&](QString &text) {
            found = found || text.contains(mark);
            text.replace(mark, content);
        };
        for (Element &element : elements) {
            replace(element.text);
            for (Attribute &attribute : element.attributes)
                replace(attribute.value);
            found = replaceMarks(element.children, content) || found;
        }
        return found;
    }

    QStringList m_lines;
    int m_made = 0;
    bool m_linesPut = false;
    bool m_lost = false;
};

class Writer
{
public:
    Writer(const IndentStyle &style, MarkupLanguage language) : m_step(indentStep(style)), m_language(language) {}

    Expansion write(const QList<Element> &elements)
    {
        writeAll(elements, 0, linesUp(elements));
        return {m_text, m_caret < 0 ? m_text.size() : m_caret};
    }

private:
    static bool linesUp(const QList<Element> &elements)
    {
        const auto isBlock = [](const Element &each) { return !each.name.isEmpty() && !isInline(each.name); };
        const auto inlines =
            std::count_if(elements.begin(), elements.end(), [](const Element &each) { return isInline(each.name); });
        return std::any_of(elements.begin(), elements.end(), isBlock) || inlines >= LinedUpInline;
    }

    void newLine(int depth)
    {
        m_text += Break;
        for (int i = 0; i < depth; ++i)
            m_text += m_step;
    }

    void writeAll(const QList<Element> &elements, int depth, bool inLines)
    {
        for (qsizetype i = 0; i < elements.size(); ++i) {
            if (i > 0 && inLines)
                newLine(depth);
            write(elements[i], depth);
        }
    }

    void write(const Element &element, int depth)
    {
        if (element.name.isEmpty()) {
            writeText(element.text, depth);
            return;
        }
        writeStartTag(element);
        if (isVoid(element.name)) {
            if (m_language == MarkupLanguage::Xhtml)
                m_text.insert(m_text.size() - 1, QStringLiteral(" /"));
            return;
        }
        const bool inLines = (linesUp(element.children) && !element.children.isEmpty()) || element.text.contains(Break);
        if (element.text.isEmpty() && element.children.isEmpty())
            markCaret();
        if (!element.text.isEmpty()) {
            if (inLines)
                newLine(depth + 1);
            writeText(element.text, depth + 1);
        }
        if (!element.children.isEmpty() && inLines)
            newLine(depth + 1);
        writeAll(element.children, depth + 1, inLines);
        if (inLines)
            newLine(depth);
        m_text += QStringLiteral("</") + element.name + u'>';
    }

    void writeStartTag(const Element &element)
    {
        m_text += u'<' + element.name;
        for (const Attribute &attribute : element.attributes) {
            m_text += u' ' + attribute.name;
            if (attribute.bare) {
                if (m_language == MarkupLanguage::Xhtml)
                    m_text += QStringLiteral("=\"") + attribute.name + u'"';
                continue;
            }
            m_text += QStringLiteral("=\"");
            if (attribute.value.isEmpty())
                markCaret();
            m_text += QString(attribute.value).replace(u'"', QStringLiteral("&quot;")) + u'"';
        }
        m_text += u'>';
    }

    void writeText(const QString &text, int depth)
    {
        const QStringList lines = text.split(Break);
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (i > 0)
                newLine(depth);
            m_text += lines[i];
        }
    }

    void markCaret()
    {
        if (m_caret < 0)
            m_caret = m_text.size();
    }

    QString m_step;
    MarkupLanguage m_language;
    QString m_text;
    qsizetype m_caret = -1;
};

/// The nearest opening bracket in front of the closing one at `at`; -1 for none. Braces nest.
qsizetype openingOf(QStringView text, qsizetype at, qsizetype limit)
{
    const QChar close = text[at];
    const QChar open = close == u']' ? u'[' : u'{';
    int depth = 0;
    for (; at >= limit; --at) {
        if (text[at] == close)
            ++depth;
        else if (text[at] == open && --depth == 0)
            return at;
    }
    return -1;
}

/// An abbreviation starts on the caret's line and behind the last tag of it; -1 inside of a tag.
qsizetype earliestStart(QStringView text, qsizetype caret)
{
    const qsizetype line = text.first(caret).lastIndexOf(u'\n') + 1;
    const qsizetype tag = text.first(caret).lastIndexOf(u'<');
    if (tag < line)
        return line;
    const qsizetype end = text.mid(tag, caret - tag).indexOf(u'>');
    return end < 0 ? -1 : tag + end + 1;
}

bool mayStand(QChar c)
{
    return c.isLetterOrNumber() || QStringView(u"#.>+^*$@-_:()").contains(c);
}

qsizetype startBefore(QStringView text, qsizetype caret, qsizetype limit)
{
    qsizetype start = caret;
    int groups = 0;
    while (start > limit) {
        const QChar c = text[start - 1];
        if (c == u']' || c == u'}') {
            const qsizetype open = openingOf(text, start - 1, limit);
            if (open < 0)
                return start;
            start = open;
            continue;
        }
        if (c == u'(' && groups == 0)
            return start;
        groups += c == u')' ? 1 : c == u'(' ? -1 : 0;
        if (!mayStand(c))
            return start;
        --start;
    }
    return start;
}
} // namespace

qsizetype lengthBefore(QStringView text, qsizetype caret, const IsElement &isElement)
{
    const qsizetype limit = earliestStart(text, caret);
    if (limit < 0)
        return 0;
    const qsizetype start = startBefore(text, caret, limit);
    const QString candidate = text.mid(start, caret - start).toString();
    if (candidate.isEmpty())
        return 0;
    static const QRegularExpression signs(QStringLiteral("[>+^*()\\[\\]{}#.$]"));
    const bool isOne = candidate.contains(signs) ? parsed(candidate).has_value() : isElement(candidate);
    return isOne ? candidate.size() : 0;
}

std::optional<Expansion> expanded(const QString &abbreviation, const IndentStyle &style, MarkupLanguage language)
{
    const std::optional<QList<Node>> nodes = parsed(abbreviation);
    if (!nodes)
        return std::nullopt;
    Builder builder({});
    const QList<Element> elements = builder.build(*nodes, {}, {});
    if (builder.isTooMuch())
        return std::nullopt;
    return Writer(style, language).write(elements);
}

std::optional<Expansion> wrapped(const QString &abbreviation, const QString &content, const IndentStyle &style,
                                 MarkupLanguage language)
{
    const std::optional<QList<Node>> nodes = parsed(abbreviation);
    if (!nodes)
        return std::nullopt;
    QStringList lines;
    for (const QString &line : content.split(Break))
        if (!line.trimmed().isEmpty())
            lines.append(line.trimmed());
    Builder builder(lines);
    QList<Element> elements = builder.build(*nodes, {}, {});
    if (builder.isTooMuch() || elements.isEmpty())
        return std::nullopt;
    if (builder.isLost() || (!builder.linesPut() && !Builder::put(elements, content)))
        return std::nullopt;
    return Writer(style, language).write(elements);
}
} // namespace abbreviation
