#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>

class CodeKnowledge;

/// The words of HTML as the syntax check asks for them: all nodes of the code tree's HTML branch by the text of the
/// node that they stand under. A check asks thousands of times, and the tree has tens of thousands of nodes.
class CodeWords
{
public:
    /// Reads the tree once; `codes` must stay as it is and outlive the object.
    explicit CodeWords(const CodeKnowledge &codes);

    /// Case does not count in the word; `tag` is compared exactly.
    bool isElement(const QString &word) const;
    bool isAttribute(const QString &tag, const QString &word) const;

    /// The names as the tree has them, in its order.
    QStringList elements() const { return textsOf(m_elements); }
    QStringList attributesOf(const QString &tag) const { return textsOf(m_children.value(tag)); }

private:
    QString nameOfTag(int number) const;
    QStringList textsOf(const QList<int> &nodes) const;
    QSet<QString> lowerTextsOf(const QList<int> &nodes) const;

    const CodeKnowledge &m_codes;
    QList<int> m_elements;                                  ///< nodes under the root of the branch
    QHash<QString, QList<int>> m_children;                  ///< by the text of the node above them
    QSet<QString> m_elementNames;                           ///< in lower case
    mutable QHash<QString, QSet<QString>> m_attributeNames; ///< of the tags asked for so far, in lower case
};
