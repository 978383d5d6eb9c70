#include "document/pageColours.h"

#include "document/linkPass.h"

#include <algorithm>

namespace
{
constexpr qsizetype Ahead = 16 * 1024;  ///< what is looked at behind the place to be reached
constexpr qsizetype Nearby = 64 * 1024; ///< how far back a start is looked for
constexpr Paint ReferencePaint{ColourRole::Attribute, {}, {}};

html::TextMode modeBehind(QStringView element)
{
    if (element == u"script")
        return html::TextMode::Script;
    if (element == u"style")
        return html::TextMode::Raw;
    return element == u"textarea" || element == u"title" ? html::TextMode::Rcdata : html::TextMode::Markup;
}

/// Where the element is opened that nothing closes up to the text's end; -1 if there is none.
qsizetype openedLast(QStringView text, QStringView element)
{
    for (qsizetype place = text.size(); place > 0;) {
        place = text.first(place).lastIndexOf(u'<');
        if (place < 0)
            break;
        const bool closes = place + 1 < text.size() && text[place + 1] == u'/';
        const QStringView name = text.sliced(place + (closes ? 2 : 1));
        // Most tags begin otherwise, which is seen sooner than it is compared.
        if (name.isEmpty() || name.front().toLower() != element.front() ||
            !name.startsWith(element, Qt::CaseInsensitive))
            continue;
        return closes ? -1 : place;
    }
    return -1;
}

/// Behind a character reference that starts there; the place itself where none does.
qsizetype behindReference(QStringView text, qsizetype from)
{
    constexpr qsizetype longestName = 33;
    qsizetype place = from + 1;
    if (place < text.size() && text[place] == u'#')
        ++place;
    const qsizetype name = place;
    while (place < text.size() && place - name < longestName && text[place].isLetterOrNumber())
        ++place;
    return place > name && place < text.size() && text[place] == u';' ? place + 1 : from;
}
} // namespace

PageColours::PageColours(const QString &text, const ColouringOptions &options, const Habits &habits)
    : m_text(text), m_options(options), m_readsScripts(habits.HabitScripts)
{
}

void PageColours::startNear(qsizetype position)
{
    m_mode = html::TextMode::Markup;
    m_rawElement.clear();
    const qsizetype from = std::max<qsizetype>(0, position - Nearby);
    const QStringView nearby = QStringView(m_text).sliced(from, position - from);
    qsizetype start = from == 0 ? 0 : std::max<qsizetype>(0, nearby.lastIndexOf(u"\n<"));
    const qsizetype comment = nearby.lastIndexOf(u"<!--");
    if (comment >= 0 && comment > nearby.lastIndexOf(u"-->"))
        start = std::min(start, comment);
    for (const QStringView element : {QStringView(u"script"), QStringView(u"style")})
        if (const qsizetype opening = openedLast(nearby, element); opening >= 0)
            start = std::min(start, opening);
    m_at = from + start;
}

QList<FormatRange> PageColours::advance(qsizetype until, qsizetype shownFrom)
{
    const qsizetype from = m_at;
    m_paints.clear();
    while (m_at < std::min(until, m_text.size()))
        step(until);
    paintServerCode(from, m_at);
    return formats(std::clamp(shownFrom, from, m_at));
}

void PageColours::step(qsizetype until)
{
    qsizetype limit = std::min(m_text.size(), std::max(until, m_at) + Ahead);
    while (true) {
        html::Tokenizer tokenizer(QStringView(m_text).first(limit), m_at);
        if (!m_rawElement.isEmpty())
            tokenizer.setMode(m_mode, m_rawElement);
        const html::Token &token = tokenizer.next();
        const bool isText = token.kind == html::TokenKind::Text || token.kind == html::TokenKind::RawText;
        const bool isCut = limit < m_text.size() && (token.end() >= limit || token.kind == html::TokenKind::End);
        if (isCut && !isText) { // a tag or a comment: it is read whole
            limit = std::min(m_text.size(), m_at + (limit - m_at) * 2);
            continue;
        }
        if (token.kind == html::TokenKind::RawText)
            return readCode(token, until, !isCut);
        m_rawElement.clear();
        switch (token.kind) {
        case html::TokenKind::StartTag:
        case html::TokenKind::EndTag:
            return readTag(token);
        case html::TokenKind::Comment:
            return readComment(token);
        case html::TokenKind::Doctype:
            paintDeclaration(token.range);
            m_at = token.end();
            return;
        case html::TokenKind::End:
            m_at = m_text.size();
            return;
        default:
            return readText(token, until);
        }
    }
}

/// A long text is read in parts, each of which ends behind a line.
void PageColours::readText(const html::Token &token, qsizetype until)
{
    qsizetype end = token.end();
    if (end > until) {
        const qsizetype line = m_text.indexOf(u'\n', until);
        end = std::min(end, line < 0 ? end : line + 1);
    }
    paint(m_at, end, DefaultPaint);
    if (m_readsScripts)
        paintReferences(m_at, end);
    m_at = end;
}

