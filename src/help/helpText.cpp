#include "help/helpText.h"

#include <QHash>
#include <QSet>
#include <QStringList>

namespace
{
/// Tags that do not part the words on their two sides.
bool isInline(const QString &name)
{
    static const QSet<QString> names{
        QStringLiteral("a"),    QStringLiteral("abbr"),   QStringLiteral("b"),    QStringLiteral("cite"),
        QStringLiteral("code"), QStringLiteral("dfn"),    QStringLiteral("em"),   QStringLiteral("font"),
        QStringLiteral("i"),    QStringLiteral("kbd"),    QStringLiteral("samp"), QStringLiteral("small"),
        QStringLiteral("span"), QStringLiteral("strong"), QStringLiteral("sub"),  QStringLiteral("sup"),
        QStringLiteral("tt"),   QStringLiteral("u"),      QStringLiteral("var")};
    return names.contains(name);
}

QString nameOfTag(QStringView tag)
{
    qsizetype end = 0;
    while (end < tag.size() && tag[end].isLetterOrNumber())
        ++end;
    return tag.first(end).toString().toLower();
}

/// What stands between the first such tag and its end tag; empty if the page has none.
QString insideOf(const QString &html, const QString &name)
{
    const qsizetype open = html.indexOf(u'<' + name, 0, Qt::CaseInsensitive);
    const qsizetype begin = open < 0 ? -1 : html.indexOf(u'>', open);
    const qsizetype end = begin < 0 ? -1 : html.indexOf(QStringLiteral("</") + name, begin, Qt::CaseInsensitive);
    return end < 0 ? QString() : html.sliced(begin + 1, end - begin - 1);
}

QString withoutTags(const QString &html)
{
    QString text;
    text.reserve(html.size());
    qsizetype at = 0;
    while (at < html.size()) {
        const qsizetype open = html.indexOf(u'<', at);
        text += QStringView(html).sliced(at, (open < 0 ? html.size() : open) - at);
        const qsizetype close = open < 0 ? -1 : html.indexOf(u'>', open);
        if (close < 0)
            break;
        QStringView tag = QStringView(html).sliced(open + 1, close - open - 1);
        if (tag.startsWith(u'/'))
            tag = tag.sliced(1);
        if (!isInline(nameOfTag(tag)))
            text += u' ';
        at = close + 1;
    }
    return text;
}

/// The character that an entity stands for, given what is between "&" and ";"; empty for one that is not known.
QString characterOf(const QString &entity)
{
    static const QHash<QString, QString> named{
        {QStringLiteral("amp"), QStringLiteral("&")},  {QStringLiteral("lt"), QStringLiteral("<")},
        {QStringLiteral("gt"), QStringLiteral(">")},   {QStringLiteral("quot"), QStringLiteral("\"")},
        {QStringLiteral("apos"), QStringLiteral("'")}, {QStringLiteral("nbsp"), QStringLiteral(" ")}};
    if (!entity.startsWith(u'#'))
        return named.value(entity);
    const bool hexadecimal = entity.startsWith(QLatin1String("#x"), Qt::CaseInsensitive);
    bool valid = false;
    const uint code = hexadecimal ? entity.sliced(2).toUInt(&valid, 16) : entity.sliced(1).toUInt(&valid);
    if (!valid || code == 0 || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return {};
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(&code), 1);
}

QString withCharacters(const QString &text)
{
    QString result;
    qsizetype at = 0;
    for (qsizetype mark = text.indexOf(u'&'); mark >= 0; mark = text.indexOf(u'&', mark + 1)) {
        const qsizetype end = text.indexOf(u';', mark);
        const QString character =
            end < 0 || end - mark > 10 ? QString() : characterOf(text.sliced(mark + 1, end - mark - 1));
        if (character.isEmpty())
            continue;
        result += QStringView(text).sliced(at, mark - at);
        result += character;
        at = end + 1;
        mark = end;
    }
    result += QStringView(text).sliced(at);
    return result;
}

/// Without its first heading, which says what the title says.
QString withoutHeading(const QString &html)
{
    const qsizetype begin = html.indexOf(QLatin1String("<h1"), 0, Qt::CaseInsensitive);
    const qsizetype end = begin < 0 ? -1 : html.indexOf(QLatin1String("</h1>"), begin, Qt::CaseInsensitive);
    return end < 0 ? html : html.first(begin) + html.sliced(end);
}

QString plainText(const QString &html)
{
    return withCharacters(withoutTags(html)).simplified();
}
} // namespace

HelpText helpTextOf(const QString &page, const QString &html)
{
    const QString body = insideOf(html, QStringLiteral("body"));
    return {page, plainText(insideOf(html, QStringLiteral("title"))),
            plainText(withoutHeading(body.isEmpty() ? html : body))};
}
