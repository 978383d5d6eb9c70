#include "texttools/pageRules.h"

#include <algorithm>
#include <array>

namespace
{
constexpr int MostElements = 250;
const QString Everywhere = QStringLiteral("*");

struct NamedKind {
    const char *name;
    ValueKind kind;
};
constexpr std::array namedKinds = {
    NamedKind{"some", ValueKind::Some},
    NamedKind{"flag", ValueKind::Flag},
    NamedKind{"id", ValueKind::Id},
    NamedKind{"ids", ValueKind::Ids},
    NamedKind{"url", ValueKind::Url},
    NamedKind{"url+", ValueKind::FilledUrl},
    NamedKind{"int", ValueKind::Integer},
    NamedKind{"uint", ValueKind::Natural},
    NamedKind{"uint+", ValueKind::Positive},
    NamedKind{"number", ValueKind::Number},
    NamedKind{"language", ValueKind::Language},
    NamedKind{"hash", ValueKind::HashName},
    NamedKind{"mime", ValueKind::MimeType},
    NamedKind{"target", ValueKind::Target},
    NamedKind{"moment", ValueKind::Moment},
    NamedKind{"day", ValueKind::Day},
    NamedKind{"characters", ValueKind::Characters},
    NamedKind{"autocomplete", ValueKind::Autocomplete},
};

AttributeRule attributeRule(const QString &marks, const QString &type)
{
    AttributeRule rule;
    rule.deprecated = marks.contains(QLatin1String("deprecated"));
    const QString head = type.section(u':', 0, 0);
    const QStringList words = type.section(u':', 1).split(u'|');
    if (head == QLatin1String("one"))
        return {rule.deprecated, ValueKind::Word, words};
    if (head == QLatin1String("case"))
        return {rule.deprecated, ValueKind::CaseWord, words};
    if (head == QLatin1String("words"))
        return {rule.deprecated, ValueKind::Words, words};
    for (const NamedKind &named : namedKinds)
        if (head == QLatin1String(named.name))
            rule.kind = named.kind;
    return rule;
}

quint32 keyOf(int element, int attribute)
{
    return (static_cast<quint32>(element) << 16U) | static_cast<quint32>(attribute);
}

QStringList wordsOf(const QString &text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}
} // namespace

/// Reads the lines of the rules. A vocabulary's groups and elements come before what speaks of them.
class PageRulesReader
{
public:
    explicit PageRulesReader(PageRules &rules) : m_rules(rules) {}

    bool read(const QString &text)
    {
        for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts))
            if (!line.startsWith(u'#'))
                readLine(line.split(u'\t'));
        endVocabulary();
        return m_rules.m_vocabularies.contains(QStringLiteral("today"));
    }

