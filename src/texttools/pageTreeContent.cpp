// What elements hold: what may stand where, and what is told of what may not.
#include "texttools/pageTree.h"

namespace
{
/// Elements of svg and math in which HTML may stand again.
bool takesHtml(QStringView name)
{
    for (const char *one : {"foreignObject", "desc", "title", "mi", "mo", "mn", "ms", "mtext", "annotation-xml"})
        if (name.compare(QLatin1String(one), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}
} // namespace

void PageTree::push(const html::Token &token, int element, Space space, bool implied)
{
    const ElementRule &rule = m_vocabulary.rule(space == Space::Html || element > 0 ? element : 0);
    OpenElement opened;
    opened.element = element;
    opened.tag = rule.tag;
    opened.space = space;
    opened.implied = implied;
    opened.start = token.range;
    opened.name = token.name;
    opened.holdsHtml = space != Space::Html && takesHtml(m_text.mid(token.name.start, token.name.length));
    opened.judged = element > 0 && !rule.deprecated && space == Space::Html && rule.model.judged();
    opened.model = &rule.model;
    const OpenElement *parent = m_state.open.empty() ? nullptr : &m_state.open.back();
    if (parent) {
        if (rule.variants.contains(parent->element))
            opened.model = &*rule.variants.constFind(parent->element);
        opened.without = parent->without;
        opened.plus = parent->plus;
        opened.transparent = parent->transparent;
        opened.inItem = parent->inItem || parent->item;
        if (const NameSet *held = parent->model ? parent->model->acceptedBehind(parent->state) : nullptr;
            held && held->any())
            opened.transparent = held;
        opened.judged = opened.judged && (parent->judged || parent->tag == PageTag::Html);
    }
    opened.state = opened.model->start();
    if (m_vocabulary.today() || element > 0)
        opened.without |= rule.without;
    opened.plus |= rule.plus;
    if (space != Space::Html && opened.holdsHtml)
        opened.judged = false;
    m_state.open.push_back(opened);
}

/// Whether the child may stand next; the parent's state goes on.
bool PageTree::fits(OpenElement &parent, int child)
{
    const ContentModel::Match match = parent.model->match(parent.state, child);
    if (match.accepted) {
        parent.state = match.state;
        return true;
    }
    if (match.transparent && (!parent.transparent || parent.transparent->test(size_t(child)))) {
        parent.state = parent.model->matchTransparent(parent.state).state;
        return true;
    }
    return parent.plus.test(size_t(child));
}

void PageTree::accept(const html::Token &token, int child)
{
    if (m_state.open.empty() || !m_state.open.back().judged)
        return;
    OpenElement &parent = top();
    if (tellForbidden(token, parent, child))
        return;
    tellOnce(token, parent, child);
    const bool first = parent.state == parent.model->start();
    if (fits(parent, child))
        return;
    if (first && parent.tag == PageTag::Body && m_vocabulary.rule(child).tag == PageTag::Style) {
        m_problems.hint("style-in-body", token.range, QStringLiteral("A style sheet belongs into the head."),
                        QStringLiteral("Put it in front of </head>."));
        return;
    }
    tellMisplaced(token, parent, child);
}

void PageTree::tellMisplaced(const html::Token &token, const OpenElement &parent, int child)
{
    if (!m_problems.wants("misplaced"))
        return;
    const QString name = shown(token.name);
    if (parent.model->empty()) {
        m_problems.error("misplaced", token.range,
                         QStringLiteral("%1 may not stand in %2, which holds nothing.").arg(name, shown(parent)));
    } else if (parent.model->knows(child)) {
        m_problems.error("misplaced", token.range,
                         QStringLiteral("%1 may not stand at this place in %2.").arg(name, shown(parent)));
    } else {
        const QString expected = namesOf(parent.model->expected(parent.model->start()));
        m_problems.error("misplaced", token.range, QStringLiteral("%1 may not stand in %2.").arg(name, shown(parent)),
                         expected.isEmpty() ? QString()
                                            : QStringLiteral("%1 may hold %2.").arg(shown(parent), expected));
    }
}

bool PageTree::tellForbidden(const html::Token &token, const OpenElement &parent, int child)
{
    if (!parent.without.test(size_t(child)))
        return false;
    const NameSet interactive = m_vocabulary.group(QStringLiteral("interactive"));
    if (interactive.test(size_t(child)) && !m_interactive && m_vocabulary.rule(child).tag != PageTag::A)
        return false;
    for (auto outer = m_state.open.rbegin(); outer != m_state.open.rend(); ++outer) {
        const NameSet &without = m_vocabulary.rule(outer->element).without;
        const bool named = without.test(size_t(child));
        if (!named)
            continue;
        // A link without an address is none, and may stand in a button; it may not in a link.
        if (m_vocabulary.rule(child).tag == PageTag::A && !m_interactive && outer->tag != PageTag::A)
            return false;
        if (m_problems.wants("in-its-like"))
            m_problems.error("in-its-like", token.range,
                             QStringLiteral("%1 may not stand anywhere in %2.").arg(shown(token.name), shown(*outer)),
                             QStringLiteral("Close %1 first.").arg(shown(*outer)));
        return true;
    }
    return false;
}

void PageTree::tellOnce(const html::Token &token, OpenElement &parent, int child)
{
    const ElementRule &rule = m_vocabulary.rule(parent.element);
    if (rule.once.isEmpty() && rule.must.isEmpty())
        return;
    if (parent.seen.contains(child) && rule.once.contains(child) && m_problems.wants("once"))
        m_problems.error("once", token.range,
                         QStringLiteral("A second %1 in %2.").arg(shown(token.name), shown(parent)));
    parent.seen.append(child);
}

void PageTree::text(const html::Token &token)
{
    if (token.blank)
        return;
    const bool beforeBody =
        !m_state.body && (m_state.open.empty() || top().tag == PageTag::Html || top().tag == PageTag::Head);
    if (!inForeign() && (beforeBody || m_state.afterBody))
        ensureBody(token);
    if (m_state.open.empty())
        return;
    fill();
    OpenElement &parent = top();
    if (!parent.judged)
        return;
    if (fits(parent, Vocabulary::Text) || parent.textTold)
        return;
    parent.textTold = true;
    if (!m_problems.wants("misplaced-text"))
        return;
    qsizetype start = token.range.start;
    while (html::isBlank(m_text[start].unicode()))
        ++start;
    m_problems.error(
        "misplaced-text", {start, token.end() - start},
        QStringLiteral("Text may not stand in %1 by itself.").arg(shown(parent)),
        QStringLiteral("%1 may hold %2.").arg(shown(parent), namesOf(parent.model->expected(parent.state))));
}

/// "<dt>, <dd>", of many the first few.
QString PageTree::namesOf(const NameSet &set) const
{
    constexpr int Most = 4;
    QStringList names;
    for (int element = 1; element <= m_vocabulary.elementCount(); ++element)
        if (set.test(size_t(element)) && !m_vocabulary.rule(element).deprecated)
            names.append(u'<' + m_vocabulary.nameOf(element) + u'>');
    if (set.test(Vocabulary::Text))
        names.prepend(QStringLiteral("text"));
    if (names.isEmpty())
        return QStringLiteral("nothing");
    if (names.size() <= Most)
        return names.join(QStringLiteral(", "));
    return names.mid(0, Most).join(QStringLiteral(", ")) + QStringLiteral(" and others");
}
