#include "texttools/pageAttributes.h"

#include "texttools/pageValues.h"

namespace
{
bool startsWith(QStringView name, const char *prefix)
{
    return name.startsWith(QLatin1String(prefix), Qt::CaseInsensitive);
}

bool isNamed(QStringView name, const char *other)
{
    const QLatin1String word(other);
    return name.size() == word.size() && name.compare(word, Qt::CaseInsensitive) == 0;
}
/// Whether the words of an attribute are names of other elements.
bool pointsToElements(QStringView name, QStringView element)
{
    static const NameTable names =
        NameTable::of("aria-activedescendant aria-controls aria-describedby aria-details aria-errormessage "
                      "aria-flowto aria-labelledby aria-owns commandfor headers itemref popovertarget");
    return names.find(name) > 0 || (isNamed(name, "for") && isNamed(element, "output"));
}
} // namespace

void PageAttributes::take(const html::Token &token)
{
    m_taken.resize(0);
    for (const html::Attribute &attribute : token.attributes)
        if (!attribute.twice)
            m_taken.append(
                {&attribute, m_vocabulary.attribute(m_text.mid(attribute.name.start, attribute.name.length))});
}

std::optional<QStringView> PageAttributes::value(QLatin1String name) const
{
    for (const Taken &taken : m_taken)
        if (m_text.mid(taken.attribute->name.start, taken.attribute->name.length).compare(name, Qt::CaseInsensitive) ==
            0)
            return valueOf(*taken.attribute);
    return {};
}

bool PageAttributes::interactive(PageTag tag, QStringView name) const
{
    if (tag == PageTag::A)
        return has(QLatin1String("href"));
    if (tag == PageTag::Input) {
        const auto type = value(QLatin1String("type"));
        return !type || !isNamed(*type, "hidden");
    }
    if (isNamed(name, "audio") || isNamed(name, "video"))
        return has(QLatin1String("controls"));
    if (isNamed(name, "img") || isNamed(name, "object"))
        return has(QLatin1String("usemap"));
    return true;
}

void PageAttributes::check(const html::Token &token, const PageTree::Opened &opened)
{
    if (opened.foreign) {
        collect(token, opened);
        return;
    }
    const QStringView name = m_text.mid(token.name.start, token.name.length);
    const bool judged = opened.element > 0 && opened.tag != PageTag::Svg && opened.tag != PageTag::Math;
    for (const Taken &taken : std::as_const(m_taken))
        if (judged)
            checkName(token, opened, taken);
    collect(token, opened);
    if (!judged || name.contains(u'-'))
        return;
    const ElementRule &rule = m_vocabulary.rule(opened.element);
    if (rule.deprecated)
        return;
    checkDemands(token, rule);
    checkConditions(rule);
}

/// Whether anybody may write an attribute of that name on any element.
bool PageAttributes::isFree(QStringView name, const PageTree::Opened &opened)
{
    if (startsWith(name, "data-"))
        return name.size() > 5;
    if (isNamed(name, "xmlns") || isNamed(name, "xml:lang") || isNamed(name, "xml:space"))
        return true;
    if (isNamed(name, "is") || isNamed(name, "property") || isNamed(name, "typeof") || isNamed(name, "vocab") ||
        isNamed(name, "prefix") || isNamed(name, "resource") || isNamed(name, "about") || isNamed(name, "datatype") ||
        isNamed(name, "inlist"))
        return m_vocabulary.today();
    return opened.tag == PageTag::Html && startsWith(name, "xmlns:");
}

void PageAttributes::checkName(const html::Token &token, const PageTree::Opened &opened, const Taken &taken)
{
    const QStringView name = m_text.mid(taken.attribute->name.start, taken.attribute->name.length);
    const AttributeRule *rule = taken.number > 0 ? m_vocabulary.attributeOf(opened.element, taken.number) : nullptr;
    if (!rule && startsWith(name, "aria-") && m_rules.isAria(name))
        return;
    if ((isNamed(name, "aria-label") || isNamed(name, "aria-labelledby")) && opened.judged &&
        !has(QLatin1String("role")))
        checkNaming(token, taken);
    if (isNamed(name, "role")) {
        checkRole(token, opened, taken);
        return;
    }
    if (!rule) {
        if (!isFree(name, opened))
            tellUnknown(taken, opened);
        return;
    }
    if (rule->deprecated && !m_vocabulary.rule(opened.element).deprecated && m_problems.wants("deprecated"))
        m_problems.hint("deprecated", whole(*taken.attribute),
                        QStringLiteral("%1 of <%2> is deprecated.")
                            .arg(name.toString().toLower(), m_vocabulary.nameOf(opened.element)),
                        QStringLiteral("A style sheet, or a newer attribute."));
    else if (!rule->deprecated)
        checkValue(taken, *rule);
}

