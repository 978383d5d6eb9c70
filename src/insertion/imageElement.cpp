#include "insertion/imageElement.h"

#include "insertion/attributeText.h"
#include "insertion/sizeAttribute.h"

namespace
{
QString useMapAttribute(const QString &name)
{
    const QString place = name.startsWith(u'#') ? name : u'#' + name;
    return name.isEmpty() ? QString() : attributeText(QStringLiteral("usemap"), place);
}

/// A size of the tag without its sign, and the crossed unit with it; an empty one changes nothing.
QString takeSize(const QString &size, bool &inPercent)
{
    if (size.isEmpty())
        return {};
    inPercent = !size.endsWith(u'%');
    return inPercent ? size : size.chopped(1);
}
} // namespace

QString imageMarkup(const ImageFields &fields)
{
    return QStringLiteral("<img") + attributeUnlessEmpty(QStringLiteral("src"), fields.src) +
           attributeUnlessEmpty(QStringLiteral("name"), fields.name) +
           attributeUnlessEmpty(QStringLiteral("alt"), fields.alt) + useMapAttribute(fields.useMap) +
           attributeUnlessEmpty(QStringLiteral("align"), fields.align) +
           sizeAttribute(QStringLiteral("width"), fields.width, fields.inPercent) +
           sizeAttribute(QStringLiteral("height"), fields.height, fields.inPercent) +
           attributeUnlessEmpty(QStringLiteral("border"), fields.border) +
           attributeUnlessEmpty(QStringLiteral("hspace"), fields.hSpace) +
           attributeUnlessEmpty(QStringLiteral("vspace"), fields.vSpace) + fields.leftoverAttributes + u'>';
}

std::optional<TagUnderCaret> readImageTag(const QString &text, qsizetype selStart, qsizetype selLength)
{
    static const QStringList attributes{QStringLiteral("src"),    QStringLiteral("name"),   QStringLiteral("alt"),
                                        QStringLiteral("usemap"), QStringLiteral("align"),  QStringLiteral("width"),
                                        QStringLiteral("height"), QStringLiteral("hspace"), QStringLiteral("vspace"),
                                        QStringLiteral("border")};
    return ReadTagUnderCaret(text, selStart, selLength, QStringLiteral("<img "), attributes);
}

ImageFields imageFields(const TagUnderCaret &tag)
{
    const auto value = [&tag](const char *attribute) { return tag.value(QLatin1String(attribute)); };
    bool inPercent = false;
    const QString width = takeSize(value("width"), inPercent);
    const QString height = takeSize(value("height"), inPercent);
    return {.src = value("src"),
            .name = value("name"),
            .alt = value("alt"),
            .useMap = value("usemap"),
            .align = value("align"),
            .width = width,
            .height = height,
            .inPercent = inPercent,
            .border = value("border"),
            .hSpace = value("hspace"),
            .vSpace = value("vspace"),
            .leftoverAttributes = tag.leftoverAttributes};
}

ImageFields imageFieldsWithTheirUnits(const TagUnderCaret &tag)
{
    ImageFields fields = imageFields(tag);
    fields.leftoverAttributes.remove(QLatin1String(" alt=\"\"")); // the field has it
    fields.width = tag.value(QStringLiteral("width"));
    fields.height = tag.value(QStringLiteral("height"));
    const auto canBePercent = [](const QString &size) { return size.isEmpty() || size.endsWith(u'%'); };
    fields.inPercent = canBePercent(fields.width) && canBePercent(fields.height) &&
                       !(fields.width.isEmpty() && fields.height.isEmpty());
    if (fields.inPercent) {
        fields.width.chop(1);
        fields.height.chop(1);
    }
    return fields;
}
