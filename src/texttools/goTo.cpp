#include "texttools/goTo.h"

#include "common/numbers.h"
#include "common/text.h"

qsizetype caretOfLine(const QString &text, qint64 line)
{
    qsizetype feed = 0;
    for (qint64 reached = 1; reached < line; ++reached) {
        feed = Find(text, u"\n", feed + 1).value_or(0);
        if (feed == 0)
            return text.size();
    }
    return feed;
}

std::optional<qint64> numberIn(const QString &field)
{
    return field.isEmpty() ? std::nullopt : std::optional(wholeNumber(field));
}
