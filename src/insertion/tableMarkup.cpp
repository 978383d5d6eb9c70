#include "insertion/tableMarkup.h"

#include "insertion/attributeText.h"

namespace
{
/// The visible sides as the list names them, and as the attribute does.
struct Sides {
    const char *name;
    const char *value;
};
constexpr Sides sides[] = {
    {"top", "above"}, {"bottom", "below"}, {"top and bottom", "hsides"}, {"right and left", "vsides"},
    {"left", "lhs"},  {"right", "rhs"},    {"all (box)", "box"},         {"all (border)", "border"}};

const QString NoChoice = QStringLiteral("(none)");

QString frameValue(const QString &name)
{
    for (const Sides &row : sides)
        if (name == QLatin1String(row.name))
            return QLatin1String(row.value);
    return QStringLiteral("void");
}

QString widthAttribute(const TableFields &fields)
{
    if (!fields.specifyWidth)
        return {};
    return attributeText(QStringLiteral("width"), fields.widthInPercent ? fields.width + u'%' : fields.width);
}

/// Left out only at its default: a field that was emptied on purpose gives an empty attribute.
QString attributeUnlessZero(const QString &name, const QString &value)
{
    return value == u"0" ? QString() : attributeText(name, value);
}

QString openingTag(const TableFields &fields)
{
    QString tag = QStringLiteral("<table") + attributeUnlessEmpty(QStringLiteral("summary"), fields.summary);
    if (fields.align != u"left")
        tag += attributeUnlessEmpty(QStringLiteral("align"), fields.align.toLower());
    tag += widthAttribute(fields);
    if (fields.frame != NoChoice)
        tag += attributeText(QStringLiteral("frame"), frameValue(fields.frame));
    if (fields.rules != NoChoice)
        tag += attributeUnlessEmpty(QStringLiteral("rules"), fields.rules.toLower());
    tag += attributeUnlessZero(QStringLiteral("border"), fields.border);
    tag += attributeUnlessZero(QStringLiteral("cellspacing"), fields.cellSpacing);
    tag += attributeUnlessZero(QStringLiteral("cellpadding"), fields.cellPadding);
    return tag + u'>';
}

QString rowsAndEnd(int rows, int columns)
{
    const QString cell = QStringLiteral("\r\n    <td></td>");
    const QString row = QStringLiteral("\r\n<tr>") + cell.repeated(columns) + QStringLiteral("\r\n</tr>");
    return row.repeated(rows) + QStringLiteral("\r\n</table>");
}
} // namespace

QString tableMarkup(const TableFields &fields)
{
    return openingTag(fields) + rowsAndEnd(fields.rows.toInt(), fields.columns.toInt());
}

QString plainTableMarkup(int rows, int columns)
{
    return QStringLiteral("<table>") + rowsAndEnd(rows, columns);
}

QStringList tableFrameNames()
{
    QStringList names{NoChoice};
    for (const Sides &row : sides)
        names.append(QLatin1String(row.name));
    return names;
}
