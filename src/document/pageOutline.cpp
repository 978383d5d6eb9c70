#include "document/pageOutline.h"

#include "common/html/textMode.h"
#include "document/tagPairs.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace
{
using Names = QSet<QString>;

Names names(const char *list)
{
    const QStringList words = QString::fromLatin1(list).split(u' ');
    return {words.begin(), words.end()};
}

/// Elements whose end tag may be left out.
bool mayStayOpen(const QString &name)
{
    static const Names open = names("html head body p li dt dd option optgroup tr td th thead tbody tfoot colgroup "
                                    "caption rt rp rb rtc");
    return open.contains(name);
}

/// Which open elements a start tag ends, and at which ones the search for them stops.
struct Ending {
    Names ends;
    Names stops;
};

const Ending *endingOf(const QString &name)
{
    static const Names table = names("table template html");
    static const Names cells = names("td th tr table template html");
    static const Ending item{{QStringLiteral("li")}, names("ul ol menu dir table td th template html")};
    static const Ending term{names("dt dd"), names("dl table td th template html")};
    static const Ending option{{QStringLiteral("option")}, names("select datalist optgroup html")};
    static const Ending group{names("option optgroup"), names("select datalist html")};
    static const Ending cell{names("td th"), names("tr table template html")};
    static const Ending row{names("tr td th caption colgroup"), names("thead tbody tfoot table template html")};
    static const Ending part{names("thead tbody tfoot tr td th caption colgroup"), table};
    static const Ending ruby{names("rt rp rb rtc"), names("ruby html")};
    static const Ending body{{QStringLiteral("head")}, names("html")};
    static const Ending block{{QStringLiteral("p")},
                              names("button td th caption table object template applet marquee html")};
    static const QHash<QString, const Ending *> endings = [] {
        QHash<QString, const Ending *> made;
        for (const QString &each :
             names("address article aside blockquote center details dialog dir div dl fieldset figcaption figure "
                   "footer form h1 h2 h3 h4 h5 h6 header hgroup hr main menu nav ol p pre search section table ul"))
            made.insert(each, &block);
        made.insert(QStringLiteral("li"), &item);
        made.insert(QStringLiteral("option"), &option);
        made.insert(QStringLiteral("optgroup"), &group);
        made.insert(QStringLiteral("tr"), &row);
        made.insert(QStringLiteral("body"), &body);
        for (const QString &each : names("dt dd"))
            made.insert(each, &term);
        for (const QString &each : names("td th"))
            made.insert(each, &cell);
        for (const QString &each : names("thead tbody tfoot caption colgroup"))
            made.insert(each, &part);
        for (const QString &each : names("rt rp rb rtc"))
            made.insert(each, &ruby);
        return made;
    }();
    return endings.value(name);
}

class OutlineWalk
{
public:
    explicit OutlineWalk(QStringView text) : m_text(text), m_tokens(text) {}

    std::vector<OutlineNode> nodes()
    {
        walk();
        while (!m_open.empty())
            drop(QStringLiteral("<%1> is not closed."));
        return std::move(m_nodes);
    }

    QStringList openElements()
    {
        walk();
        QStringList open;
        for (qsizetype level = depth() - 1; level >= 0; --level)
            open.append(nameAt(level));
        return open;
    }

private:
    /// Deeper nesting than any page has; beyond it, nothing is ended by a start tag any more.
    static constexpr qsizetype Deepest = 512;

    void walk()
    {
        for (const html::Token *token = &m_tokens.next(); token->kind != html::TokenKind::End;
             token = &m_tokens.next()) {
            if (token->kind == html::TokenKind::StartTag)
                open(*token);
            else if (token->kind == html::TokenKind::EndTag)
                close(*token);
        }
    }

    OutlineNode &top() { return m_nodes[static_cast<size_t>(m_open.back())]; }
    qsizetype depth() const { return static_cast<qsizetype>(m_open.size()); }
    const QString &nameAt(qsizetype level) const
    {
        return m_nodes[static_cast<size_t>(m_open[static_cast<size_t>(level)])].name;
    }

    void add(const html::Token &token, const QString &name, const QString &fault)
    {
        m_nodes.push_back({token.range.start, token.range.length, name, m_open.empty() ? -1 : m_open.back(), fault});
    }

    void open(const html::Token &token)
    {
        const QString name = m_tokens.textOf(token.name).toString().toLower();
        if (m_foreign == 0)
            endBefore(name);
        add(token, name, token.closed ? QString() : QStringLiteral("<%1> lacks its \">\".").arg(name));
        if (!token.closed || token.selfClosing || (m_foreign == 0 && isVoidElement(name)))
            return;
        m_open.push_back(static_cast<qsizetype>(m_nodes.size()) - 1);
        ++m_counts[name];
        if (name == u"svg" || name == u"math")
            m_tokens.setForeign(++m_foreign > 0);
        if (m_foreign == 0 && html::modeBehind(name) != html::TextMode::Markup)
            m_tokens.setMode(html::modeBehind(name), m_tokens.textOf(token.name));
    }

    void endBefore(const QString &name)
    {
        const Ending *ending = endingOf(name);
        if (!ending || std::none_of(ending->ends.begin(), ending->ends.end(),
                                    [this](const QString &each) { return m_counts.value(each) > 0; }))
            return;
        qsizetype ended = depth();
        for (qsizetype level = depth() - 1; level >= std::max(qsizetype(0), depth() - Deepest); --level) {
            if (ending->stops.contains(nameAt(level)))
                break;
            if (ending->ends.contains(nameAt(level)))
                ended = level;
        }
        while (depth() > ended) {
            m_endedBy.insert(top().name, name);
            drop(QStringLiteral("<%1> is not closed in front of ") + u'<' + name + QStringLiteral(">."));
        }
    }

    /// Takes the innermost element off; `fault` tells of one that has to have an end tag.
    void drop(const QString &fault)
    {
        OutlineNode &node = top();
        if (!mayStayOpen(node.name) && node.fault.isEmpty()) {
            node.fault = fault.arg(node.name);
            m_lacking[node.name].append(m_open.back());
        }
        takeOff();
    }

    void takeOff()
    {
        const QString name = top().name;
        --m_counts[name];
        if (name == u"svg" || name == u"math")
            m_tokens.setForeign(--m_foreign > 0);
        m_open.pop_back();
    }

    void close(const html::Token &token)
    {
        const QString name = m_tokens.textOf(token.name).toString().toLower();
        if (m_counts.value(name) == 0) {
            closeNothing(token, name);
            return;
        }
        while (top().name != name)
            drop(QStringLiteral("<%1> is not closed in front of ") + QStringLiteral("</") + name +
                 QStringLiteral(">."));
        m_lastClosed = {name, m_open.size() > 1 ? m_open[m_open.size() - 2] : -1};
        takeOff();
    }

    /// An end tag whose element was ended in front of it makes that one wrongly nested; any other is one too many.
    void closeNothing(const html::Token &token, const QString &name)
    {
        QList<qsizetype> &lacking = m_lacking[name];
        if (!lacking.isEmpty()) {
            OutlineNode &node = m_nodes[static_cast<size_t>(lacking.takeLast())];
            node.fault =
                QStringLiteral("<%1> is wrongly nested: it is closed outside of the element that it is in.").arg(name);
            return;
        }
        const std::pair<QString, qsizetype> here{name, m_open.empty() ? -1 : m_open.back()};
        QString fault = QStringLiteral("</%1> closes nothing: no <%1> is open here.").arg(name);
        if (here == m_lastClosed)
            fault = QStringLiteral("<%1> is closed twice.").arg(name);
        else if (m_endedBy.contains(name))
            fault = QStringLiteral("</%1> closes nothing: <%2> has ended the <%1>.").arg(name, m_endedBy.value(name));
        add(token, name, fault);
    }

    QStringView m_text;
    html::Tokenizer m_tokens;
    std::vector<OutlineNode> m_nodes;
    std::vector<qsizetype> m_open;                      ///< the open elements by their indices, the innermost last
    QHash<QString, int> m_counts;                       ///< of the open elements, by name
    QHash<QString, QList<qsizetype>> m_lacking;         ///< elements that were ended without their end tag, by name
    QHash<QString, QString> m_endedBy;                  ///< by name, the start tag that ended such an element last
    std::pair<QString, qsizetype> m_lastClosed{{}, -1}; ///< name and parent
    int m_foreign = 0;                                  ///< open elements of svg and math
};
} // namespace

std::vector<OutlineNode> pageOutline(QStringView text)
{
    return OutlineWalk(text).nodes();
}

QStringList openElementsAtEnd(QStringView text)
{
    return OutlineWalk(text).openElements();
}

QStringList openInFrontOf(const QStringList &open, const QString &name)
{
    const Ending *ending = endingOf(name);
    qsizetype ended = 0;
    for (qsizetype i = 0; ending && i < open.size() && mayStayOpen(open[i]) && open[i] != u"p"; ++i) {
        if (ending->stops.contains(open[i]))
            break;
        if (ending->ends.contains(open[i]))
            ended = i + 1;
    }
    return open.mid(ended);
}
