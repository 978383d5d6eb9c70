#pragma once

#include "insertion/tagUnderCaret.h"

/// What the image dialog holds. Numbers are the texts of their boxes.
struct ImageFields {
    QString src;
    QString name;
    QString alt;
    QString useMap; ///< with or without the "#" in front
    QString align;
    QString width;
    QString height;
    bool inPercent = false; ///< the unit of the size
    QString border;
    QString hSpace;
    QString vSpace;
    QString leftoverAttributes; ///< what goes into the tag as it stands, with its own blank in front
};

/// One `img` element. No field is required: without any, it is the bare element.
QString imageMarkup(const ImageFields &fields);

/// The `img` element around a caret, as ReadTagUnderCaret finds it.
std::optional<TagUnderCaret> readImageTag(const QString &text, qsizetype selStart, qsizetype selLength);
/// The fields that a tag fills. The unit of the size is the other one than the tag has, by intent: confirming an image
/// as it was read makes pixels of a percentage, and the reverse. Width and height share the unit; the height decides.
ImageFields imageFields(const TagUnderCaret &tag);
/// The same with the units that the tag has. Where width and height have a unit each, the one in percent keeps its sign
/// and the unit of both is pixels. An empty `alt` is the field's, and left over no more.
ImageFields imageFieldsWithTheirUnits(const TagUnderCaret &tag);