void PageAttributes::tellUnknown(const Taken &taken, const PageTree::Opened &opened)
{
    if (!m_problems.wants("unknown-attribute"))
        return;
    const QString name = m_text.mid(taken.attribute->name.start, taken.attribute->name.length).toString();
    m_problems.error("unknown-attribute", whole(*taken.attribute),
                     QStringLiteral("<%1> has no attribute %2.").arg(m_vocabulary.nameOf(opened.element), name),
                     m_vocabulary.today() ? QStringLiteral("A name of the language, or data-%1.").arg(name.toLower())
                                          : QString());
}

void PageAttributes::checkValue(const Taken &taken, const AttributeRule &rule)
{
    if (rule.kind == ValueKind::Any)
        return;
    const html::Attribute &attribute = *taken.attribute;
    const QStringView value = valueOf(attribute);
    if (value.contains(u'&')) // what a reference stands for is not looked up
        return;
    const ValueFault fault = faultOfValue(rule, m_text.mid(attribute.name.start, attribute.name.length), value);
    if (fault.message.isEmpty() || !m_problems.wants("value"))
        return;
    const html::Range range = attribute.valued ? attribute.value : attribute.name;
    PageProblem &problem =
        m_problems.error("value", range.length > 0 ? range : whole(attribute), fault.message, fault.remedy);
    if (!fault.fix.isEmpty() && attribute.quote)
        problem.fix = {{attribute.value.start, attribute.value.length, fault.fix}};
    else if (!fault.fix.isNull())
        problem.fix = {{attribute.name.start + attribute.name.length,
                        attribute.end() - attribute.name.start - attribute.name.length, QString()}};
}

void PageAttributes::checkRole(const html::Token &token, const PageTree::Opened &opened, const Taken &taken)
{
    const QList<QStringView> words = wordsOfValue(valueOf(*taken.attribute));
    // Fields and headings of the language tell their state by themselves.
    const bool telling = opened.tag == PageTag::Input || opened.tag == PageTag::Option ||
                         opened.tag == PageTag::Select || opened.tag == PageTag::Heading;
    if (words.size() == 1 && !telling)
        checkState(token, words.constFirst());
    for (const QStringView word : words)
        if (!m_rules.isRole(word) && m_problems.wants("value"))
            m_problems.error("value", {word.data() - m_text.data(), word.size()},
                             QStringLiteral("\"%1\" is no role.").arg(word.toString()),
                             QStringLiteral("A role of ARIA, such as button or navigation."));
}

/// What is no more than text or a box to everybody takes no name, unless it has a role.
void PageAttributes::checkNaming(const html::Token &token, const Taken &taken)
{
    static const NameTable plain =
        NameTable::of("abbr b bdi bdo cite code data del div em figcaption i ins kbd legend mark "
                      "p pre q rp rt s samp small span strong sub sup time u var");
    const QStringView element = m_text.mid(token.name.start, token.name.length);
    if (plain.find(element) == 0 && !(isNamed(element, "a") && !has(QLatin1String("href"))))
        return;
    if (m_problems.wants("attribute-out-of-place"))
        m_problems.error(
            "attribute-out-of-place", whole(*taken.attribute),
            QStringLiteral("<%1> takes no %2 where it has no role.")
                .arg(element.toString().toLower(),
                     m_text.mid(taken.attribute->name.start, taken.attribute->name.length).toString().toLower()),
            QStringLiteral("It may stand with role."));
}

/// Some roles are of no use to anybody without a state.
void PageAttributes::checkState(const html::Token &token, QStringView role)
{
    static const NameTable checked = NameTable::of("checkbox menuitemcheckbox menuitemradio radio switch");
    static const NameTable measured = NameTable::of("meter scrollbar slider");
    const QLatin1String state(checked.find(role) > 0      ? "aria-checked"
                              : measured.find(role) > 0   ? "aria-valuenow"
                              : isNamed(role, "combobox") ? "aria-expanded"
                              : isNamed(role, "heading")  ? "aria-level"
                                                          : "");
    if (state.isEmpty() || has(state) || !m_problems.wants("missing-attribute"))
        return;
    m_problems.error("missing-attribute", token.range,
                     QStringLiteral("What has the role %1 lacks %2.").arg(role.toString().toLower(), state),
                     QStringLiteral("%1=\"...\"").arg(state));
}

const PageAttributes::Taken *PageAttributes::taken(int number) const
{
    for (const Taken &taken : m_taken)
        if (taken.number == number)
            return &taken;
    return nullptr;
}

