#include "texttools/pageTree.h"

#include <algorithm>

namespace
{
/// Elements of HTML whose start ends svg and math.
bool breaksOut(QStringView name)
{
    static const NameTable names = NameTable::of(
        "b big blockquote body br center code dd div dl dt em embed h1 h2 h3 h4 h5 h6 head hr i img li listing menu "
        "meta nobr ol p pre ruby s small span strong strike sub sup table tt u ul var");
    return names.find(name) > 0;
}

} // namespace

PageTree::PageTree(QStringView text, const Vocabulary &vocabulary, PageProblems &problems)
    : m_text(text), m_vocabulary(vocabulary), m_problems(problems)
{
    m_state.open.reserve(64);
}

bool PageTree::inForeign() const
{
    return !m_state.open.empty() && m_state.open.back().space != Space::Html && !m_state.open.back().holdsHtml;
}

bool PageTree::inside(PageTag tag) const
{
    return std::any_of(m_state.open.begin(), m_state.open.end(),
                       [tag](const OpenElement &one) { return one.tag == tag; });
}

void PageTree::fill()
{
    for (auto one = m_state.open.rbegin(); one != m_state.open.rend() && !one->filled; ++one)
        one->filled = true;
}

void PageTree::setItem(const html::Token &token)
{
    if (!m_state.open.empty() && top().start == token.range)
        top().item = true;
}

// The element is open itself, unless it is one without content.
bool PageTree::inItem(const html::Token &token) const
{
    if (m_state.open.empty())
        return false;
    const OpenElement &innermost = m_state.open.back();
    return innermost.inItem || (innermost.item && innermost.start != token.range);
}

QString PageTree::shown(const OpenElement &element) const
{
    if (!element.implied)
        return shown(element.name);
    return u'<' + m_vocabulary.nameOf(element.element) + u'>';
}

// --- Opening ---------------------------------------------------------------------------------------------------------

PageTree::Opened PageTree::startTag(const html::Token &token)
{
    if (inForeign() && !leavesForeign(token))
        return startForeign(token);
    const QStringView name = m_text.mid(token.name.start, token.name.length);
    if (inForeign()) {
        if (m_problems.wants("html-in-foreign"))
            m_problems.error("html-in-foreign", token.range,
                             QStringLiteral("%1 of HTML ends the drawing or formula around it.").arg(shown(token.name)),
                             QStringLiteral("Close it first, or put the element into <foreignObject>."));
        while (inForeign())
            m_state.open.pop_back();
    }
    return startHtml(token, m_vocabulary.element(name));
}

bool PageTree::leavesForeign(const html::Token &token) const
{
    const QStringView name = m_text.mid(token.name.start, token.name.length);
    if (breaksOut(name))
        return true;
    return name.compare(u"font", Qt::CaseInsensitive) == 0 && !token.attributes.isEmpty();
}

PageTree::Opened PageTree::startForeign(const html::Token &token)
{
    if (!token.selfClosing)
        push(token, 0, top().space);
    return {.foreign = true};
}

PageTree::Opened PageTree::startHtml(const html::Token &token, int element)
{
    const ElementRule &rule = m_vocabulary.rule(element);
    const QStringView name = m_text.mid(token.name.start, token.name.length);
    Opened opened{element, rule.tag};
    opened.unknown = element == 0 && !name.contains(u'-') && name.compare(u"image", Qt::CaseInsensitive) != 0;
    opened.ignored = !makeRoom(token, element, rule.tag);
    if (opened.ignored)
        return opened;
    const bool structure = rule.tag == PageTag::Html || rule.tag == PageTag::Head || rule.tag == PageTag::Body;
    const int child = element > 0 ? element : name.contains(u'-') ? Vocabulary::Custom : 0;
    opened.judged = m_state.open.empty() || m_state.open.back().judged || structure;
    if (child > 0)
        accept(token, child);
    if (!rule.isVoid && !(m_state.xml && token.selfClosing))
        push(token, element,
             rule.tag == PageTag::Svg    ? Space::Svg
             : rule.tag == PageTag::Math ? Space::Math
                                         : Space::Html);
    if ((rule.tag == PageTag::Svg || rule.tag == PageTag::Math) && token.selfClosing)
        m_state.open.pop_back();
    return opened;
}

/// Closes what the tag closes, and opens what has to be there around it. False if the tag counts for nothing.
bool PageTree::makeRoom(const html::Token &token, int element, PageTag tag)
{
    if (tag == PageTag::Html || tag == PageTag::Head || tag == PageTag::Body || tag == PageTag::Frameset)
        return startStructure(token, tag);
    if (inside(PageTag::Template))
        return closeForStart(token, tag);
    const bool headMatter = tag == PageTag::HeadMatter || tag == PageTag::Title || tag == PageTag::Style ||
                            tag == PageTag::Script || tag == PageTag::Template || tag == PageTag::Noscript;
    if (headMatter && !m_state.body)
        ensureHead(token);
    else if (!inside(PageTag::Frameset))
        ensureBody(token);
    return startInTable(token, element, tag);
}

bool PageTree::startStructure(const html::Token &token, PageTag tag)
{
    switch (tag) {
    case PageTag::Html:
        return startHtmlTag(token);
    case PageTag::Head:
        return startHeadTag(token);
    case PageTag::Body:
        return startBodyTag(token);
    default:
        if (m_state.body && !inside(PageTag::Frameset)) {
            ignore(token);
            return false;
        }
        if (m_state.open.empty())
            imply("html", token);
        while (!m_state.open.empty() && top().tag == PageTag::Head)
            pop(&token);
        m_state.body = true;
        return true;
    }
}

