#include "texttools/pageScan.h"

#include "common/html/textMode.h"
#include "texttools/checkDictionary.h"
#include "texttools/codeWords.h"

#include <algorithm>

namespace
{
/// Whether the text ends in a value whose quotation mark was never closed.
bool endsInValue(const html::Token &tag, const QString &text)
{
    if (tag.attributes.isEmpty())
        return false;
    const html::Attribute &last = tag.attributes.constLast();
    if (!last.valued || last.quote || last.value.start == 0)
        return false;
    const QChar before = text[last.value.start - 1];
    return before == u'"' || before == u'\'';
}

/// Whether a quotation mark in the tag has no partner: what follows can not be told from a value then.
bool hasUnpairedQuote(const html::Token &tag, const QString &text)
{
    const auto isOdd = [&text](const html::Attribute &attribute) {
        return QStringView(text).sliced(attribute.name.start, attribute.name.length).contains(u'"');
    };
    return endsInValue(tag, text) || std::any_of(tag.attributes.cbegin(), tag.attributes.cend(), isOdd);
}

/// An attribute's name, up to and with its "=".
html::Range wordOf(const html::Attribute &attribute, const QString &text)
{
    if (!attribute.valued)
        return attribute.name;
    const qsizetype equals = text.indexOf(u'=', attribute.name.start + attribute.name.length);
    return {attribute.name.start, equals + 1 - attribute.name.start};
}
} // namespace

void PageScan::begin(bool resume)
{
    if (resume)
        return;
    m_next = m_checked = 0;
    m_rawElement.clear();
}

CheckScan::Result PageScan::advance(const QString &text)
{
    while (true) {
        html::Tokenizer tokenizer(text, std::min(m_next, text.size()));
        if (!m_rawElement.isEmpty())
            tokenizer.setMode(m_rawMode, m_rawElement);
        const html::Token &token = tokenizer.next();
        if (token.kind == html::TokenKind::End)
            return Result::Finished;
        if (token.kind != html::TokenKind::StartTag && token.kind != html::TokenKind::EndTag) {
            m_rawElement.clear();
            m_next = token.end();
            continue;
        }
        if (hasUnpairedQuote(token, text))
            return Result::Failed;
        if (stopsIn(token, text))
            return Result::Stopped;
        leave(token, tokenizer.textOf(token.name).toString().toLower());
        return Result::Yield;
    }
}

bool PageScan::stopsIn(const html::Token &tag, const QString &text)
{
    const QString element = text.sliced(tag.name.start, tag.name.length).toLower();
    if (stopsAt(element, true, tag.name)) {
        if (tag.kind == html::TokenKind::EndTag) {
            --m_stop.selStart;
            ++m_stop.selLength;
        }
        return true;
    }
    for (const html::Attribute &attribute : tag.attributes) {
        const QString name = text.sliced(attribute.name.start, attribute.name.length).toLower();
        if (attribute.name.start >= m_checked)
            m_tagName = element;
        if (stopsAt(attribute.valued ? name + u'=' : name, false, wordOf(attribute, text)))
            return true;
    }
    return false;
}

bool PageScan::stopsAt(const QString &word, bool isElement, html::Range range)
{
    if (range.start < m_checked)
        return false;
    m_checked = range.start + range.length;
    const bool isInTree = isElement ? m_words.isElement(word) : m_words.isAttribute(m_tagName, word);
    if (isInTree || m_dictionary.accepts(m_tagName, word))
        return false;
    m_word = range;
    m_stop = {.word = word, .isElement = isElement, .selStart = range.start, .selLength = range.length};
    return true;
}

void PageScan::leave(const html::Token &tag, const QString &element)
{
    m_next = m_checked = tag.end();
    const bool opens = tag.kind == html::TokenKind::StartTag;
    m_rawMode = opens ? html::modeBehind(element) : html::TextMode::Markup;
    m_rawElement = m_rawMode == html::TextMode::Markup ? QString() : element;
}

void PageScan::clearWord()
{
    m_tagName.clear();
    m_stop = {};
}

bool PageScan::findsWord(const QString &text)
{
    QString there = text.mid(m_word.start, m_word.length).toLower();
    there.removeIf([](QChar c) { return html::isBlank(c.unicode()); });
    const bool found = there == m_stop.word;
    if (!found)
        m_checked = m_next;
    return found;
}

CheckScan::Place PageScan::Change(const QString &, const QString &, const QString &changeTo)
{
    m_checked = m_word.start + changeTo.size();
    return {m_word.start, m_word.length};
}
