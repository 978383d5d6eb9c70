#pragma once

#include <QString>

constexpr char16_t codeMark = u'\u00BB';
constexpr char16_t deprecatedCodeMark = u'\u00AB';

/// A line of `Html.tcb`. Every "\u00BB" in it, wherever it stands, takes the line one step deeper; a "\u00AB" does so
/// too, and says that what the line names is deprecated.
struct HtmlLine {
    enum Kind { Element, Attribute, Value };
    static constexpr int ElementDepth = 1;
    static constexpr int AttributeDepth = 2;
    int depth = 0;
    bool deprecated = false;
    QString text; ///< the line without its marks
    Kind kind() const { return depth == ElementDepth ? Element : depth == AttributeDepth ? Attribute : Value; }
};
HtmlLine htmlLine(QStringView line);

/// The text of the line of an element of another language, which stands under the one of HTML that it is entered by:
/// that one's name, ">" and its own. Any other element's text is its name; the entry then is empty.
struct ElementText {
    QString entry;
    QString name;
};
ElementText elementText(const QString &text);

/// The text of an attribute's line: the name with its "=", if it takes a value, and what stands behind the first "=".
struct AttributeText {
    QString name;
    QString hint;
};
AttributeText attributeText(const QString &text);

/// A line of `Css.tcb`: a value behind two marks; any other line is a property, whose first character is passed over
/// unseen.
struct CssLine {
    bool isValue = false;
    QString text;
};
CssLine cssLine(QStringView line);
