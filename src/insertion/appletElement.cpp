#include "insertion/appletElement.h"

#include "insertion/attributeText.h"

QString appletMarkup(const AppletFields &fields)
{
    return QStringLiteral("<applet") + attributeUnlessEmpty(QStringLiteral("codebase"), fields.codeBase) +
           attributeUnlessEmpty(QStringLiteral("code"), fields.code) +
           attributeUnlessEmpty(QStringLiteral("name"), fields.name) +
           attributeUnlessEmpty(QStringLiteral("archive"), fields.archive) +
           attributeUnlessEmpty(QStringLiteral("object"), fields.object) +
           attributeUnlessEmpty(QStringLiteral("width"), fields.width) +
           attributeUnlessEmpty(QStringLiteral("height"), fields.height) +
           attributeUnlessEmpty(QStringLiteral("align"), fields.align) +
           attributeUnlessEmpty(QStringLiteral("alt"), fields.alt) +
           attributeUnlessEmpty(QStringLiteral("vspace"), fields.vSpace) +
           attributeUnlessEmpty(QStringLiteral("hspace"), fields.hSpace) + fields.leftoverAttributes + u'>' +
           parametersMarkup(fields.parameters, fields.edited ? QString() : QStringLiteral("</applet>"));
}

std::optional<TagUnderCaret> readAppletTag(const QString &text, qsizetype selStart, qsizetype selLength)
{
    static const QStringList attributes{QStringLiteral("codebase"), QStringLiteral("code"),   QStringLiteral("name"),
                                        QStringLiteral("archive"),  QStringLiteral("object"), QStringLiteral("align"),
                                        QStringLiteral("alt"),      QStringLiteral("width"),  QStringLiteral("height"),
                                        QStringLiteral("hspace"),   QStringLiteral("vspace")};
    return ReadTagUnderCaret(text, selStart, selLength, QStringLiteral("<applet "), attributes);
}

AppletFields appletFields(const TagUnderCaret &tag)
{
    const auto value = [&tag](const char *attribute) { return tag.value(QLatin1String(attribute)); };
    return {.codeBase = value("codebase"),
            .code = value("code"),
            .name = value("name"),
            .archive = value("archive"),
            .object = value("object"),
            .width = value("width"),
            .height = value("height"),
            .align = value("align"),
            .alt = value("alt"),
            .vSpace = value("vspace"),
            .hSpace = value("hspace"),
            .leftoverAttributes = tag.leftoverAttributes,
            .parameters = {},
            .edited = true};
}