bool PageAttributes::holds(const AttributeTest &test) const
{
    const Taken *found = taken(test.attribute);
    switch (test.kind) {
    case AttributeTest::Kind::Present:
        return found != nullptr;
    case AttributeTest::Kind::Absent:
        return found == nullptr;
    case AttributeTest::Kind::IsOneOf:
        return found && test.words.contains(valueOf(*found->attribute).toString(), Qt::CaseInsensitive);
    case AttributeTest::Kind::HasWord:
        if (found)
            for (const QStringView word : wordsOfValue(valueOf(*found->attribute)))
                if (test.words.contains(word.toString(), Qt::CaseInsensitive))
                    return true;
        return false;
    }
    return false;
}

bool PageAttributes::hold(const QList<AttributeTest> &tests) const
{
    return std::all_of(tests.begin(), tests.end(), [this](const AttributeTest &test) { return holds(test); });
}

void PageAttributes::checkDemands(const html::Token &token, const ElementRule &rule)
{
    QList<int> told;
    for (const AttributeDemand &demand : rule.demands) {
        const bool met = std::any_of(demand.anyOf.begin(), demand.anyOf.end(), [this](int one) { return taken(one); });
        if (met || told.contains(demand.anyOf.constFirst()) || !hold(demand.where) ||
            !m_problems.wants("missing-attribute"))
            continue;
        told.append(demand.anyOf.constFirst());
        QStringList names;
        for (const int number : demand.anyOf)
            names.append(m_vocabulary.attributeName(number));
        m_problems.error("missing-attribute", token.range,
                         QStringLiteral("<%1> lacks %2.").arg(rule.name, names.join(QStringLiteral(" or "))),
                         QStringLiteral("<%1 %2=\"...\">").arg(rule.name, names.constFirst()));
    }
}

void PageAttributes::checkConditions(const ElementRule &rule)
{
    for (const AttributeCondition &condition : rule.conditions) {
        const Taken *found = taken(condition.attribute);
        const bool met = !found || std::any_of(condition.where.begin(), condition.where.end(),
                                               [this](const QList<AttributeTest> &tests) { return hold(tests); });
        if (met || !m_problems.wants("attribute-out-of-place"))
            continue;
        m_problems.error("attribute-out-of-place", whole(*found->attribute),
                         QStringLiteral("%1 counts for nothing on this <%2>.")
                             .arg(m_vocabulary.attributeName(condition.attribute), rule.name),
                         QStringLiteral("It may stand with %1.").arg(condition.told));
    }
}

void PageAttributes::collect(const html::Token &token, const PageTree::Opened &opened)
{
    const QStringView element = m_text.mid(token.name.start, token.name.length);
    for (const Taken &taken : std::as_const(m_taken)) {
        const html::Attribute &attribute = *taken.attribute;
        const QStringView name = m_text.mid(attribute.name.start, attribute.name.length);
        if (!attribute.valued || attribute.value.length == 0)
            continue;
        if (isNamed(name, "id")) {
            const bool hidden = isNamed(value(QLatin1String("type")).value_or(QStringView()), "hidden");
            const bool field = element.contains(u'-') || opened.tag == PageTag::Button ||
                               opened.tag == PageTag::Input || opened.tag == PageTag::Select ||
                               opened.tag == PageTag::Textarea || isNamed(element, "meter") ||
                               isNamed(element, "output") || isNamed(element, "progress");
            m_references.addId(attribute.value, element, field && !hidden);
        } else if (isNamed(name, "name") && opened.tag == PageTag::A) {
            m_references.add(PageName::Kind::Anchor, attribute.value);
        } else if (isNamed(name, "name") && isNamed(element, "map")) {
            m_references.add(PageName::Kind::Map, attribute.value);
        } else if (isNamed(name, "href") && (opened.tag == PageTag::A || isNamed(element, "area"))) {
            m_references.addLink(attribute.value, attribute.name);
        } else if (isNamed(name, "usemap") && m_text[attribute.value.start] == u'#') {
            m_references.add(PageName::Kind::ToMap, {attribute.value.start + 1, attribute.value.length - 1},
                             attribute.name);
        } else if (isNamed(name, "for") && isNamed(element, "label")) {
            m_references.add(PageName::Kind::ToField, attribute.value, attribute.name);
        } else if (isNamed(name, "list") && opened.tag == PageTag::Input) {
            m_references.add(PageName::Kind::ToDatalist, attribute.value, attribute.name);
        } else if (isNamed(name, "form")) {
            m_references.add(PageName::Kind::ToForm, attribute.value, attribute.name);
        } else if (pointsToElements(name, element)) {
            const auto kind = isNamed(name, "itemref") ? PageName::Kind::ItemReference : PageName::Kind::Reference;
            for (const QStringView word : wordsOfValue(valueOf(attribute)))
                m_references.add(kind, {word.data() - m_text.data(), word.size()}, attribute.name);
        }
    }
}
