#include "texttools/syntaxScan.h"

#include "common/text.h"
#include "texttools/checkDictionary.h"
#include "texttools/codeWords.h"

#include <algorithm>

namespace
{
constexpr QChar Mask = u'\u0001';
constexpr qsizetype LargestCounter = 32767; // of the counters that walk through a tag
const QString Break = QStringLiteral("\r\n");

qsizetype place(const QString &text, QStringView what, qsizetype start)
{
    return Find(text, what, start).value_or(0);
}

QString part(const QString &text, qsizetype start, qsizetype length)
{
    return Mid(text, start, length).value_or(QString());
}
} // namespace

void SyntaxScan::begin(bool resume)
{
    m_resume = resume;
    m_firstRound = true;
    m_step = Step::ChooseStart;
}

SyntaxScan::Result SyntaxScan::advance(const QString &text)
{
    while (true) {
        Result result = Result::Yield;
        switch (m_step) {
        case Step::ChooseStart:
            chooseStart();
            continue;
        case Step::NextTag:
            if (isAtEnd(text))
                return Result::Finished;
            m_firstRound = false;
            m_step = Step::SeekTag;
            return Result::Yield;
        case Step::SeekTag:
            if (!seekTag(text))
                return Result::Finished;
            if (!maskQuotes())
                return Result::Failed;
            result = checkOneWord(text);
            break;
        case Step::Words:
            result = checkWords(text);
            break;
        }
        if (result != Result::Yield)
            return result;
    }
}

void SyntaxScan::chooseStart()
{
    const bool isResumed = ResumeAt > 0 && m_resume;
    m_step = Step::NextTag;
    ScanFrom = ResumeAt;
    if (isResumed && SkipTag) {
        SkipTag = false;
        m_step = Step::SeekTag;
    } else if (isResumed) {
        WordPos = std::max<qsizetype>(WordPos, 1);
        if (place(TagBody, u" ", WordPos) > 0) // the same tag is not finished
            m_step = Step::Words;
    }
}

bool SyntaxScan::isAtEnd(const QString &text) const
{
    return ScanFrom >= text.size() || (!m_firstRound && ScanFrom == 0);
}

/// False if there is no further tag.
bool SyntaxScan::seekTag(const QString &text)
{
    SkipTag = false;
    TagStart = place(text, u"<", ScanFrom + 1);
    if (TagStart == 0)
        return false;
    const qsizetype close = place(text, u">", TagStart);
    TagEnd = close > 0 ? close - 1 : text.size();
    if (TagEnd - 1 > text.size())
        return false;
    TagBody = LCase(part(text, TagStart + 1, TagEnd - TagStart));
    WordStart = 0;
    return true;
}

/// What stands between quotation marks must not be taken for words. A further string is looked for two characters later
/// than the masking goes on.
bool SyntaxScan::maskQuotes()
{
    if (!TagBody.contains(u'"'))
        return true;
    qsizetype from = 1;
    while (true) {
        const qsizetype opening = place(TagBody, u"\"", from);
        const qsizetype length = place(TagBody, u"\"", opening + 1) - opening;
        if (length < 1) // no partner
            return false;
        std::fill_n(TagBody.begin() + opening, length - 1, Mask);
        if (place(TagBody, u"\"", opening + length + 3) == 0)
            return true;
        from = opening + length + 1;
        if (from > LargestCounter)
            return false;
    }
}

SyntaxScan::Result SyntaxScan::checkOneWord(const QString &text)
{
    if (TagBody.startsWith(u'/'))
        TagBody.remove(0, 1);
    WordPos = 0;
    if (TagBody.contains(u' ')) {
        m_step = Step::Words;
        return Result::Yield;
    }
    if (!SyntaxCheck(text, TagBody)) {
        ResumeAt = TagEnd + 1;
        return Result::Stopped;
    }
    ++ResumeAt;
    ScanFrom = TagEnd + 1;
    m_step = Step::NextTag;
    return Result::Yield;
}

