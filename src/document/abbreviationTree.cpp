#include "document/abbreviationTree.h"

namespace abbreviation
{
namespace
{
constexpr int DeepestGroup = 50;
constexpr int MostDigits = 5;

class Parser
{
public:
    explicit Parser(QStringView text) : m_text(text) {}

    std::optional<QList<Node>> parse()
    {
        QList<Node> nodes;
        if (!readSiblings(nodes) || m_at < m_text.size())
            return std::nullopt;
        return nodes;
    }

private:
    /// Reads "a>b+c^d" into `top`. The way from the top to the list that is being filled is kept, so that "^" can go
    /// back. Lists grow at their end only, and only the last one of the way does, so the way stays good.
    bool readSiblings(QList<Node> &top)
    {
        QList<QList<Node> *> way{&top};
        while (true) {
            Node node;
            if (!readNode(node))
                return false;
            way.last()->append(node);
            if (ended() || at() == u')')
                return true;
            const QChar sign = at();
            ++m_at;
            if (sign == u'>') {
                Node &parent = way.last()->last();
                if (parent.isText || parent.isGroup)
                    return false;
                way.append(&parent.children);
            } else if (sign == u'^') {
                climb(way);
                while (!ended() && at() == u'^') {
                    ++m_at;
                    climb(way);
                }
            } else if (sign != u'+') {
                return false;
            }
        }
    }

    static void climb(QList<QList<Node> *> &way)
    {
        if (way.size() > 1)
            way.removeLast();
    }

    bool readNode(Node &node)
    {
        if (ended())
            return false;
        const bool read = at() == u'(' ? readGroup(node) : readElement(node);
        return read && readCount(node);
    }

    bool readGroup(Node &node)
    {
        if (++m_depth > DeepestGroup)
            return false;
        ++m_at;
        node.isGroup = true;
        if (!readSiblings(node.children) || ended())
            return false;
        ++m_at; // its ")"
        --m_depth;
        return true;
    }

    bool readElement(Node &node)
    {
        const qsizetype start = m_at;
        node.name = readName();
        while (!ended()) {
            const QChar sign = at();
            if (sign == u'#' || sign == u'.') {
                if (!readShortAttribute(node, sign == u'#' ? QStringLiteral("id") : QStringLiteral("class")))
                    return false;
            } else if (sign == u'[') {
                if (!readAttributes(node))
                    return false;
            } else if (sign == u'{') {
                if (!readText(node))
                    return false;
            } else {
                break;
            }
        }
        node.isText = node.name.isEmpty() && node.attributes.isEmpty() && !node.text.isEmpty();
        return m_at > start;
    }

    QString readName()
    {
        const qsizetype start = m_at;
        if (ended() || !at().isLetter())
            return {};
        while (!ended() && (at().isLetterOrNumber() || at() == u'-' || at() == u'$'))
            ++m_at;
        return m_text.mid(start, m_at - start).toString();
    }

    bool readShortAttribute(Node &node, const QString &name)
    {
        const qsizetype start = ++m_at;
        while (!ended() && (at().isLetterOrNumber() || QStringView(u"-_$@:").contains(at())))
            ++m_at;
        if (m_at == start)
            return false;
        addAttribute(node, {name, m_text.mid(start, m_at - start).toString()});
        return true;
    }

    static void addAttribute(Node &node, const Attribute &attribute)
    {
        for (Attribute &each : node.attributes)
            if (each.name == attribute.name) {
                each.value = attribute.name == u"class" ? each.value + u' ' + attribute.value : attribute.value;
                each.bare = attribute.bare;
                return;
            }
        node.attributes.append(attribute);
    }

    bool readAttributes(Node &node)
    {
        ++m_at;
        while (true) {
            while (!ended() && at() == u' ')
                ++m_at;
            if (ended())
                return false;
            if (at() == u']') {
                ++m_at;
                return true;
            }
            if (!readAttribute(node))
                return false;
        }
    }

    bool readAttribute(Node &node)
    {
        const qsizetype start = m_at;
        while (!ended() && !QStringView(u" =]\"'").contains(at()))
            ++m_at;
        Attribute attribute{m_text.mid(start, m_at - start).toString(), {}};
        if (attribute.name.isEmpty() || ended())
            return false;
        if (at() == u'=') {
            ++m_at;
            const std::optional<QString> value = readValue();
            if (!value)
                return false;
            attribute.value = *value;
        } else if (attribute.name.endsWith(u'.')) {
            attribute.name.chop(1);
            attribute.bare = true;
        }
        addAttribute(node, attribute);
        return !attribute.name.isEmpty();
    }

    std::optional<QString> readValue()
    {
        if (ended())
            return std::nullopt;
        const QChar quote = at();
        if (quote == u'"' || quote == u'\'') {
            const qsizetype start = m_at + 1;
            const qsizetype end = m_text.indexOf(quote, start);
            if (end < 0)
                return std::nullopt;
            m_at = end + 1;
            return m_text.mid(start, end - start).toString();
        }
        const qsizetype start = m_at;
        while (!ended() && at() != u' ' && at() != u']')
            ++m_at;
        return m_text.mid(start, m_at - start).toString();
    }

    /// Braces inside of the text come in pairs.
    bool readText(Node &node)
    {
        int depth = 0;
        const qsizetype start = m_at + 1;
        for (; !ended(); ++m_at) {
            if (at() == u'{')
                ++depth;
            else if (at() == u'}' && --depth == 0) {
                node.text += m_text.mid(start, m_at - start);
                ++m_at;
                return true;
            }
        }
        return false;
    }

    bool readCount(Node &node)
    {
        if (ended() || at() != u'*')
            return true;
        const qsizetype start = ++m_at;
        while (!ended() && at().isDigit())
            ++m_at;
        const qsizetype digits = m_at - start;
        node.repeats = true;
        node.takesLines = digits == 0;
        if (digits > MostDigits)
            return false;
        if (digits > 0)
            node.count = m_text.mid(start, digits).toInt();
        return node.count > 0;
    }

    bool ended() const { return m_at >= m_text.size(); }
    QChar at() const { return m_text[m_at]; }

    QStringView m_text;
    qsizetype m_at = 0;
    int m_depth = 0;
};
} // namespace

std::optional<QList<Node>> parsed(QStringView abbreviation)
{
    return Parser(abbreviation).parse();
}
} // namespace abbreviation
