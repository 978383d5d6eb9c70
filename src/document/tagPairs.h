#pragma once

#include <QList>
#include <QString>
#include <optional>

/// The tags of a page and which of them belong together. Positions count from 0.

struct FoundTag {
    enum class Kind { Open, Close, Alone };
    qsizetype start = 0;     ///< of its "<"
    qsizetype end = 0;       ///< behind its ">"
    qsizetype nameStart = 0; ///< of its name, which is `name.size()` long
    QString name;            ///< in lower case
    Kind kind = Kind::Open;  ///< Alone: a void element, or closed in itself
    bool operator==(const FoundTag &) const = default;
};

/// Whether an element of that name, in lower case, has neither contents nor an end tag.
bool isVoidElement(const QString &name);

/// All tags, in their order. Comments, declarations, and what stands in quotes or in scripts, styles, text areas and
/// titles hold none; neither does a tag without its ">".
QList<FoundTag> tagsOf(QStringView text);

struct TagPair {
    FoundTag tag; ///< the one at the position
    FoundTag partner;
};

/// The tag at a position, from in front of its "<" to behind its ">", and its partner; nothing for a tag without one.
std::optional<TagPair> tagPairAt(QStringView text, qsizetype position);

/// The tags of the innermost element that holds a position, its tags included; nothing where no element with both tags
/// does.
std::optional<TagPair> elementAround(QStringView text, qsizetype position);

/// The end tag that belongs behind the start tag whose ">" stands right before the position; empty for none, where the
/// element has no end tag, and where it stands in the text already.
QString missingEndTag(QStringView text, qsizetype position);
/// The length of the end tag right behind the position where it is one too many: the same stands right before it, and
/// no start tag is left for it. 0 for none.
qsizetype doubledEndTagBehind(QStringView text, qsizetype position);
/// The end tag of the innermost element that is open at the position; empty for none.
QString endTagOfOpenElement(QStringView text, qsizetype position);
