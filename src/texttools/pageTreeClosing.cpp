// What ends elements: their end tags, others' tags, and the end of the page.
#include "texttools/pageTree.h"

namespace
{
bool isBarrier(PageTag tag)
{
    switch (tag) {
    case PageTag::Applet:
    case PageTag::Caption:
    case PageTag::Cell:
    case PageTag::Html:
    case PageTag::Table:
    case PageTag::Template:
        return true;
    default:
        return false;
    }
}

/// Takes one away of what is counted under a name; false where there is none.
bool takeOne(QHash<QString, int> &counts, const QString &name)
{
    const auto found = counts.find(name);
    if (found == counts.end())
        return false;
    if (--*found == 0)
        counts.erase(found);
    return true;
}
} // namespace

/// The innermost open element that is wanted, unless a barrier stands in front of it; -1 for none.
template <class Wanted, class Barrier>
qsizetype PageTree::lookUp(Wanted wanted, Barrier barrier) const
{
    for (auto at = qsizetype(m_state.open.size()) - 1; at >= 0; --at) {
        const OpenElement &one = m_state.open[size_t(at)];
        if (one.space == Space::Html && wanted(one))
            return at;
        if (one.space == Space::Html ? barrier(one) : one.holdsHtml)
            return -1;
    }
    return -1;
}

qsizetype PageTree::inScope(PageTag tag, bool buttons, bool lists) const
{
    return lookUp([tag](const OpenElement &one) { return one.tag == tag; },
                  [=](const OpenElement &one) {
                      return isBarrier(one.tag) || (buttons && one.tag == PageTag::Button) ||
                             (lists && one.tag == PageTag::List);
                  });
}

qsizetype PageTree::inTableScope(PageTag tag) const
{
    return lookUp([tag](const OpenElement &one) { return one.tag == tag; },
                  [](const OpenElement &one) {
                      return one.tag == PageTag::Html || one.tag == PageTag::Table || one.tag == PageTag::Template;
                  });
}

void PageTree::endTag(const html::Token &token)
{
    if (m_state.open.empty() || top().space == Space::Html) {
        const int element = m_vocabulary.element(m_text.mid(token.name.start, token.name.length));
        endHtmlTag(token, element, m_vocabulary.rule(element).tag);
    } else {
        endForeign(token);
    }
}

void PageTree::endForeign(const html::Token &token)
{
    const QString name = nameAt(token.name);
    for (auto at = qsizetype(m_state.open.size()) - 1; at >= 0; --at) {
        const OpenElement &one = m_state.open[size_t(at)];
        if (nameAt(one.name) == name && !one.implied) {
            closeTo(at, &token);
            return;
        }
        if (one.space == Space::Html)
            break;
    }
    tellStray(token);
}

void PageTree::endHtmlTag(const html::Token &token, int element, PageTag tag)
{
    if (tag == PageTag::Body || tag == PageTag::Html || tag == PageTag::Head) {
        endStructure(token, tag);
        return;
    }
    if (tag == PageTag::P && inScope(PageTag::P, true) < 0) {
        endParagraph(token);
        return;
    }
    const qsizetype at = m_vocabulary.rule(element).isVoid ? -1 : findOpen(token, element, tag);
    if (at < 0)
        tellStray(token);
    else if (tag == PageTag::Formatting || tag == PageTag::A)
        endFormatting(token, at);
    else
        closeTo(at, &token);
}

void PageTree::endStructure(const html::Token &token, PageTag tag)
{
    if (tag == PageTag::Head) {
        const qsizetype head = lookUp([](const OpenElement &one) { return one.tag == PageTag::Head; },
                                      [](const OpenElement &one) { return one.tag == PageTag::Body; });
        if (head < 0)
            tellStray(token);
        else
            closeTo(head, &token);
        return;
    }
    if (inside(PageTag::Frameset))
        return;
    if (!m_state.body)
        ensureBody(token);
    const qsizetype body = lookUp([](const OpenElement &one) { return one.tag == PageTag::Body; },
                                  [](const OpenElement &) { return false; });
    if (body >= 0)
        closeTo(body + 1, &token);
    m_state.afterBody = true;
}

/// A browser makes an empty paragraph of an end tag without a start.
void PageTree::endParagraph(const html::Token &token)
{
    if (m_state.ignored.value(QStringLiteral("p")) > 0 || !m_problems.wants("stray-end-tag"))
        return;
    PageProblem &problem =
        m_problems.error("stray-end-tag", token.range, QStringLiteral("</p> without a <p> that is open."));
    const auto by = m_state.ended.constFind(QStringLiteral("p"));
    if (by != m_state.ended.constEnd())
        problem.remedy = QStringLiteral("The <p> ended in front of %1, which may not stand in it.")
                             .arg(m_text.mid(by->start, qMin<qsizetype>(by->length, 30)).toString());
    problem.fix = {{token.range.start, token.range.length, QString()}};
}

