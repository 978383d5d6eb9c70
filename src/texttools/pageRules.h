#pragma once

#include "texttools/contentModel.h"
#include "texttools/nameTable.h"
#include "texttools/pageTags.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <memory>

/// What a value of an attribute may be.
enum class ValueKind : quint8 {
    Any,
    Some, ///< anything but nothing
    Flag, ///< no value, an empty one, or the attribute's own name
    Id,
    Ids,
    Url,
    FilledUrl,
    Integer,
    Natural,  ///< 0 and up
    Positive, ///< 1 and up
    Number,
    Language,
    HashName,
    MimeType,
    Target,
    Moment,
    Day,
    Characters,
    Autocomplete,
    Word,     ///< one of a closed list, in any case
    CaseWord, ///< the same, to the letter
    Words,    ///< any number of a closed list
};

struct AttributeRule {
    bool deprecated = false;
    ValueKind kind = ValueKind::Any;
    QStringList words = {};
};

/// A test on the attributes of a tag.
struct AttributeTest {
    enum class Kind : quint8 { Present, Absent, IsOneOf, HasWord };
    Kind kind = Kind::Present;
    int attribute = 0;
    QStringList words = {};
};

/// An element must have one of these attributes, where all tests hold.
struct AttributeDemand {
    QList<int> anyOf;
    QList<AttributeTest> where;
};

/// An attribute may stand only where one of these groups of tests holds.
struct AttributeCondition {
    int attribute = 0;
    QList<QList<AttributeTest>> where;
    QString told; ///< as it stands in the rules
};

struct ElementRule {
    QString name;
    PageTag tag = PageTag::Other;
    bool isVoid = false;
    bool deprecated = false;
    ContentModel model;
    QHash<int, ContentModel> variants; ///< of the model, by the parent's number
    NameSet without;                   ///< what it may not hold at any depth
    NameSet plus;                      ///< what it may hold at any depth beside its model
    QList<int> must;
    QList<int> once;
    QList<AttributeDemand> demands;
    QList<AttributeCondition> conditions;
};

/// The rules of one language: of HTML as it is today, or of one document type of HTML 4.
class Vocabulary
{
public:
    static constexpr int Text = 254;   ///< stands for text in a NameSet
    static constexpr int Custom = 253; ///< stands for elements with a hyphen in their name

    int element(QStringView name) const { return m_elements.find(name); } ///< 0 for an unknown one
    const ElementRule &rule(int element) const { return m_rules[static_cast<size_t>(element)]; }
    QString nameOf(int element) const { return m_elements.name(element); }
    int elementCount() const { return m_elements.count(); }
    int attribute(QStringView name) const { return m_attributes.find(name); } ///< 0 for one that no element has
    QString attributeName(int attribute) const { return m_attributes.name(attribute); }
    /// Nothing where the element does not have that attribute.
    const AttributeRule *attributeOf(int element, int attribute) const;
    /// The attributes that this element has by itself, those that it must have first; and those that every element has.
    QList<int> ownAttributes(int element) const;
    QList<int> commonAttributes() const { return attributesKept(0); }
    NameSet group(const QString &name) const { return m_groups.value(name); }
    bool today() const { return m_today; } ///< the language of today

private:
    QList<int> attributesKept(int element) const;

    friend class PageRulesReader;
    NameTable m_elements;
    NameTable m_attributes;
    std::vector<ElementRule> m_rules = std::vector<ElementRule>(1);
    QHash<QString, NameSet> m_groups;
    QHash<quint32, AttributeRule> m_attributeRules; ///< by the element's and the attribute's numbers
    bool m_today = false;
};

/// What pages are checked by, read once from the data that come along.
class PageRules
{
public:
    /// Nothing where the bytes are no such rules.
    static std::shared_ptr<const PageRules> read(const QByteArray &bytes);

    const Vocabulary &today() const { return *m_vocabularies[QStringLiteral("today")]; }
    /// Of the document type with that public identifier; nothing for one that is not known.
    const Vocabulary *ofPublicId(QStringView publicId) const;
    bool isRole(QStringView name) const { return m_roles.find(name) > 0; }
    bool isAria(QStringView name) const { return m_aria.find(name) > 0; }
    /// Names of character references end with ";", but for those that browsers know without one as well.
    bool isReference(const QString &name) const { return m_references.contains(name); }

private:
    friend class PageRulesReader;
    QHash<QString, std::shared_ptr<Vocabulary>> m_vocabularies;
    NameTable m_roles, m_aria;
    QSet<QString> m_references;
};
