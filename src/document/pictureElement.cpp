#include "document/pictureElement.h"

#include "common/paths.h"
#include "document/lineIndent.h"
#include "document/tagPairs.h"

#include <algorithm>

const QStringList &pictureEndings()
{
    static const QStringList endings =
        QStringLiteral("png apng jpg jpeg jpe jfif gif svg webp avif bmp ico").split(u' ');
    return endings;
}

bool isPictureName(const QString &path)
{
    return pictureEndings().contains(GetFileExtension(path).toLower());
}

QString pictureMarkup(const PictureElement &picture, MarkupLanguage language)
{
    const QString size =
        picture.size.isEmpty()
            ? QString()
            : QStringLiteral(" width=\"%1\" height=\"%2\"").arg(picture.size.width()).arg(picture.size.height());
    return QStringLiteral("<img src=\"") + picture.address.toHtmlEscaped() + QStringLiteral("\" alt=\"") +
           picture.alt.toHtmlEscaped() + u'"' + size +
           (language == MarkupLanguage::Xhtml ? QStringLiteral(" />") : QStringLiteral(">"));
}

namespace
{
/// The place itself, or behind the tag that it stands in.
qsizetype behindTag(const QString &text, qsizetype place)
{
    const QList<FoundTag> tags = tagsOf(text);
    const auto around = std::find_if(tags.cbegin(), tags.cend(),
                                     [place](const FoundTag &tag) { return tag.start < place && place < tag.end; });
    return around == tags.cend() ? place : around->end;
}
} // namespace

LineChange withPictures(const QString &text, TextSelection place, const QStringList &elements)
{
    if (place.length == 0)
        place.start = behindTag(text, place.start);
    const QString written = elements.join(QStringLiteral("\r\n") + indentationBefore(text, place.start));
    const QString empty = QStringLiteral(" alt=\"\"");
    const qsizetype alt = written.indexOf(empty);
    const qsizetype caret = alt < 0 ? written.size() : alt + empty.size() - 1;
    return {TextReplacement{place.start, place.length, written}, {place.start + caret, 0}};
}

QString freePictureName(const QString &kind, const std::function<bool(const QString &)> &isTaken)
{
    QString name = QStringLiteral("picture.") + kind;
    for (int number = 2; isTaken(name); ++number)
        name = QStringLiteral("picture-%1.%2").arg(number).arg(kind);
    return name;
}

QString pictureNameOf(const QString &typed, const QString &kind)
{
    const QString name = typed.trimmed();
    return name.isEmpty() || name.endsWith(u'/') || name.section(u'/', -1).contains(u'.') ? name : name + u'.' + kind;
}

QString pictureNameFault(const QString &name)
{
    if (name.isEmpty())
        return QStringLiteral("Please type a name for the picture's file.");
    const QStringList parts = name.split(u'/');
    if (std::any_of(parts.cbegin(), parts.cend(),
                    [](const QString &part) { return part.isEmpty() || part[0] == u'.'; }))
        return QStringLiteral("A pasted picture is saved in the folder of its page or in one below: a name such as "
                              "logo.png or pictures/logo.png.");
    return isPictureName(name) ? QString()
                               : QStringLiteral("Browsers know a picture by its ending, such as .png or .jpg.");
}
