#include "unit/codeknowledge/dataFiles.h"

#include <QFile>
#include <algorithm>
#include <functional>

namespace datafiles
{
namespace
{
constexpr char level = '\xBB';      // »
constexpr char deprecated = '\xAB'; // «

struct Line {
    qsizetype depth = 0;
    bool deprecated = false;
    QString text;
};

bool isPlain(char c)
{
    return c >= ' ' && c <= '~';
}

bool isMark(char c)
{
    return c == level || c == deprecated;
}

/// The line, and what is wrong with it.
Line readLine(const QByteArray &bytes, QStringList &faults, qsizetype number)
{
    const auto wrong = [&](const char *what) {
        faults << QStringLiteral("%1: %2").arg(number).arg(QLatin1String{what});
    };
    Line line;
    while (line.depth < bytes.size() && isMark(bytes.at(line.depth)))
        ++line.depth;
    const QByteArray marks = bytes.left(line.depth);
    const QByteArray text = bytes.mid(line.depth);
    line.deprecated = marks.endsWith(deprecated);
    line.text = QString::fromLatin1(text);
    if (line.depth < 1 || line.depth > 3)
        wrong("neither element, attribute nor value");
    if (marks.chopped(marks.isEmpty() ? 0 : 1).contains(deprecated))
        wrong("the mark of deprecation is not the last");
    if (!std::all_of(text.begin(), text.end(), isPlain))
        wrong("a character that is neither a leading mark nor plain");
    if (text.isEmpty() || text.trimmed() != text)
        wrong("no text, or blanks around it");
    return line;
}

/// The lines of a file, each of which ends in CR LF.
QList<QByteArray> linesOf(const QByteArray &bytes, QStringList &faults)
{
    QList<QByteArray> lines = bytes.split('\n');
    if (!lines.takeLast().isEmpty())
        faults << QStringLiteral("the last line has no end");
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines.at(i).endsWith('\r'))
            lines[i].chop(1);
        else
            faults << QStringLiteral("%1: the line does not end in CR LF").arg(i + 1);
    }
    return lines;
}

Attribute attributeOf(const Line &line)
{
    const qsizetype equals = line.text.indexOf(u'=');
    if (equals < 0)
        return {line.text, QString(), line.deprecated, {}};
    return {line.text.left(equals + 1), line.text.mid(equals + 1), line.deprecated, {}};
}

/// Puts the line into its place; false if it has none.
bool place(const Line &line, std::vector<Element> &elements)
{
    if (line.depth == 1) {
        elements.push_back({line.text, line.deprecated, {}});
        return true;
    }
    if (elements.empty())
        return false;
    std::vector<Attribute> &attributes = elements.back().attributes;
    if (line.depth == 2) {
        attributes.push_back(attributeOf(line));
        return true;
    }
    if (attributes.empty() || !attributes.back().name.endsWith(u'='))
        return false;
    attributes.back().values.push_back({line.text, line.deprecated});
    return true;
}

template <typename Found>
const Found *named(const std::vector<Found> &all, const QString &name)
{
    const auto found = std::find_if(all.begin(), all.end(), [&](const Found &each) { return each.name == name; });
    return found == all.end() ? nullptr : &*found;
}
} // namespace

const Attribute *Element::attribute(const QString &attributeName) const
{
    return named(attributes, attributeName);
}

QString Element::syntaxLine() const
{
    QString line = u'<' + name;
    for (const Attribute &attribute : attributes)
        line += u' ' + attribute.name + (attribute.hint.isEmpty() ? QString() : u'[' + attribute.hint + u']');
    return line + u'>';
}

const Element *Html::element(const QString &name) const
{
    return named(elements, name);
}

const Property *Css::property(const QString &name) const
{
    return named(properties, name);
}

QByteArray bytesOf(const QString &name)
{
    QFile file(QStringLiteral(TEST_SOURCE_DIR "/data/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Html readHtml(const QByteArray &bytes)
{
    Html html;
    qsizetype number = 0;
    for (const QByteArray &text : linesOf(bytes, html.faults)) {
        const Line line = readLine(text, html.faults, ++number);
        if (!place(line, html.elements))
            html.faults << QStringLiteral("%1: nothing that it belongs to").arg(number);
    }
    const auto isInner = [](const Element &element) { return element.name.contains(u'>'); };
    const auto inner = std::stable_partition(html.elements.begin(), html.elements.end(), std::not_fn(isInner));
    for (auto element = inner; element != html.elements.end(); ++element) {
        const QString entry = element->name.section(u'>', 0, 0);
        element->name = element->name.section(u'>', 1);
        html.inner.emplace_back(entry, *element);
    }
    html.elements.erase(inner, html.elements.end());
    return html;
}

Css readCss(const QByteArray &bytes)
{
    Css css;
    qsizetype number = 0;
    for (const QByteArray &text : linesOf(bytes, css.faults)) {
        const Line line = readLine(text, css.faults, ++number);
        if (line.deprecated || line.depth > 2 || (line.depth == 2 && css.properties.empty()))
            css.faults << QStringLiteral("%1: neither a property nor a value of one").arg(number);
        else if (line.depth == 1)
            css.properties.push_back({line.text, {}});
        else
            css.properties.back().values << line.text;
    }
    return css;
}

const Html &html()
{
    static const Html read = readHtml(bytesOf(QStringLiteral("Html.tcb")));
    return read;
}

const Css &css()
{
    static const Css read = readCss(bytesOf(QStringLiteral("Css.tcb")));
    return read;
}

QString words(const char *text)
{
    return QString::fromLatin1(text);
}

QStringList markedValues(const Attribute &attribute)
{
    QStringList texts;
    for (const Value &value : attribute.values)
        texts << (value.deprecated ? u'-' + value.text : value.text);
    return texts;
}
} // namespace datafiles
