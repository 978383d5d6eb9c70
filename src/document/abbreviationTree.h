#pragma once

#include <QList>
#include <QString>
#include <optional>

/// What an abbreviation says, before it is written.
namespace abbreviation
{
struct Attribute {
    QString name;
    QString value;
    bool bare = false; ///< stands without a value
};

struct Node {
    QString name; ///< empty: it follows from the element around it, unless there is nothing but text
    QList<Attribute> attributes;
    QString text;
    bool isText = false;     ///< nothing but its text
    bool isGroup = false;    ///< nothing but its children
    bool takesLines = false; ///< an "*" without a number
    int count = 1;           ///< repetitions
    bool repeats = false;    ///< an "*" stands there
    QList<Node> children;
};

/// The nodes side by side at the top; nothing where the text cannot be read to its end.
std::optional<QList<Node>> parsed(QStringView abbreviation);
} // namespace abbreviation
