#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

/// A tag of the document as a dialog takes it back into its fields.
struct TagUnderCaret {
    QHash<QString, QString> values; ///< by the attribute's name; only attributes that have a value
    QString leftoverAttributes;     ///< what no field took, with its leading blank and without the final ">"
    qsizetype start = 0;            ///< position of the "<", from 0
    qsizetype length = 0;           ///< up to and with the ">"

    QString value(const QString &attribute) const { return values.value(attribute); }
};

/// Reads the tag around a caret. `tagWord` is its start in lower case with the blank behind it ("<img "); `attributes`
/// are the names that the dialog has fields for, in the order in which they are cut out of the tag.
///
/// The tag goes from the last "<" left of the caret to the next ">" there or behind, so that a caret right behind
/// either belongs to it; what lies between is not looked at. Only attributes written ` name="value"` are known.
/// Nothing if text is selected, the caret is at the very start, a bracket is missing, the tag goes over a line end or
/// is another one.
std::optional<TagUnderCaret> ReadTagUnderCaret(const QString &text, qsizetype selStart, qsizetype selLength,
                                               const QString &tagWord, const QStringList &attributes);
