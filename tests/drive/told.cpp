#include "drive/told.h"

#include <QRegularExpression>
#include <algorithm>

namespace drive
{
namespace
{
constexpr qsizetype LongText = 60;

QString shown(QChar character)
{
    switch (character.unicode()) {
    case u'"':
        return QStringLiteral("\\\"");
    case u'\\':
        return QStringLiteral("\\\\");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\n':
        return QStringLiteral("\\n");
    case u'\t':
        return QStringLiteral("\\t");
    default:
        if (character == u' ' || character.isSurrogate() || (character.isPrint() && !character.isSpace()))
            return character;
        return QStringLiteral("\\u{%1}").arg(QString::number(character.unicode(), 16).toUpper());
    }
}
} // namespace

QString quoted(const QString &text)
{
    QString result = QStringLiteral("\"");
    for (const QChar character : text)
        result += shown(character);
    return result + u'"';
}

QString quotedList(const QStringList &texts)
{
    QStringList all;
    for (const QString &text : texts)
        all.append(quoted(text));
    return all.isEmpty() ? QStringLiteral("none") : all.join(u' ');
}

QString quotedAgainst(const QString &expected, const QString &got)
{
    if (std::max(expected.size(), got.size()) < LongText)
        return quoted(got);
    const auto differ = std::mismatch(expected.begin(), expected.end(), got.begin(), got.end());
    return QStringLiteral("%1 (%2 characters; the first that differs is number %3)")
        .arg(quoted(got))
        .arg(got.size())
        .arg(differ.second - got.begin());
}

QString hexadecimal(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex()).toUpper();
}

std::optional<QByteArray> bytesOfHexadecimal(const QString &text)
{
    QString digits = text;
    digits.remove(QRegularExpression(QStringLiteral("\\s")));
    static const QRegularExpression form(QStringLiteral("^([0-9A-Fa-f]{2})*$"));
    if (!form.match(digits).hasMatch())
        return std::nullopt;
    return QByteArray::fromHex(digits.toLatin1());
}

QString truth(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

std::optional<ColourValue> parseHashColour(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^#([0-9A-Fa-f]{2})([0-9A-Fa-f]{2})([0-9A-Fa-f]{2})$"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto part = [&](int number) { return match.captured(number).toInt(nullptr, 16); };
    return colourOf(part(1), part(2), part(3));
}

std::optional<ColourValue> parseTextColour(const QString &text)
{
    if (text == QStringLiteral("default"))
        return WindowTextColour;
    bool ok = false;
    const ColourValue colour = text.toUInt(&ok);
    return ok ? std::optional(colour) : std::nullopt;
}

QString textColour(ColourValue colour)
{
    return colour == WindowTextColour ? QStringLiteral("default") : QString::number(colour);
}
} // namespace drive
