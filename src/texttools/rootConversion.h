#pragma once

#include <QString>

/// A change of the root that links start with, between a local folder and an Internet address.
struct RootConversion {
    QString oldRoot; ///< looked for in any case of its letters
    QString newRoot;
    QChar from; ///< the separator that gives way to `to` in every link that was converted; the same: none does
    QChar to;
};

struct ConvertedText {
    QString text;
    qsizetype count = 0; ///< roots replaced
    qsizetype caret = 0; ///< behind the last one, or behind its link where separators were changed there; from 0
    bool operator==(const ConvertedText &) const = default;
};

/// Replaces every occurrence of the old root; the search goes on behind each. A link is what stands around a root
/// between two double quotes with no tag's end and no line break between them; roots outside links are replaced, too.
ConvertedText convertRoot(const QString &text, const RootConversion &conversion);

/// The root with the separator at its end, which is added where it lacks one.
QString withSeparator(const QString &root, QChar separator);
