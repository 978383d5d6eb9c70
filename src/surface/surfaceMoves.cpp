#include "surface/surfaceMoves.h"

#include <QTextLayout>
#include <algorithm>

namespace
{
constexpr qsizetype reach = 512; // characters on both sides of a position that a step looks at

/// The part of a line around a position.
struct Surroundings {
    Surroundings(const SurfaceText &text, qsizetype position)
    {
        const qsizetype line = text.lineAt(position);
        lineStart = text.lineStart(line);
        lineEnd = text.lineEnd(line);
        start = std::max(position - reach, lineStart);
        part = text.mid(start, std::min(position + reach, lineEnd) - start);
        at = static_cast<int>(position - start);
    }
    bool reachesLineStart() const { return start == lineStart; }
    bool reachesLineEnd() const { return start + part.size() == lineEnd; }

    qsizetype lineStart = 0;
    qsizetype lineEnd = 0;
    qsizetype start = 0; ///< of the part
    QString part;
    int at = 0; ///< the position in it
};

qsizetype stepForward(const SurfaceText &text, qsizetype position, QTextLayout::CursorMode mode)
{
    const Surroundings around(text, position);
    if (position == around.lineEnd)
        return position < text.length() ? text.lineStart(text.lineAt(position) + 1) : position;
    const QTextLayout layout(around.part);
    const int place = layout.nextCursorPosition(around.at, mode);
    const qsizetype found = around.start + place;
    const bool cut = place == around.part.size() && !around.reachesLineEnd();
    return cut && mode == QTextLayout::SkipWords ? stepForward(text, found, mode) : found;
}

qsizetype stepBack(const SurfaceText &text, qsizetype position, QTextLayout::CursorMode mode)
{
    const Surroundings around(text, position);
    if (position == around.lineStart)
        return position > 0 ? text.lineEnd(text.lineAt(position) - 1) : position;
    const QTextLayout layout(around.part);
    const int place = layout.previousCursorPosition(around.at, mode);
    const bool cut = place == 0 && !around.reachesLineStart();
    return cut && mode == QTextLayout::SkipWords ? stepBack(text, around.start, mode) : around.start + place;
}

/// What stands between words although it is no blank.
bool separates(QChar c)
{
    static constexpr QStringView signs = u".,?!@#$:;-<>[](){}=/+%&^*'\"`~|\\";
    return signs.contains(c);
}
} // namespace

namespace surfaceMoves
{
qsizetype nextCharacter(const SurfaceText &text, qsizetype position)
{
    return stepForward(text, position, QTextLayout::SkipCharacters);
}

qsizetype previousCharacter(const SurfaceText &text, qsizetype position)
{
    return stepBack(text, position, QTextLayout::SkipCharacters);
}

qsizetype previousCode(const SurfaceText &text, qsizetype position)
{
    const qsizetype line = text.lineAt(position);
    if (position == text.lineStart(line))
        return line > 0 ? text.lineEnd(line - 1) : position;
    const QString before =
        text.mid(std::max(position - 2, text.lineStart(line)), std::min(position - text.lineStart(line), qsizetype(2)));
    const bool pair = before.size() == 2 && before[0].isHighSurrogate() && before[1].isLowSurrogate();
    return position - (pair ? 2 : 1);
}

qsizetype nextWord(const SurfaceText &text, qsizetype position)
{
    return stepForward(text, position, QTextLayout::SkipWords);
}

qsizetype previousWord(const SurfaceText &text, qsizetype position)
{
    return stepBack(text, position, QTextLayout::SkipWords);
}

qsizetype startOfWord(const SurfaceText &text, qsizetype position)
{
    const Surroundings around(text, position);
    if (position == around.lineStart)
        return position;
    if (position == around.lineEnd) {
        const QChar last = around.part.back();
        if (last.isSpace() || separates(last))
            return position;
        return previousWord(text, position);
    }
    return previousWord(text, position + 1);
}

qsizetype endOfWord(const SurfaceText &text, qsizetype position)
{
    const Surroundings around(text, position);
    qsizetype end = around.at;
    const QString &part = around.part;
    if (end >= part.size())
        return position;
    if (separates(part[end])) {
        while (end < part.size() && separates(part[end]))
            ++end;
    } else {
        while (end < part.size() && !part[end].isSpace() && !separates(part[end]))
            ++end;
    }
    return around.start + end;
}
} // namespace surfaceMoves
