#pragma once

#include "insertion/elementParameter.h"
#include "insertion/tagUnderCaret.h"

/// What the object dialog holds. Numbers are the texts of their boxes; one of "0" is as good as none.
struct ObjectFields {
    QString classId;
    QString codeBase;
    QString codeType;
    QString data;
    QString type;
    QString archive;
    QString name;
    QString align;
    QString width;
    QString height;
    QString border;
    QString hSpace;
    QString vSpace;
    QString leftoverAttributes; ///< what goes into the tag as it stands, with its own blank in front
    QList<ElementParameter> parameters;
    bool edited = false; ///< the element is there already, with its closing tag
};

/// The element with its parameters.
QString objectMarkup(const ObjectFields &fields);

/// The `object` element around a caret, as ReadTagUnderCaret finds it, and the fields that it fills.
std::optional<TagUnderCaret> readObjectTag(const QString &text, qsizetype selStart, qsizetype selLength);
ObjectFields objectFields(const TagUnderCaret &tag);
