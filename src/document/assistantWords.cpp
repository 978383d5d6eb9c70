#include "document/assistantWords.h"

#include "common/linkPrefixes.h"
#include "common/text.h"
#include "common/textReader.h"

#include <algorithm>

namespace
{
bool isBreak(QChar c)
{
    return c == u'\r' || c == u'\n';
}

bool endsWord(QChar c)
{
    return c == u'"' || c == u' ' || isBreak(c);
}

/// Steps over a "<" or the blanks in front of the caret, to the end of the word before them.
qsizetype endOfWordBefore(TextReader &text, qsizetype pos)
{
    if (pos - 2 < 2)
        return 1;
    pos -= 2;
    while (pos >= 2 && text.at(pos) == u' ')
        --pos;
    return pos;
}

/// Where the word starts that reaches to `pos`: behind the nearest blank or line break. A blank at the very start of
/// the text counts as none.
qsizetype startOfWord(TextReader &text, qsizetype pos)
{
    qsizetype at = std::min(pos, text.length());
    if (at == pos && text.at(at) == u'\r') // half a break, of which the other half stands behind `pos`
        --at;
    while (at > 1 && text.at(at) != u' ' && text.at(at) != u'\n')
        --at;
    return at > 1 ? at + 1 : 1;
}
} // namespace

// Positions count from 1.
QString WordAtCaret(const TextSurface &box, qsizetype pos)
{
    TextReader text(box);
    if (text.length() == 0)
        return {};
    const QChar before = pos > 1 ? text.at(pos - 1) : QChar();
    const bool stepsBack = before == u'<' || before == u' ';
    if (stepsBack)
        pos = endOfWordBefore(text, pos);
    const qsizetype start = startOfWord(text, pos);
    if (stepsBack)
        ++pos;
    return Trim(text.mid(start, pos - start));
}

QString WordAtCharacter(const TextSurface &box, qsizetype character)
{
    TextReader text(box);
    if (character < 1 || character > text.length())
        return {};
    qsizetype before = character;
    while (before >= 1 && !endsWord(text.at(before)))
        --before;
    qsizetype behind = character;
    while (behind <= text.length() && !endsWord(text.at(behind)))
        ++behind;
    return text.mid(before + 1, behind - before - 1);
}

QString linkIn(const QString &word)
{
    const QString lower = LCase(word);
    for (const QStringView prefix : LinkPrefixes) {
        const qsizetype place = lower.indexOf(prefix);
        if (place >= 0)
            return word.sliced(place);
    }
    return {};
}
