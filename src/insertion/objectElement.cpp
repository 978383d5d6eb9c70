#include "insertion/objectElement.h"

#include "insertion/attributeText.h"

namespace
{
QString unlessNought(const QString &name, const QString &value)
{
    return value == u"0" ? QString() : attributeUnlessEmpty(name, value);
}
} // namespace

QString objectMarkup(const ObjectFields &fields)
{
    return QStringLiteral("<object") + attributeUnlessEmpty(QStringLiteral("classid"), fields.classId) +
           attributeUnlessEmpty(QStringLiteral("codebase"), fields.codeBase) +
           attributeUnlessEmpty(QStringLiteral("codetype"), fields.codeType) +
           attributeUnlessEmpty(QStringLiteral("data"), fields.data) +
           attributeUnlessEmpty(QStringLiteral("type"), fields.type) +
           attributeUnlessEmpty(QStringLiteral("archive"), fields.archive) +
           attributeUnlessEmpty(QStringLiteral("name"), fields.name) +
           attributeUnlessEmpty(QStringLiteral("align"), fields.align) +
           unlessNought(QStringLiteral("width"), fields.width) + unlessNought(QStringLiteral("height"), fields.height) +
           unlessNought(QStringLiteral("border"), fields.border) +
           unlessNought(QStringLiteral("hspace"), fields.hSpace) +
           unlessNought(QStringLiteral("vspace"), fields.vSpace) + fields.leftoverAttributes + u'>' +
           parametersMarkup(fields.parameters, fields.edited ? QString() : QStringLiteral("</object>"));
}

std::optional<TagUnderCaret> readObjectTag(const QString &text, qsizetype selStart, qsizetype selLength)
{
    static const QStringList attributes{
        QStringLiteral("classid"), QStringLiteral("codebase"), QStringLiteral("codetype"), QStringLiteral("data"),
        QStringLiteral("type"),    QStringLiteral("archive"),  QStringLiteral("name"),     QStringLiteral("align"),
        QStringLiteral("width"),   QStringLiteral("height"),   QStringLiteral("border"),   QStringLiteral("hspace"),
        QStringLiteral("vspace")};
    return ReadTagUnderCaret(text, selStart, selLength, QStringLiteral("<object "), attributes);
}

ObjectFields objectFields(const TagUnderCaret &tag)
{
    const auto value = [&tag](const char *attribute) { return tag.value(QLatin1String(attribute)); };
    return {.classId = value("classid"),
            .codeBase = value("codebase"),
            .codeType = value("codetype"),
            .data = value("data"),
            .type = value("type"),
            .archive = value("archive"),
            .name = value("name"),
            .align = value("align"),
            .width = value("width"),
            .height = value("height"),
            .border = value("border"),
            .hSpace = value("hspace"),
            .vSpace = value("vspace"),
            .leftoverAttributes = tag.leftoverAttributes,
            .parameters = {},
            .edited = true};
}
