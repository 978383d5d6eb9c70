#include "texttools/codeWords.h"

#include "common/codeKnowledge.h"
#include "common/text.h"

CodeWords::CodeWords(const CodeKnowledge &codes) : m_codes(codes)
{
    int parent = -1; // that of the node before, since children mostly follow one another
    QList<int> siblings;
    const auto store = [&] {
        if (parent >= 0)
            m_children[nameOfTag(parent)] += siblings;
        siblings.clear();
    };
    for (int number = 1; number < codes.HtmlCodeNodeCount(); ++number) {
        const int above = codes.parentOf(number);
        if (above != parent) {
            store();
            parent = above;
        }
        const bool element = codes.isElement(number);
        if (element)
            m_elements += number;
        if (!element || above == 0) // an element of drawings is no attribute of what it stands under
            siblings += number;
    }
    store();
    m_elementNames = lowerTextsOf(m_elements);
}

/// The text of a node, as the tags that are looked for are written: in lower case those of drawings, whose names have
/// capitals.
QString CodeWords::nameOfTag(int number) const
{
    const QString text = m_codes.node(number).text;
    return m_codes.isElement(number) && m_codes.parentOf(number) > 0 ? LCase(text) : text;
}

bool CodeWords::isElement(const QString &word) const
{
    return m_elementNames.contains(LCase(word));
}

bool CodeWords::isAttribute(const QString &tag, const QString &word) const
{
    auto names = m_attributeNames.constFind(tag);
    if (names == m_attributeNames.constEnd())
        names = m_attributeNames.insert(tag, lowerTextsOf(m_children.value(tag)));
    return names->contains(LCase(word));
}

QStringList CodeWords::textsOf(const QList<int> &nodes) const
{
    QStringList texts;
    for (const int number : nodes)
        texts += m_codes.node(number).text;
    return texts;
}

QSet<QString> CodeWords::lowerTextsOf(const QList<int> &nodes) const
{
    QSet<QString> texts;
    for (const int number : nodes)
        texts += LCase(m_codes.node(number).text);
    return texts;
}