bool PageTree::startHtmlTag(const html::Token &token)
{
    m_state.wholePage = true;
    if (m_state.open.empty())
        return true;
    ignore(token);
    return false;
}

bool PageTree::startHeadTag(const html::Token &token)
{
    m_state.wholePage = true;
    if (m_state.head || m_state.body) {
        ignore(token);
        return false;
    }
    if (m_state.open.empty())
        imply("html", token);
    m_state.head = true;
    return true;
}

bool PageTree::startBodyTag(const html::Token &token)
{
    m_state.wholePage = true;
    if (m_state.body) {
        ignore(token);
        return false;
    }
    if (m_state.open.empty())
        imply("html", token);
    if (!m_state.head)
        imply("head", token);
    while (top().tag != PageTag::Html)
        pop(&token);
    m_state.head = m_state.body = true;
    return true;
}

void PageTree::ensureHead(const html::Token &token)
{
    if (m_state.open.empty())
        imply("html", token);
    if (!m_state.head)
        imply("head", token);
    m_state.head = true;
}

void PageTree::ensureBody(const html::Token &token)
{
    if (m_state.body) {
        if (m_state.afterBody && m_problems.wants("behind-body"))
            m_problems.error("behind-body", token.range, QStringLiteral("This stands behind the end of the body."),
                             QStringLiteral("Put it in front of </body>."));
        m_state.afterBody = false;
        return;
    }
    if (m_state.open.empty())
        imply("html", token);
    if (!m_state.head)
        imply("head", token);
    while (top().tag != PageTag::Html)
        pop(&token);
    m_state.head = true;
    imply("body", token);
    m_state.body = true;
}

void PageTree::imply(const char *name, const html::Token &token)
{
    const int element = m_vocabulary.element(QString::fromLatin1(name));
    if (!m_state.open.empty())
        accept(token, element);
    push(token, element, Space::Html, true);
}

void PageTree::ignore(const html::Token &token)
{
    ++m_state.ignored[nameAt(token.name)];
    if (m_problems.wants("stray-start-tag"))
        m_problems.error("stray-start-tag", token.range,
                         QStringLiteral("%1 may not stand here, and browsers pass it over.").arg(shown(token.name)));
}

/// What a start tag closes by itself. False if the tag counts for nothing.
bool PageTree::closeForStart(const html::Token &token, PageTag tag)
{
    if (tag == PageTag::Li || tag == PageTag::Description)
        closeListItem(token, tag);
    if (endsParagraph(tag) && inScope(PageTag::P, true) >= 0)
        closeParagraph(token);
    else if (tag == PageTag::P)
        m_state.ended.clear(); // an end tag behind this one is not that of a paragraph before
    switch (tag) {
    case PageTag::A:
    case PageTag::Button:
    case PageTag::Form:
    case PageTag::Heading:
        return closeLike(token, tag);
    case PageTag::Option:
    case PageTag::Optgroup:
    case PageTag::Hr:
        if (top().tag == PageTag::Option)
            pop(&token);
        if (tag != PageTag::Option && top().tag == PageTag::Optgroup)
            pop(&token);
        return true;
    case PageTag::RubyPart:
        while (top().tag == PageTag::RubyPart)
            pop(&token);
        return true;
    case PageTag::Select:
    case PageTag::Input:
        if (const qsizetype at = inScope(PageTag::Select); at >= 0) {
            m_problems.error("in-its-like", token.range,
                             QStringLiteral("%1 ends the <select> around it.").arg(shown(token.name)),
                             QStringLiteral("Close the <select> first."));
            closeTo(at, nullptr);
        }
        return true;
    default:
        return true;
    }
}

/// An element of that kind may not stand in its like, which browsers close.
bool PageTree::closeLike(const html::Token &token, PageTag tag)
{
    if (tag == PageTag::Form) {
        if (!inside(PageTag::Form) || inside(PageTag::Template))
            return true;
        m_problems.error("in-its-like", token.range, QStringLiteral("A form may not stand in a form."),
                         QStringLiteral("Close the first <form> in front of this one."));
        ++m_state.ignored[nameAt(token.name)];
        return false;
    }
    const qsizetype at =
        tag == PageTag::Heading ? (top().tag == tag ? qsizetype(m_state.open.size()) - 1 : -1) : inScope(tag);
    if (at < 0)
        return true;
    m_problems.error("in-its-like", token.range,
                     QStringLiteral("%1 may not stand in %2.").arg(shown(token.name), shown(m_state.open[size_t(at)])),
                     QStringLiteral("Close %1 first.").arg(shown(m_state.open[size_t(at)])));
    ++m_state.ignored[nameAt(m_state.open[size_t(at)].name)];
    m_state.open.erase(m_state.open.begin() + at);
    return true;
}

void PageTree::closeListItem(const html::Token &token, PageTag tag)
{
    for (auto at = qsizetype(m_state.open.size()) - 1; at >= 0; --at) {
        const OpenElement &one = m_state.open[size_t(at)];
        if (one.tag == tag) {
            closeTo(at, &token);
            return;
        }
        const bool passed = one.tag == PageTag::P || (one.tag == PageTag::Closing &&
                                                      (nameAt(one.name) == u"div" || nameAt(one.name) == u"address"));
        if (isSpecial(one.tag) && !passed)
            return;
    }
}

void PageTree::closeParagraph(const html::Token &token)
{
    m_state.ended.insert(QStringLiteral("p"), token.range);
    closeTo(inScope(PageTag::P, true), &token);
}
