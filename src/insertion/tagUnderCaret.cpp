#include "insertion/tagUnderCaret.h"

#include "common/text.h"

namespace
{
/// Cuts ` name="value"` out of the rest of a tag; empty, and nothing cut, without such an attribute or without a value.
QString takeAttribute(QString &rest, const QString &name)
{
    const QString opening = QStringLiteral(" %1=\"").arg(name);
    const qsizetype found = LCase(rest).indexOf(opening);
    if (found < 0)
        return {};
    const qsizetype start = found + opening.size();
    const qsizetype end = rest.indexOf(u'"', start);
    if (end <= start)
        return {};
    QString value = rest.mid(start, end - start);
    rest.remove(found, end + 1 - found);
    return value;
}
} // namespace

std::optional<TagUnderCaret> ReadTagUnderCaret(const QString &text, qsizetype selStart, qsizetype selLength,
                                               const QString &tagWord, const QStringList &attributes)
{
    if (selLength != 0 || selStart < 1)
        return std::nullopt;
    const qsizetype opening = FindBack(text, u"<", selStart).value_or(0);
    const qsizetype closing = Find(text, u">", selStart).value_or(0);
    if (opening == 0 || closing == 0)
        return std::nullopt;
    const QString tag = text.mid(opening - 1, closing - opening + 1);
    if (tag.contains(QLatin1String("\r\n")) || !LCase(tag).startsWith(tagWord))
        return std::nullopt;
    TagUnderCaret read{.values = {}, .leftoverAttributes = {}, .start = opening - 1, .length = tag.size()};
    QString rest = tag.mid(tagWord.size() - 1);
    for (const QString &attribute : attributes) {
        const QString value = takeAttribute(rest, attribute);
        if (!value.isEmpty())
            read.values.insert(attribute, value);
    }
    rest.chop(1);
    read.leftoverAttributes = rest;
    return read;
}