private:
    void readLine(const QStringList &cells)
    {
        const QString &kind = cells[0];
        m_cells = cells;
        if (kind == QLatin1String("vocabulary"))
            beginVocabulary();
        else if (kind == QLatin1String("group"))
            m_groups.append(cells);
        else if (kind == QLatin1String("element"))
            addElement();
        else if (kind == QLatin1String("attribute"))
            addAttribute();
        else if (kind == QLatin1String("demand"))
            addDemand();
        else if (kind == QLatin1String("condition"))
            addCondition();
        else
            addWords(kind);
    }

    QString cell(int index) const { return m_cells.value(index); }

    void beginVocabulary()
    {
        endVocabulary();
        m_vocabulary = std::make_shared<Vocabulary>();
        m_vocabulary->m_today = cell(1) == QLatin1String("today");
        m_rules.m_vocabularies.insert(cell(1), m_vocabulary);
    }

    void addElement()
    {
        const bool variant = cell(2) == QLatin1String("variant");
        m_elements.append(m_cells);
        if (variant || m_vocabulary->m_elements.count() >= MostElements)
            return;
        m_vocabulary->m_elements.add(cell(1));
        ElementRule rule;
        rule.name = cell(1);
        rule.tag = pageTagOf(rule.name);
        rule.isVoid = wordsOf(cell(2)).contains(QLatin1String("void"));
        rule.deprecated = wordsOf(cell(2)).contains(QLatin1String("deprecated"));
        m_vocabulary->m_rules.push_back(rule);
    }

    /// All elements have their numbers now, which groups and models need.
    void endVocabulary()
    {
        if (!m_vocabulary)
            return;
        for (const QStringList &group : std::as_const(m_groups))
            m_vocabulary->m_groups.insert(group.value(1), setOf(wordsOf(group.value(2))));
        for (const QStringList &element : std::as_const(m_elements))
            complete(element);
        m_groups.clear();
        m_elements.clear();
        m_vocabulary.reset();
    }

    NameSet symbol(const QString &name) const
    {
        if (name.startsWith(u'@'))
            return m_vocabulary->m_groups.value(name.mid(1));
        NameSet set;
        if (name == QLatin1String("#text"))
            set.set(Vocabulary::Text);
        else if (name == QLatin1String("#custom"))
            set.set(Vocabulary::Custom);
        else if (const int number = m_vocabulary->m_elements.find(name))
            set.set(static_cast<size_t>(number));
        return set;
    }

    NameSet setOf(const QStringList &names) const
    {
        NameSet set;
        for (const QString &name : names)
            set |= symbol(name);
        return set;
    }

    QList<int> numbersOf(const QString &names) const
    {
        QList<int> numbers;
        for (const QString &name : wordsOf(names))
            if (const int number = m_vocabulary->m_elements.find(name))
                numbers.append(number);
        return numbers;
    }

    ContentModel model(const QString &text) const
    {
        if (text == QLatin1String("any"))
            return ContentModel::notJudged();
        return ContentModel::read(text, [this](const QString &name) { return symbol(name); });
    }

    void complete(const QStringList &cells)
    {
        const QString name = cells.value(1);
        const qsizetype mark = name.indexOf(u'>');
        const int number = m_vocabulary->m_elements.find(name.mid(mark + 1));
        if (number == 0)
            return;
        ElementRule &rule = m_vocabulary->m_rules[static_cast<size_t>(number)];
        if (mark > 0) {
            rule.variants.insert(m_vocabulary->m_elements.find(name.left(mark)), model(cells.value(3)));
            return;
        }
        rule.model = model(cells.value(3));
        rule.without = setOf(wordsOf(cells.value(4)));
        rule.must = numbersOf(cells.value(5));
        rule.once = numbersOf(cells.value(6));
        rule.plus = setOf(wordsOf(cells.value(7)));
    }

    void addAttribute()
    {
        const int attribute = m_vocabulary->m_attributes.add(cell(1));
        const AttributeRule rule = attributeRule(cell(2), cell(3));
        for (const QString &element : wordsOf(cell(4)))
            if (const int number = element == Everywhere ? 0 : m_vocabulary->m_elements.find(element);
                number > 0 || element == Everywhere)
                m_vocabulary->m_attributeRules.insert(keyOf(number, attribute), rule);
    }

    ElementRule *ruleOf(const QString &element)
    {
        const int number = m_vocabulary->m_elements.find(element);
        return number == 0 ? nullptr : &m_vocabulary->m_rules[static_cast<size_t>(number)];
    }

    AttributeTest test(QString text)
    {
        const bool absent = text.startsWith(u'!');
        if (absent)
            text.remove(0, 1);
        const qsizetype mark =
            text.indexOf(QLatin1Char('=')) >= 0 ? text.indexOf(QLatin1Char('=')) : text.indexOf(u'~');
        const int attribute = m_vocabulary->m_attributes.add(mark < 0 ? text : text.left(mark));
        if (mark < 0)
            return {absent ? AttributeTest::Kind::Absent : AttributeTest::Kind::Present, attribute};
        const auto kind = text[mark] == u'=' ? AttributeTest::Kind::IsOneOf : AttributeTest::Kind::HasWord;
        return {kind, attribute, text.mid(mark + 1).split(u',')};
    }

    QList<AttributeTest> tests(const QString &text)
    {
        QList<AttributeTest> result;
        for (const QString &word : wordsOf(text))
            result.append(test(word));
        return result;
    }

    void addDemand()
    {
        ElementRule *rule = ruleOf(cell(1));
        if (!rule)
            return;
        AttributeDemand demand;
        for (const QString &name : wordsOf(cell(2)))
            demand.anyOf.append(m_vocabulary->m_attributes.add(name));
        demand.where = tests(cell(3));
        rule->demands.append(demand);
    }

    void addCondition()
    {
        ElementRule *rule = ruleOf(cell(1));
        if (!rule)
            return;
        AttributeCondition condition{m_vocabulary->m_attributes.add(cell(2)), {}, cell(3)};
        for (const QString &group : cell(3).split(u'/'))
            condition.where.append(tests(group));
        rule->conditions.append(condition);
    }

    void addWords(const QString &kind)
    {
        const QStringList words = wordsOf(cell(1));
        if (kind == QLatin1String("references"))
            m_rules.m_references = QSet<QString>(words.begin(), words.end());
        NameTable *table = kind == QLatin1String("roles")  ? &m_rules.m_roles
                           : kind == QLatin1String("aria") ? &m_rules.m_aria
                                                           : nullptr;
        if (table)
            for (const QString &word : words)
                table->add(word);
    }

    PageRules &m_rules;
    std::shared_ptr<Vocabulary> m_vocabulary;
    QStringList m_cells;
    QList<QStringList> m_groups;
    QList<QStringList> m_elements;
};

const AttributeRule *Vocabulary::attributeOf(int element, int attribute) const
{
    auto found = m_attributeRules.constFind(keyOf(element, attribute));
    if (found == m_attributeRules.constEnd())
        found = m_attributeRules.constFind(keyOf(0, attribute));
    return found == m_attributeRules.constEnd() ? nullptr : &*found;
}

QList<int> Vocabulary::attributesKept(int element) const
{
    QList<int> attributes;
    for (int attribute = 1; attribute <= m_attributes.count(); ++attribute)
        if (m_attributeRules.contains(keyOf(element, attribute)))
            attributes.append(attribute);
    return attributes;
}

QList<int> Vocabulary::ownAttributes(int element) const
{
    QList<int> attributes = attributesKept(element);
    const QList<AttributeDemand> &demands = rule(element).demands;
    std::stable_partition(attributes.begin(), attributes.end(), [&demands](int attribute) {
        return std::any_of(demands.begin(), demands.end(),
                           [attribute](const AttributeDemand &demand) { return demand.anyOf.contains(attribute); });
    });
    return attributes;
}

std::shared_ptr<const PageRules> PageRules::read(const QByteArray &bytes)
{
    auto rules = std::make_shared<PageRules>();
    if (!PageRulesReader(*rules).read(QString::fromUtf8(bytes)))
        return nullptr;
    return rules;
}

const Vocabulary *PageRules::ofPublicId(QStringView publicId) const
{
    const auto has = [&](const char *part) { return publicId.contains(QLatin1String(part), Qt::CaseInsensitive); };
    if (!has("DTD HTML 4") && !has("DTD XHTML 1.0") && !has("DTD XHTML 1.1"))
        return nullptr;
    const char *name = has("Frameset") ? "frameset" : has("Transitional") ? "loose" : "strict";
    const auto found = m_vocabularies.constFind(QLatin1String(name));
    return found == m_vocabularies.constEnd() ? nullptr : found->get();
}
