#include "document/colourPlaces.h"

#include "common/colourText.h"
#include "common/html/tokenizer.h"

#include <QColor>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace
{
const QHash<QString, ColourValue> &namedColours()
{
    static const QHash<QString, ColourValue> named = [] {
        QHash<QString, ColourValue> made;
        for (const QString &name : QColor::colorNames())
            if (const QColor colour(name); colour.alpha() != 0)
                made.insert(name, colourOf(colour.red(), colour.green(), colour.blue()));
        made.insert(QStringLiteral("rebeccapurple"), colourOf(0x66, 0x33, 0x99));
        return made;
    }();
    return named;
}

bool isWord(QChar c)
{
    return c.isLetterOrNumber() || c == u'-' || c == u'_';
}

std::optional<ColourValue> ofDigits(QStringView digits)
{
    const qsizetype size = digits.size();
    if (size != 3 && size != 4 && size != 6 && size != 8)
        return std::nullopt;
    QString six;
    for (const QChar c : digits.first(size <= 4 ? 3 : 6))
        six += size <= 4 ? QString(2, c) : QString(c);
    return colourFromText(u'#' + six);
}

/// "255", "100%" or "50%" of `whole`.
std::optional<double> part(const QString &text, double whole)
{
    bool isNumber = false;
    const bool isShare = text.endsWith(u'%');
    const double number = text.chopped(isShare ? 1 : 0).toDouble(&isNumber);
    if (!isNumber)
        return std::nullopt;
    return std::clamp(isShare ? number / 100 * whole : number, 0.0, whole);
}

std::optional<ColourValue> ofFunction(QStringView name, QStringView arguments)
{
    static const QRegularExpression partedBy(QStringLiteral("[\\s,/]+"));
    const QStringList words = arguments.toString().split(partedBy, Qt::SkipEmptyParts);
    if (words.size() != 3 && words.size() != 4)
        return std::nullopt;
    const bool isHsl = name.startsWith(u"hsl", Qt::CaseInsensitive);
    const auto first = part(QString(words[0]).remove(QStringLiteral("deg")), isHsl ? 360 : 255);
    const auto second = part(words[1], isHsl ? 1 : 255);
    const auto third = part(words[2], isHsl ? 1 : 255);
    if (!first || !second || !third)
        return std::nullopt;
    const QColor colour = isHsl ? QColor::fromHslF(float(*first / 360), float(*second), float(*third))
                                : QColor(qRound(*first), qRound(*second), qRound(*third));
    return colourOf(colour.red(), colour.green(), colour.blue());
}

/// Looks for the colours in one value, which starts at `offset` of the text.
class ValueReader
{
public:
    ValueReader(QStringView value, qsizetype offset, QList<ColourPlace> &found)
        : m_value(value), m_offset(offset), m_found(found)
    {
    }

    void read()
    {
        while (m_at < m_value.size()) {
            const QChar c = m_value[m_at];
            if (m_value.mid(m_at).startsWith(u"/*"))
                pass(m_value.indexOf(u"*/", m_at + 2));
            else if (c == u'"' || c == u'\'')
                pass(m_value.indexOf(c, m_at + 1));
            else if (c == u'#' || c.isLetter())
                readWord();
            else if (isWord(c)) // a number with its unit
                m_at = wordEnd(m_at);
            else
                ++m_at;
        }
    }

private:
    qsizetype wordEnd(qsizetype at) const
    {
        while (at < m_value.size() && isWord(m_value[at]))
            ++at;
        return at;
    }

    void pass(qsizetype last) { m_at = last < 0 ? m_value.size() : last + 1; }

    void readWord()
    {
        const qsizetype start = m_at;
        m_at = wordEnd(start + 1);
        const QStringView word = m_value.mid(start, m_at - start);
        if (word.startsWith(u'#')) {
            add(start, ofDigits(word.mid(1)));
        } else if (m_at < m_value.size() && m_value[m_at] == u'(') {
            readFunction(start, word);
        } else {
            const auto named = namedColours().constFind(word.toString().toLower());
            if (named != namedColours().constEnd())
                add(start, *named);
        }
    }

    /// Within other functions, as gradients, colours are read as in a value.
    void readFunction(qsizetype start, QStringView name)
    {
        static const QStringList ofColours{QStringLiteral("rgb"), QStringLiteral("rgba"), QStringLiteral("hsl"),
                                           QStringLiteral("hsla")};
        const qsizetype open = m_at++;
        const qsizetype close = m_value.indexOf(u')', open);
        if (name.compare(u"url", Qt::CaseInsensitive) == 0) {
            pass(close);
        } else if (close >= 0 && ofColours.contains(name.toString().toLower())) {
            m_at = close + 1;
            add(start, ofFunction(name, m_value.mid(open + 1, close - open - 1)));
        }
    }

    void add(qsizetype start, std::optional<ColourValue> colour)
    {
        if (colour)
            m_found.append({m_offset + start, m_at - start, *colour});
    }

    QStringView m_value;
    qsizetype m_offset;
    QList<ColourPlace> &m_found;
    qsizetype m_at = 0;
};

/// Reads declarations; in a sheet those stand in braces, in an attribute there is nothing else.
class StyleReader
{
public:
    StyleReader(QStringView style, qsizetype offset, QList<ColourPlace> &found)
        : m_style(style), m_offset(offset), m_found(found)
    {
    }

    void readSheet()
    {
        while (m_at < m_style.size()) {
            const qsizetype piece = m_at;
            passPiece();
            const bool isDeclaration = m_depth > 0 && (ended() || m_style[m_at] != u'{');
            if (isDeclaration)
                readDeclaration(piece);
            if (!ended())
                m_depth = std::max(m_depth + (m_style[m_at] == u'{') - (m_style[m_at] == u'}'), 0);
            ++m_at;
        }
    }

    void readDeclarations()
    {
        m_depth = 1;
        readSheet();
    }

private:
    bool ended() const { return m_at >= m_style.size(); }

    /// To the next ";" or brace that stands in no comment, text or parentheses.
    void passPiece()
    {
        int parentheses = 0;
        for (; !ended(); ++m_at) {
            const QChar c = m_style[m_at];
            if (m_style.mid(m_at).startsWith(u"/*"))
                passTo(m_style.indexOf(u"*/", m_at + 2), 1);
            else if (c == u'"' || c == u'\'')
                passTo(m_style.indexOf(c, m_at + 1), 0);
            else if (c == u'(')
                ++parentheses;
            else if (c == u')')
                parentheses = std::max(parentheses - 1, 0);
            else if (c == u'{' || c == u'}' || (c == u';' && parentheses == 0))
                return;
        }
    }

    void passTo(qsizetype found, qsizetype more) { m_at = found < 0 ? m_style.size() - 1 : found + more; }

    void readDeclaration(qsizetype start)
    {
        const qsizetype end = std::min(m_at, m_style.size());
        while (start < end && (m_style[start].isSpace() || m_style.mid(start).startsWith(u"/*"))) {
            const qsizetype comment = m_style[start].isSpace() ? start : m_style.indexOf(u"*/", start + 2) + 1;
            start = comment < start ? end : comment + 1;
        }
        const QStringView piece = m_style.mid(start, std::max(end - start, qsizetype(0)));
        const qsizetype colon = piece.indexOf(u':');
        if (colon >= 0)
            ValueReader(piece.mid(colon + 1), m_offset + start + colon + 1, m_found).read();
    }

    QStringView m_style;
    qsizetype m_offset;
    QList<ColourPlace> &m_found;
    qsizetype m_at = 0;
    int m_depth = 0;
};

bool takesColour(QStringView attribute)
{
    static const QStringList names{QStringLiteral("alink"), QStringLiteral("bgcolor"),    QStringLiteral("bordercolor"),
                                   QStringLiteral("color"), QStringLiteral("fill"),       QStringLiteral("flood-color"),
                                   QStringLiteral("link"),  QStringLiteral("stop-color"), QStringLiteral("stroke"),
                                   QStringLiteral("text"),  QStringLiteral("vlink")};
    return names.contains(attribute.toString().toLower());
}

void readTag(const html::Tokenizer &tokens, const html::Token &tag, QList<ColourPlace> &found)
{
    for (const html::Attribute &attribute : tag.attributes) {
        const QStringView name = tokens.textOf(attribute.name);
        const QStringView value = tokens.textOf(attribute.value);
        if (name.compare(u"style", Qt::CaseInsensitive) == 0)
            StyleReader(value, attribute.value.start, found).readDeclarations();
        else if (takesColour(name))
            ValueReader(value, attribute.value.start, found).read();
    }
}
} // namespace