void PageColours::readCode(const html::Token &token, qsizetype until, bool isWhole)
{
    const qsizetype end = token.end();
    const bool isCode = m_rawElement == u"script" || m_rawElement == u"style";
    if (isCode) {
        const qsizetype from = m_at;
        std::vector<PaintRange> parts;
        m_at = m_code.advance(m_text, from, until, end, parts);
        paint(from, m_at, DefaultPaint);
        m_paints.insert(m_paints.end(), parts.begin(), parts.end());
    } else {
        paint(m_at, end, DefaultPaint);
        paintReferences(m_at, end);
        m_at = end;
    }
    if (isWhole && m_at >= end)
        m_rawElement.clear();
}

void PageColours::readTag(const html::Token &token)
{
    paint(token.range.start, token.end(), DefaultPaint);
    paint(token.range.start, token.end(), TagPaint);
    if (!token.attributes.isEmpty())
        paint(token.attributes.constFirst().name.start, token.end() - 1, AttributePaint);
    for (const html::Attribute &attribute : token.attributes) {
        if (!attribute.valued)
            continue;
        paint(attribute.value.start - (attribute.quote ? 1 : 0), attribute.end(), ValuePaint);
        if (m_readsScripts)
            paintReferences(attribute.value.start, attribute.value.start + attribute.value.length);
    }
    m_at = token.end();
    if (token.kind != html::TokenKind::StartTag || !m_readsScripts)
        return;
    const QString element = m_text.sliced(token.name.start, token.name.length).toLower();
    m_mode = modeBehind(element);
    m_rawElement = m_mode == html::TextMode::Markup ? QString() : element;
    m_code = CodeColours(element == u"style" ? CodeColours::Language::Style : CodeColours::Language::Script);
}

/// What only looks like a comment to browsers, "<?xml ... ?>" above all, is a declaration to authors.
void PageColours::readComment(const html::Token &token)
{
    if (QStringView(m_text).sliced(token.range.start).startsWith(u"<!--")) {
        paint(token.range.start, token.end(), DefaultPaint);
        paint(token.range.start, token.end(), CommentPaint);
    } else {
        paintDeclaration(token.range);
    }
    m_at = token.end();
}

void PageColours::paintDeclaration(html::Range range)
{
    const qsizetype end = range.start + range.length;
    paint(range.start, end, DefaultPaint);
    paint(range.start, end, TagPaint);
    const qsizetype blank = QStringView(m_text).sliced(range.start, range.length).indexOf(u' ');
    if (blank > 0)
        paint(range.start + blank + 1, end - 1, AttributePaint);
}

void PageColours::paint(qsizetype from, qsizetype to, const Paint &look)
{
    if (to > from)
        m_paints.push_back({from, to - from, look});
}

void PageColours::paintReferences(qsizetype from, qsizetype to)
{
    const QStringView part = QStringView(m_text).first(to);
    for (qsizetype place = part.indexOf(u'&', from); place >= 0; place = part.indexOf(u'&', place + 1))
        paint(place, behindReference(part, place), ReferencePaint);
}

/// Server code may stand anywhere, and goes over all else.
void PageColours::paintServerCode(qsizetype from, qsizetype to)
{
    paint(from, std::min(m_serverEnd, to), AspCodePaint);
    qsizetype begin = std::max(from, m_serverEnd);
    const QStringView part = QStringView(m_text).first(std::min(to + 1, m_text.size()));
    while (begin < to && m_seeksServerCode) {
        begin = part.indexOf(u"<%", begin);
        if (begin < 0)
            return;
        const qsizetype end = m_text.indexOf(QLatin1String("%>"), begin);
        m_seeksServerCode = end >= 0;
        if (end < 0)
            return;
        paint(begin, std::min(end + 2, to), AspCodePaint);
        m_serverEnd = begin = end + 2;
    }
}

QList<FormatRange> PageColours::formats(qsizetype from) const
{
    const QStringView part = QStringView(m_text).sliced(from, m_at - from);
    PaintList paints(part.size());
    for (const PaintRange &range : m_paints) {
        const bool isPlain = !m_options.ColourCodeSyntax && range.paint != AspCodePaint;
        const qsizetype start = std::max(range.start, from);
        paints.add(start - from, range.start + range.length - start, isPlain ? DefaultPaint : range.paint);
    }
    LinkPass links(part, paints);
    while (m_options.ColourCodeHyperlink && links.advance(false)) {
    }
    QList<FormatRange> formats = paints.formats(m_options);
    for (FormatRange &range : formats)
        range.start += from;
    return formats;
}

QList<FormatRange> formatsNearby(const QString &text, qsizetype from, qsizetype to, const ColouringOptions &options,
                                 const Habits &habits)
{
    const qsizetype start = std::max<qsizetype>(0, from - Nearby);
    PageColours page(text.mid(start, to - start + Ahead), options, habits);
    page.startNear(from - start);
    QList<FormatRange> formats = page.advance(to - start, from - start);
    for (FormatRange &range : formats)
        range.start += start;
    while (!formats.isEmpty() && formats.constLast().start >= to)
        formats.removeLast();
    if (!formats.isEmpty())
        formats.last().length = std::min(formats.last().length, to - formats.last().start);
    return formats;
}

std::optional<QList<FormatRange>> pageFormats(const QString &text, const ColouringOptions &options,
                                              const Habits &habits)
{
    if (!habits.HabitScripts)
        return std::nullopt;
    return PageColours(text, options, habits).advance(text.size());
}
