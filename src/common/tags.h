#pragma once

#include <QString>
#include <optional>

/// A tag as it stands in a text, from its "<" to its ">".
struct TagSpan {
    QString text;
    qsizetype start = 0; ///< of the "<", counted from 0
    qsizetype length = 0;
    bool operator==(const TagSpan &) const = default;
};

/// The next tag behind a position counted from 0: its "<" stands there or later. Nothing if no "<" follows, or no ">"
/// follows that.
std::optional<TagSpan> NextTagFrom(qsizetype position, const QString &text);

/// The text without all such tags; a "<" that no ">" follows stays.
QString withoutTags(const QString &text);
