#include "texttools/replacedPart.h"

#include "common/textSurface.h"

#include <algorithm>

namespace
{
/// A place between the two characters of a line break is none.
bool splitsBreak(QStringView text, qsizetype place)
{
    return place > 0 && place < text.size() && text[place - 1] == u'\r' && text[place] == u'\n';
}
} // namespace

void replacePart(TextSurface &surface, const QString &text)
{
    const QString old = surface.Text();
    if (old == text)
        return;
    const qsizetype shorter = std::min(old.size(), text.size());
    qsizetype start = std::mismatch(old.begin(), old.begin() + shorter, text.begin()).first - old.begin();
    while (splitsBreak(old, start) || splitsBreak(text, start))
        --start;
    const qsizetype most = shorter - start;
    qsizetype same = std::mismatch(old.rbegin(), old.rbegin() + most, text.rbegin()).first - old.rbegin();
    while (splitsBreak(old, old.size() - same) || splitsBreak(text, text.size() - same))
        --same;
    surface.setSelStart(start);
    surface.setSelLength(old.size() - same - start);
    surface.setSelText(text.mid(start, text.size() - same - start));
}
