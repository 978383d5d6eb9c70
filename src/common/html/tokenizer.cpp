#include "common/html/tokenizer.h"

#include <algorithm>

namespace html
{
namespace
{
constexpr QLatin1String CommentStart("<!--");
constexpr QLatin1String CDataStart("<![CDATA[");
constexpr QLatin1String DoctypeStart("<!DOCTYPE");

bool endsName(char16_t c)
{
    return isBlank(c) || c == u'/' || c == u'>';
}
} // namespace

const Token &Tokenizer::next()
{
    if (m_mode != TextMode::Markup && readRawText())
        return m_token;
    if (ended(m_at)) {
        begin(TokenKind::End);
        finish(m_at);
    } else if (at(m_at) == u'<') {
        readMarkup();
    } else {
        readText();
    }
    return m_token;
}

void Tokenizer::begin(TokenKind kind)
{
    m_token.kind = kind;
    m_token.range = {m_at, 0};
    m_token.name = {};
    m_token.publicId = m_token.systemId = {-1, 0};
    m_token.selfClosing = m_token.blank = m_token.references = false;
    m_token.closed = true;
    m_token.attributes.resize(0);
    m_token.faults.resize(0);
}

void Tokenizer::finish(qsizetype end)
{
    m_token.range.length = end - m_token.range.start;
    m_at = end;
}

qsizetype Tokenizer::skipBlanks(qsizetype position) const
{
    while (isBlank(at(position)))
        ++position;
    return position;
}

void Tokenizer::describeText(QStringView text)
{
    m_token.blank = std::all_of(text.begin(), text.end(), [](QChar c) { return isBlank(c.unicode()); });
    m_token.references = !m_token.blank && text.contains(u'&');
    for (qsizetype null = text.indexOf(QChar(u'\0')); null >= 0; null = text.indexOf(QChar(u'\0'), null + 1))
        fault(Fault::NullCharacter, m_at + null, 1);
}

void Tokenizer::readText()
{
    begin(TokenKind::Text);
    const qsizetype found = m_text.indexOf(u'<', m_at);
    const qsizetype end = found < 0 ? m_text.size() : found;
    describeText(m_text.mid(m_at, end - m_at));
    finish(end);
}

/// False, and nothing read, where the end tag stands at once.
bool Tokenizer::readRawText()
{
    const TextMode mode = m_mode;
    m_mode = TextMode::Markup;
    const qsizetype end = mode == TextMode::Plain    ? m_text.size()
                          : mode == TextMode::Script ? scriptEnd(m_at)
                                                     : rawEnd(m_at);
    if (end == m_at && !ended(m_at))
        return false;
    begin(TokenKind::RawText);
    describeText(m_text.mid(m_at, end - m_at));
    m_token.references = m_token.references && mode == TextMode::Rcdata;
    m_token.closed = !ended(end) || mode == TextMode::Plain;
    finish(end);
    return true;
}

/// Whether the end tag that is waited for begins there.
bool Tokenizer::endsRaw(qsizetype position) const
{
    return at(position + 1) == u'/' &&
           m_text.mid(position + 2, m_rawName.size()).compare(m_rawName, Qt::CaseInsensitive) == 0 &&
           endsName(at(position + 2 + m_rawName.size()));
}

qsizetype Tokenizer::rawEnd(qsizetype from) const
{
    for (qsizetype mark = m_text.indexOf(u'<', from); mark >= 0; mark = m_text.indexOf(u'<', mark + 1))
        if (endsRaw(mark))
            return mark;
    return m_text.size();
}

/// In "<!--" a script may hold a script of its own, whose end tag does not count.
qsizetype Tokenizer::scriptEnd(qsizetype from) const
{
    bool escaped = false;
    bool inner = false;
    for (qsizetype i = from; i < m_text.size(); ++i) {
        const char16_t c = at(i);
        if (c == u'-' && escaped && startsWith(i, QLatin1String("-->"), Qt::CaseSensitive)) {
            escaped = inner = false;
        } else if (c != u'<') {
            continue;
        } else if (!escaped && startsWith(i, CommentStart, Qt::CaseSensitive)) {
            escaped = true;
            i += 1; // the dashes may be those of "-->", too
        } else if (endsRaw(i)) {
            if (!inner)
                return i;
            inner = false;
        } else if (escaped && startsWith(i + 1, QLatin1String("script"), Qt::CaseInsensitive) && endsName(at(i + 7))) {
            inner = true;
        }
    }
    // Without an end even the first end tag inside would have been one: browsers read on, and so the page ends here.
    return m_text.size();
}

void Tokenizer::readMarkup()
{
    const char16_t c = at(m_at + 1);
    if (isLetter(c))
        readTag(TokenKind::StartTag, m_at + 1);
    else if (c == u'/')
        readEndMark();
    else if (c == u'!')
        readDeclaration();
    else if (c == u'?')
        readBogusComment(Fault::ProcessingInstruction);
    else {
        begin(TokenKind::Text);
        fault(Fault::LessThanInText, m_at, 1);
        finish(m_at + 1);
    }
}

void Tokenizer::readEndMark()
{
    const char16_t c = at(m_at + 2);
    if (isLetter(c)) {
        readTag(TokenKind::EndTag, m_at + 2);
    } else if (c == u'>') { // no token to a browser; here it is one, so that all of the text is handed out
        begin(TokenKind::Comment);
        fault(Fault::TagNameMissing, m_at, 3);
        finish(m_at + 3);
    } else if (ended(m_at + 2)) {
        begin(TokenKind::Text);
        fault(Fault::LessThanInText, m_at, 1);
        finish(m_text.size());
    } else {
        readBogusComment(Fault::CommentBogus);
    }
}

void Tokenizer::readDeclaration()
{
    if (startsWith(m_at, CommentStart, Qt::CaseSensitive))
        readComment();
    else if (startsWith(m_at, DoctypeStart, Qt::CaseInsensitive))
        readDoctype();
    else if (startsWith(m_at, CDataStart, Qt::CaseSensitive) && m_foreign)
        readCData();
    else
        readBogusComment(startsWith(m_at, CDataStart, Qt::CaseSensitive) ? Fault::CDataInHtml : Fault::CommentBogus);
}

void Tokenizer::readTag(TokenKind kind, qsizetype nameStart)
{
    begin(kind);
    qsizetype end = nameStart;
    while (!ended(end) && !endsName(at(end)))
        ++end;
    m_token.name = {nameStart, end - nameStart};
    end = readAttributes(end);
    if (kind == TokenKind::EndTag && !m_token.attributes.isEmpty())
        fault(Fault::EndTagWithAttributes, m_token.attributes.constFirst().name.start,
              m_token.attributes.constLast().end() - m_token.attributes.constFirst().name.start);
    if (kind == TokenKind::EndTag && m_token.selfClosing)
        fault(Fault::EndTagWithSlash, end - 2, 1);
    m_token.closed = !ended(end - 1) && at(end - 1) == u'>';
    if (!m_token.closed)
        fault(Fault::TagNotClosed, m_at, end - m_at);
    finish(end);
}

/// To behind the ">" or to the end of the text.
qsizetype Tokenizer::readAttributes(qsizetype position)
{
    while (true) {
        position = skipBlanks(position);
        if (ended(position))
            return m_text.size();
        const char16_t c = at(position);
        if (c == u'>')
            return position + 1;
        if (c != u'/') {
            position = readAttribute(position);
        } else if (at(position + 1) == u'>') {
            m_token.selfClosing = true;
            return position + 2;
        } else {
            fault(Fault::SlashInTag, position, 1);
            ++position;
        }
    }
}

qsizetype Tokenizer::readAttribute(qsizetype position)
{
    Attribute attribute;
    attribute.name.start = position;
    if (at(position) == u'=') // is part of the name there
        fault(Fault::AttributeNameCharacter, position++, 1);
    for (; !ended(position) && !endsName(at(position)) && at(position) != u'='; ++position)
        if (const char16_t c = at(position); c == u'"' || c == u'\'' || c == u'<')
            fault(Fault::AttributeNameCharacter, position, 1);
    attribute.name.length = position - attribute.name.start;
    const qsizetype behind = skipBlanks(position);
    if (at(behind) == u'=')
        position = readValue(attribute, skipBlanks(behind + 1));
    markTwice(attribute);
    m_token.attributes.append(attribute);
    return position;
}

void Tokenizer::markTwice(Attribute &attribute)
{
    const QStringView name = textOf(attribute.name);
    attribute.twice = std::any_of(m_token.attributes.cbegin(), m_token.attributes.cend(), [&](const Attribute &other) {
        return other.name.length == attribute.name.length && textOf(other.name).compare(name, Qt::CaseInsensitive) == 0;
    });
    if (attribute.twice)
        fault(Fault::AttributeTwice, attribute.name.start, attribute.end() - attribute.name.start);
}

qsizetype Tokenizer::readValue(Attribute &attribute, qsizetype position)
{
    attribute.valued = true;
    attribute.value = {position, 0};
    const char16_t c = at(position);
    if (c == u'"' || c == u'\'')
        return readQuoted(attribute, position);
    if (c == u'>') {
        fault(Fault::AttributeValueMissing, attribute.name.start, position - attribute.name.start);
        return position;
    }
    return readUnquoted(attribute, position);
}

qsizetype Tokenizer::readQuoted(Attribute &attribute, qsizetype position)
{
    attribute.quote = at(position);
    const qsizetype found = m_text.indexOf(QChar(attribute.quote), position + 1);
    const qsizetype end = found < 0 ? m_text.size() : found;
    attribute.value = {position + 1, end - position - 1};
    if (found < 0) {
        attribute.quote = 0;
        return m_text.size();
    }
    const char16_t next = at(end + 1);
    if (!ended(end + 1) && !endsName(next))
        fault(Fault::AttributesUnparted, end + 1, 1);
    return end + 1;
}

qsizetype Tokenizer::readUnquoted(Attribute &attribute, qsizetype position)
{
    for (; !ended(position) && !isBlank(at(position)) && at(position) != u'>'; ++position)
        if (const char16_t c = at(position); c == u'"' || c == u'\'' || c == u'<' || c == u'=' || c == u'`')
            fault(Fault::AttributeValueCharacter, position, 1);
    attribute.value.length = position - attribute.value.start;
    return position;
}

void Tokenizer::readComment()
{
    begin(TokenKind::Comment);
    const qsizetype inner = m_at + CommentStart.size();
    const qsizetype abrupt = at(inner) == u'>' ? 1 : startsWith(inner, QLatin1String("->"), Qt::CaseSensitive) ? 2 : 0;
    if (abrupt > 0) {
        fault(Fault::CommentAbrupt, m_at, CommentStart.size() + abrupt);
        return finish(inner + abrupt);
    }
    for (qsizetype dashes = m_text.indexOf(QLatin1String("--"), inner); dashes >= 0;
         dashes = m_text.indexOf(QLatin1String("--"), dashes + 1)) {
        if (at(dashes + 2) == u'>')
            return finish(dashes + 3);
        if (startsWith(dashes + 2, QLatin1String("!>"), Qt::CaseSensitive)) {
            fault(Fault::CommentEndsWithBang, dashes, 4);
            return finish(dashes + 4);
        }
        // "<!-->" inside is the end of the comment and nothing else.
        if (dashes >= inner + 2 && startsWith(dashes - 2, CommentStart, Qt::CaseSensitive) && at(dashes + 2) != u'>')
            fault(Fault::CommentNested, dashes - 2, CommentStart.size());
    }
    m_token.closed = false;
    fault(Fault::CommentNotClosed, m_at, CommentStart.size());
    finish(m_text.size());
}

void Tokenizer::readBogusComment(Fault why)
{
    begin(TokenKind::Comment);
    const qsizetype found = m_text.indexOf(u'>', m_at);
    const qsizetype end = found < 0 ? m_text.size() : found + 1;
    m_token.closed = found >= 0;
    fault(why, m_at, end - m_at);
    finish(end);
}

void Tokenizer::readCData()
{
    begin(TokenKind::CData);
    const qsizetype found = m_text.indexOf(QLatin1String("]]>"), m_at);
    m_token.closed = found >= 0;
    if (found < 0)
        fault(Fault::CDataNotClosed, m_at, CDataStart.size());
    finish(found < 0 ? m_text.size() : found + 3);
}

/// A quoted text at a position, which moves behind it; start -1 where there is none.
Range Tokenizer::quotedIn(qsizetype &position, qsizetype end)
{
    position = skipBlanks(position);
    const char16_t quote = at(position);
    if (position >= end || (quote != u'"' && quote != u'\''))
        return {-1, 0};
    const qsizetype found = m_text.indexOf(QChar(quote), position + 1);
    if (found < 0 || found >= end)
        return {-1, 0};
    const Range range{position + 1, found - position - 1};
    position = found + 1;
    return range;
}

/// To behind the identifiers of a document type.
qsizetype Tokenizer::readIdentifiers(qsizetype position, qsizetype end)
{
    const bool isPublic = startsWith(position, QLatin1String("PUBLIC"), Qt::CaseInsensitive);
    if (!isPublic && !startsWith(position, QLatin1String("SYSTEM"), Qt::CaseInsensitive))
        return position;
    position += 6;
    if (isPublic)
        m_token.publicId = quotedIn(position, end);
    m_token.systemId = quotedIn(position, end);
    return skipBlanks(position);
}

void Tokenizer::readDoctype()
{
    begin(TokenKind::Doctype);
    const qsizetype found = m_text.indexOf(u'>', m_at);
    const qsizetype end = found < 0 ? m_text.size() : found;
    const qsizetype behind = m_at + DoctypeStart.size();
    qsizetype position = skipBlanks(behind);
    m_token.name.start = position;
    while (position < end && !isBlank(at(position)))
        ++position;
    m_token.name.length = position - m_token.name.start;
    position = readIdentifiers(skipBlanks(position), end);
    m_token.closed = found >= 0;
    if (position < end || m_token.name.start == behind || m_token.name.length == 0 || !m_token.closed)
        fault(Fault::DoctypeMalformed, m_at, end - m_at);
    finish(found < 0 ? end : end + 1);
}
} // namespace html
