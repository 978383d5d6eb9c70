#pragma once

#include "common/html/markupLanguage.h"

#include <QString>

/// Markup that a dialog or a command has made, as the standard of today wants it written: names in lower case, values
/// quoted and closed, no attribute twice, Boolean attributes bare, `alt` where a picture needs it, end tags that stand
/// side by side in the right order. In XHTML empty elements are closed and no attribute is bare; in HTML none is
/// closed.
///
/// Elements, attributes and values stay what they are, and so does all that stands between tags, in comments, scripts,
/// styles and text areas. A quote inside of a value in quotes is told from the closing one by what follows.
QString rightMarkup(const QString &made, MarkupLanguage language);

/// A piece in front of a selection and one behind it.
struct MarkupPair {
    QString opening;
    QString closing;
    bool operator==(const MarkupPair &) const = default;
};

/// The same for both pieces together; what will stand between them is not looked at.
MarkupPair rightMarkupAround(const MarkupPair &made, MarkupLanguage language);
