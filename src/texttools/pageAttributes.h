#pragma once

#include "texttools/pageProblems.h"
#include "texttools/pageReferences.h"
#include "texttools/pageTree.h"

/// Looks at the attributes of start tags.
class PageAttributes
{
public:
    PageAttributes(QStringView text, const PageRules &rules, const Vocabulary &vocabulary, PageProblems &problems,
                   PageReferences &references)
        : m_text(text), m_rules(rules), m_vocabulary(vocabulary), m_problems(problems), m_references(references)
    {
    }

    /// Reads the names of a tag's attributes, for what follows.
    void take(const html::Token &token);
    /// The value of an attribute of the tag taken last, by name; nothing where it has none.
    std::optional<QStringView> value(QLatin1String name) const;
    bool has(QLatin1String name) const { return value(name).has_value(); }
    /// Whether an element of that kind can be clicked or filled in, as its attributes have it.
    bool interactive(PageTag tag, QStringView name) const;
    void check(const html::Token &token, const PageTree::Opened &opened);
    /// Notes the names that the tag gives and those that it points to, as check() does, too.
    void collect(const html::Token &token, const PageTree::Opened &opened);

private:
    struct Taken {
        const html::Attribute *attribute = nullptr;
        int number = 0; ///< of its name in the vocabulary
    };
    void checkName(const html::Token &token, const PageTree::Opened &opened, const Taken &taken);
    bool isFree(QStringView name, const PageTree::Opened &opened);
    void tellUnknown(const Taken &taken, const PageTree::Opened &opened);
    void checkValue(const Taken &taken, const AttributeRule &rule);
    void checkRole(const html::Token &token, const PageTree::Opened &opened, const Taken &taken);
    void checkNaming(const html::Token &token, const Taken &taken);
    void checkState(const html::Token &token, QStringView role);
    void checkDemands(const html::Token &token, const ElementRule &rule);
    void checkConditions(const ElementRule &rule);
    bool holds(const AttributeTest &test) const;
    bool hold(const QList<AttributeTest> &tests) const;
    const Taken *taken(int number) const;
    QStringView valueOf(const html::Attribute &attribute) const
    {
        return m_text.mid(attribute.value.start, attribute.value.length);
    }
    html::Range whole(const html::Attribute &attribute) const
    {
        return {attribute.name.start, attribute.end() - attribute.name.start};
    }

    QStringView m_text;
    const PageRules &m_rules;
    const Vocabulary &m_vocabulary;
    PageProblems &m_problems;
    PageReferences &m_references;
    QList<Taken> m_taken;
};
