#include "document/codeColours.h"

#include "common/html/tokenizer.h"

#include <QSet>
#include <QStringList>
#include <algorithm>

namespace
{
using Paints = std::vector<PaintRange>;

// What is written in the colours of markup: there are no settings of their own for it.
constexpr Paint WordPaint = TagPaint;
constexpr Paint TextPaint{ColourRole::Value, false, {}};
constexpr Paint NumberPaint = AttributePaint;

bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c == u'_' || c == u'$';
}

char16_t at(QStringView text, qsizetype place)
{
    return place < text.size() ? text[place].unicode() : u'\0';
}

bool startsAt(QStringView text, qsizetype place, QStringView word)
{
    return text.sliced(place).startsWith(word);
}

qsizetype paint(Paints &paints, qsizetype from, qsizetype to, const Paint &look)
{
    paints.push_back({from, to - from, look});
    return to;
}

qsizetype behind(QStringView text, QStringView word, qsizetype from)
{
    const qsizetype found = text.indexOf(word, from);
    return found < 0 ? text.size() : found + word.size();
}

qsizetype endOfLine(QStringView text, qsizetype from)
{
    while (from < text.size() && text[from] != u'\r' && text[from] != u'\n')
        ++from;
    return from;
}

/// Behind the closing quote; a text of one line ends with it anyway.
qsizetype behindQuoted(QStringView text, qsizetype from, char16_t quote)
{
    for (qsizetype place = from + 1; place < text.size(); ++place) {
        const char16_t c = text[place].unicode();
        if (c == u'\\')
            ++place;
        else if (c == quote)
            return place + 1;
        else if (quote != u'`' && (c == u'\r' || c == u'\n'))
            return place;
    }
    return text.size();
}

/// Behind a regular expression and its flags, or at `from` where its line has no end of one.
qsizetype behindRegularExpression(QStringView text, qsizetype from)
{
    bool inClass = false;
    for (qsizetype place = from + 1; place < text.size(); ++place) {
        const char16_t c = text[place].unicode();
        if (c == u'\r' || c == u'\n')
            return from;
        if (c == u'\\')
            ++place;
        else if (c == u'[' || c == u']')
            inClass = c == u'[';
        else if (c == u'/' && !inClass) {
            for (++place; place < text.size() && isWordPart(text[place]);)
                ++place;
            return place;
        }
    }
    return from;
}

qsizetype behindWord(QStringView text, qsizetype from)
{
    while (from < text.size() && isWordPart(text[from]))
        ++from;
    return from;
}

bool isScriptWord(QStringView word)
{
    static const QSet<QString> words = [] {
        const QStringList list =
            QStringLiteral(
                "as async await break case catch class const continue debugger default delete do else export "
                "extends false finally for from function get if import in instanceof let new null of return "
                "set static super switch this throw true try typeof undefined var void while with yield")
                .split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return word.size() <= 10 && words.contains(word.toString());
}
} // namespace

qsizetype CodeColours::advance(QStringView text, qsizetype from, qsizetype until, qsizetype end, Paints &paints)
{
    const QStringView code = text.first(end);
    const auto step = m_language == Language::Script ? &CodeColours::scriptStep : &CodeColours::styleStep;
    while (from < std::min(until, end))
        from = (this->*step)(code, from, paints);
    return from;
}

qsizetype CodeColours::scriptStep(QStringView text, qsizetype place, Paints &paints)
{
    const char16_t c = text[place].unicode();
    if (html::isBlank(c))
        return place + 1;
    if (startsAt(text, place, u"//") || startsAt(text, place, u"<!--"))
        return paint(paints, place, endOfLine(text, place), CommentPaint);
    if (startsAt(text, place, u"/*"))
        return paint(paints, place, behind(text, u"*/", place + 2), CommentPaint);
    const bool expression = c == u'/' && mayBeginRegularExpression();
    m_previous = c;
    if (c == u'"' || c == u'\'' || c == u'`')
        return paint(paints, place, behindQuoted(text, place, c), TextPaint);
    if (expression) {
        const qsizetype end = behindRegularExpression(text, place);
        return end > place ? paint(paints, place, end, TextPaint) : place + 1;
    }
    if (!isWordPart(text[place]))
        return place + 1;
    const qsizetype end = behindWord(text, place);
    if (text[place].isDigit())
        return paint(paints, place, end, NumberPaint);
    const QStringView word = text.sliced(place, end - place);
    if (!isScriptWord(word))
        return end;
    m_previous =
        word == u"this" || word == u"super" || word == u"true" || word == u"false" || word == u"null" ? u'a' : u';';
    return paint(paints, place, end, WordPaint);
}

/// A "/" divides behind a word, a number, a text or a closing bracket, and begins an expression anywhere else.
bool CodeColours::mayBeginRegularExpression() const
{
    const QChar c(m_previous);
    return !isWordPart(c) && c != u')' && c != u']' && c != u'}' && c != u'"' && c != u'\'' && c != u'`';
}

qsizetype CodeColours::styleStep(QStringView text, qsizetype place, Paints &paints)
{
    constexpr qsizetype longestStatement = 4096; // of what is looked at to tell a rule from a declaration
    const char16_t c = text[place].unicode();
    if (html::isBlank(c))
        return place + 1;
    if (startsAt(text, place, u"/*"))
        return paint(paints, place, behind(text, u"*/", place + 2), CommentPaint);
    if (startsAt(text, place, u"<!--") || startsAt(text, place, u"-->"))
        return paint(paints, place, place + (c == u'<' ? 4 : 3), CommentPaint);
    if (c == u'{' || c == u'}' || c == u';') {
        m_part = Part::Start;
        return place + 1;
    }
    if (m_part == Part::Start) {
        const QStringView ahead = text.sliced(place, std::min(longestStatement, text.size() - place));
        const auto *const sign = std::find_if(ahead.begin(), ahead.end(),
                                              [](QChar each) { return each == u'{' || each == u'}' || each == u';'; });
        const bool isRule = c == u'@' || (sign != ahead.end() && *sign == u'{');
        m_part = isRule ? Part::Selector : Part::Property;
    }
    if (c == u'"' || c == u'\'')
        return paint(paints, place, behindQuoted(text, place, c), TextPaint);
    if (m_part == Part::Property && c == u':') {
        m_part = Part::Value;
        return place + 1;
    }
    qsizetype end = place + 1;
    for (; end < text.size(); ++end) {
        const char16_t next = at(text, end);
        if (html::isBlank(next) || next == u'{' || next == u'}' || next == u';' || next == u'"' || next == u'\'' ||
            next == u'/' || (next == u':' && m_part == Part::Property))
            break;
    }
    const Paint &look = m_part == Part::Selector ? WordPaint : m_part == Part::Value ? TextPaint : AttributePaint;
    return paint(paints, place, end, look);
}