QList<ColourPlace> colourPlaces(QStringView text, bool isStyleSheet)
{
    QList<ColourPlace> found;
    if (isStyleSheet) {
        StyleReader(text, 0, found).readSheet();
        return found;
    }
    html::Tokenizer tokens(text);
    bool inStyle = false;
    for (const html::Token *token = &tokens.next(); token->kind != html::TokenKind::End; token = &tokens.next()) {
        if (token->kind == html::TokenKind::RawText && inStyle)
            StyleReader(tokens.textOf(token->range), token->range.start, found).readSheet();
        if (token->kind != html::TokenKind::StartTag)
            continue;
        readTag(tokens, *token, found);
        const QStringView name = tokens.textOf(token->name);
        inStyle = name.compare(u"style", Qt::CaseInsensitive) == 0;
        if (inStyle || name.compare(u"script", Qt::CaseInsensitive) == 0)
            tokens.setMode(inStyle ? html::TextMode::Raw : html::TextMode::Script, name);
    }
    return found;
}

QString recoloured(const QString &old, ColourValue colour)
{
    if (old.contains(u'(')) {
        static const QRegularExpression fourth(QStringLiteral("(?:[\\s,/]+)([0-9.]+%?)\\s*\\)$"));
        static const QRegularExpression partedBy(QStringLiteral("[\\s,/]+"));
        const bool isClear = old.section(u'(', 1).chopped(1).split(partedBy, Qt::SkipEmptyParts).size() == 4;
        const QString rgb = QStringLiteral("%1, %2, %3").arg(redOf(colour)).arg(greenOf(colour)).arg(blueOf(colour));
        return isClear ? QStringLiteral("rgba(%1, %2)").arg(rgb, fourth.match(old).captured(1))
                       : QStringLiteral("rgb(%1)").arg(rgb);
    }
    QString digits = colourText(colour);
    if (old.startsWith(u'#') && old.size() == 9)
        digits += old.last(2);
    if (old.startsWith(u'#') && old.size() == 5)
        digits += QString(2, old.back());
    return old == old.toLower() ? digits.toLower() : digits;
}