SyntaxScan::Result SyntaxScan::checkWords(const QString &text)
{
    WordPos = std::max<qsizetype>(WordPos, 0);
    while (WordPos < TagBody.size()) {
        const Word word = nextWord();
        if (WordPos > LargestCounter)
            return Result::Failed;
        if (word.isPassedOver || word.text.contains(Mask))
            continue;
        if (!SyntaxCheck(text, word.text)) {
            ResumeAt = word.text.size() + WordStart + TagStart;
            return Result::Stopped;
        }
        if (SkipTag) {
            m_step = Step::ChooseStart;
            return Result::Yield;
        }
    }
    ScanFrom = TagEnd + 1;
    m_step = Step::NextTag;
    return Result::Yield;
}

/// The word behind WordPos, which goes on behind it. In the tag's last word the "=" is sought only from the place in
/// the word that has the number of WordPos, so that most last words are compared with their value.
SyntaxScan::Word SyntaxScan::nextWord()
{
    const qsizetype blank = place(TagBody, u" ", WordPos + 1);
    const bool isLast = blank == 0;
    QString word = isLast ? TagBody.sliced(WordPos) : part(TagBody, WordPos + 1, blank - WordPos - 1);
    if (!isLast && (word.isEmpty() || word == Break)) {
        WordPos += word.isEmpty() ? 1 : 2;
        return {{}, true};
    }
    const qsizetype equals = place(word, u"=", isLast ? std::max<qsizetype>(WordPos, 1) : 1);
    WordStart = WordPos;
    WordPos = isLast ? TagBody.size() : blank;
    if (equals > 0)
        word.truncate(equals);
    if (word.startsWith(Break))
        word.remove(0, Break.size());
    return {word};
}

bool SyntaxScan::SyntaxCheck(const QString &text, const QString &word)
{
    if (word.startsWith(QLatin1String("!-")) || word.startsWith(u'%')) {
        SkipTag = true;
        ResumeAt = TagEnd;
        return true;
    }
    if (word.isEmpty() || word.contains(Mask))
        return true;
    if (isKnown(isElementWord(text, word), word))
        return true;
    noteStop(text, word);
    return false;
}

/// An element's name stands right behind "<" or "</".
bool SyntaxScan::isElementWord(const QString &text, const QString &word) const
{
    const QString name = LCase(word);
    return LCase(part(text, TagStart + 1, word.size())) == name || LCase(part(text, TagStart + 2, word.size())) == name;
}

/// The tag of an earlier attribute stays the one that the dictionary is asked about, for elements, too.
bool SyntaxScan::isKnown(bool isElement, const QString &word)
{
    if (!isElement)
        m_tagName = firstWord();
    const bool isInTree = isElement ? m_words.isElement(word) : m_words.isAttribute(m_tagName, word);
    return isInTree || m_dictionary.accepts(m_tagName, word);
}

void SyntaxScan::noteStop(const QString &text, const QString &word)
{
    const qsizetype found = place(TagBody, LCase(word), std::max<qsizetype>(WordStart, 1));
    m_stop = {word, isElementWord(text, word), TagStart + found - 1, word.size()};
    // The "/" of a closing tag is not in TagBody: the selection starts with it.
    if (part(text, m_stop.selStart + 1, 1) == QLatin1String("/"))
        ++m_stop.selLength;
    if (!m_stop.isElement)
        m_tagName = firstWord();
}

QString SyntaxScan::firstWord() const
{
    return TagBody.section(u' ', 0, 0);
}

void SyntaxScan::clearWord()
{
    m_tagName.clear();
    m_stop = {};
}

SyntaxScan::Place SyntaxScan::Change(const QString &text, const QString &word, const QString &changeTo)
{
    const qsizetype longer = changeTo.size() - word.size();
    ResumeAt += longer;
    TagEnd += longer;
    const qsizetype found = place(part(text, TagStart, TagEnd), word, 1);
    const qsizetype start = TagStart + found - 2;
    if (const qsizetype inBody = place(TagBody, word, 1); inBody > 0)
        TagBody.replace(inBody - 1, word.size(), changeTo);
    --WordPos;
    return {start == -1 ? 1 : start, word.size()};
}
