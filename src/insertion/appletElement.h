#pragma once

#include "insertion/elementParameter.h"
#include "insertion/tagUnderCaret.h"

/// What the applet dialog holds. Numbers are the texts of their boxes.
struct AppletFields {
    QString codeBase;
    QString code;
    QString name;
    QString archive;
    QString object;
    QString width;
    QString height;
    QString align;
    QString alt;
    QString vSpace;
    QString hSpace;
    QString leftoverAttributes; ///< what goes into the tag as it stands, with its own blank in front
    QList<ElementParameter> parameters;
    bool edited = false; ///< the element is there already, with its closing tag
};

/// The element with its parameters.
QString appletMarkup(const AppletFields &fields);

/// The `applet` element around a caret, as ReadTagUnderCaret finds it, and the fields that it fills.
std::optional<TagUnderCaret> readAppletTag(const QString &text, qsizetype selStart, qsizetype selLength);
AppletFields appletFields(const TagUnderCaret &tag);
