#pragma once

#include "common/codeKnowledge.h"

#include <vector>

/// A line of `Html.tcb`. Every "\u00BB" in it, wherever it stands, takes the line one step deeper; a "\u00AB" does so
/// too, and says that what the line names is deprecated.
struct HtmlLine {
    enum Kind { Element, Attribute, Value };
    int depth = 0;
    bool deprecated = false;
    QString text; ///< the line without its marks
    Kind kind() const { return depth == 1 ? Element : depth == 2 ? Attribute : Value; }
};
HtmlLine htmlLine(QStringView line);

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

/// What a file gives: a branch of the code tree, its root first, each node's parent by its number in the branch.
struct CodeBranch {
    std::vector<TreeNode> nodes;
    bool complete = true; ///< false: a line had no place in the tree, and what stands behind it was not read
};

struct HtmlCodes {
    CodeBranch branch;
    CodeElements elements;
};

/// Reads the text of `Html.tcb`. A value behind no attribute of its element, and an attribute in front of all elements,
/// have no place in the tree.
HtmlCodes readHtmlCodes(QStringView text);

/// Reads the text of `Css.tcb`, whose properties have their names as keys. A value in front of all properties has no
/// place in the tree, and a property whose name is a key already.
CodeBranch readCssCodes(QStringView text);