/// Where the element that an end tag means is open; -1 where it is not.
qsizetype PageTree::findOpen(const html::Token &token, int element, PageTag tag) const
{
    const QStringView name = m_text.mid(token.name.start, token.name.length);
    const auto same = [&](const OpenElement &one) {
        if (element > 0)
            return one.element == element || (tag == PageTag::Heading && one.tag == tag);
        return one.element == 0 && m_text.mid(one.name.start, one.name.length).compare(name, Qt::CaseInsensitive) == 0;
    };
    if (tag == PageTag::Table || tag == PageTag::Rows || tag == PageTag::Row || tag == PageTag::Cell ||
        tag == PageTag::Caption || tag == PageTag::Colgroup)
        return lookUp(same, [](const OpenElement &one) {
            return one.tag == PageTag::Html || one.tag == PageTag::Table || one.tag == PageTag::Template;
        });
    if (tag == PageTag::Formatting || tag == PageTag::A || isSpecial(tag))
        return lookUp(same, [&](const OpenElement &one) {
            return isBarrier(one.tag) || (tag == PageTag::Li && one.tag == PageTag::List);
        });
    return lookUp(same, [](const OpenElement &one) { return isSpecial(one.tag); });
}

void PageTree::tellStray(const html::Token &token)
{
    const QString name = nameAt(token.name);
    if (takeOne(m_state.ignored, name) || takeOne(m_state.reopened, name))
        return;
    if (!m_problems.wants("stray-end-tag"))
        return;
    const bool isVoid = m_vocabulary.rule(m_vocabulary.element(name)).isVoid;
    PageProblem &problem = m_problems.error("stray-end-tag", token.range,
                                            isVoid ? QStringLiteral("<%1> has no end tag.").arg(name)
                                                   : QStringLiteral("</%1> without a <%1> that is open.").arg(name),
                                            QStringLiteral("Take it away."));
    if (isVoid)
        problem.fix = {{token.range.start, token.range.length, QString()}};
}

/// Formatting that is closed out of turn: browsers open again what was in it.
void PageTree::endFormatting(const html::Token &token, qsizetype at)
{
    bool block = false;
    for (size_t i = size_t(at) + 1; i < m_state.open.size(); ++i)
        block |= isSpecial(m_state.open[i].tag);
    if (block) { // what stands in it stays open
        const OpenElement ended = m_state.open[size_t(at)];
        tellUnclosed(ended, &token);
        m_state.open.erase(m_state.open.begin() + at);
        ++m_state.reopened[nameAt(ended.name)];
        return;
    }
    closeTo(at, &token);
}

/// Closes the element at that place and all that is open in it. What has an end tag of its own is told of.
void PageTree::closeTo(qsizetype at, const html::Token *by)
{
    const auto last = [&] { return qsizetype(m_state.open.size()) - 1; };
    while (last() > at) {
        if (by && !mayLackEndTag(top().tag))
            tellUnclosed(top(), by);
        pop(by);
    }
    if (last() == at && at >= 0) {
        const bool own = by && by->kind == html::TokenKind::EndTag &&
                         m_text.mid(by->name.start, by->name.length)
                                 .compare(m_text.mid(top().name.start, top().name.length), Qt::CaseInsensitive) == 0;
        if (by && !own && !top().implied && !mayLackEndTag(top().tag))
            tellUnclosed(top(), by);
        pop(by);
    }
}

void PageTree::tellUnclosed(const OpenElement &ended, const html::Token *by)
{
    if (ended.implied)
        return;
    if (ended.tag == PageTag::Formatting || ended.tag == PageTag::A || !isSpecial(ended.tag))
        ++m_state.reopened[nameAt(ended.name)];
    if (!m_problems.wants("unclosed"))
        return;
    const QString name = nameAt(ended.name);
    PageProblem &problem = m_problems.error("unclosed", ended.start, QStringLiteral("<%1> is not closed.").arg(name));
    if (by)
        problem.remedy = QStringLiteral("</%1> is missing in front of %2.")
                             .arg(name, m_text.mid(by->range.start, qMin<qsizetype>(by->range.length, 30)).toString());
    else
        problem.remedy = QStringLiteral("</%1> is missing.").arg(name);
    if (by && by->kind == html::TokenKind::EndTag)
        problem.fix = {{by->range.start, 0, QStringLiteral("</%1>").arg(name)}};
}

void PageTree::pop(const html::Token *by)
{
    const OpenElement ended = std::move(m_state.open.back());
    m_state.open.pop_back();
    tellMissing(ended, by);
}

/// What an element that ends must hold and does not.
void PageTree::tellMissing(const OpenElement &ended, const html::Token *)
{
    if (!ended.judged || ended.element == 0)
        return;
    const ElementRule &rule = m_vocabulary.rule(ended.element);
    for (const int must : rule.must)
        if (!ended.seen.contains(must) && (rule.tag != PageTag::Head || m_state.wholePage) &&
            m_problems.wants("missing-child"))
            m_problems.error("missing-child", ended.start,
                             QStringLiteral("%1 lacks <%2>.").arg(shown(ended), m_vocabulary.nameOf(must)));
    // What has nothing in it at all is only begun.
    if (ended.model->mayEnd(ended.state) || !m_problems.wants("missing-child") || rule.tag == PageTag::Html)
        return;
    m_problems.error("missing-child", ended.start,
                     QStringLiteral("%1 lacks %2.").arg(shown(ended), namesOf(ended.model->expected(ended.state))));
}

void PageTree::finish(qsizetype end)
{
    html::Token last;
    last.range = {end, 0};
    while (!m_state.open.empty()) {
        if (!top().implied && !mayLackEndTag(top().tag))
            tellUnclosed(top(), nullptr);
        pop(&last);
    }
}
