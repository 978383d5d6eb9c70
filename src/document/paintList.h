#pragma once

#include "common/colouringOptions.h"
#include "common/textSurface.h"

#include <QList>
#include <optional>
#include <vector>

/// Which of the colouring's colours a character gets.
enum class ColourRole : quint8 { Unchanged, Text, Tag, Attribute, Value, Comment, AspCode, Link };

/// What a range of text is painted with; what has no value stays as it was under the paint.
struct Paint {
    ColourRole colour = ColourRole::Unchanged;
    std::optional<bool> bold;
    std::optional<bool> underline;
    bool operator==(const Paint &) const = default;
};

inline constexpr Paint DefaultPaint{ColourRole::Text, false, false};
inline constexpr Paint TagPaint{ColourRole::Tag, true, {}};
inline constexpr Paint AttributePaint{ColourRole::Attribute, false, {}};
inline constexpr Paint ValuePaint{ColourRole::Value, {}, {}};
inline constexpr Paint CommentPaint{ColourRole::Comment, false, {}};
inline constexpr Paint AspCodePaint{ColourRole::AspCode, false, {}};
inline constexpr Paint LinkPaint{ColourRole::Link, {}, true};
inline constexpr Paint FirstCharacterPaint{ColourRole::Text, {}, {}};
inline constexpr Paint LargeDocumentPaint{ColourRole::Text, {}, false}; ///< leaves alone what is bold

/// The format that a paint sets under these options.
TextFormat textFormat(const Paint &paint, const ColouringOptions &options);

/// A paint and where it goes, in characters from 0.
struct PaintRange {
    qsizetype start = 0;
    qsizetype length = 0;
    Paint paint;
    bool operator==(const PaintRange &) const = default;
};

/// The paints of a pass over a text, in the order in which they are laid over one another.
class PaintList
{
public:
    explicit PaintList(qsizetype textLength) : m_textLength(textLength) {}

    /// Lays a paint over a range that starts inside the text and is cut at its end. An empty range or a negative length
    /// paints nothing.
    void add(qsizetype start, qsizetype length, const Paint &paint);

    /// In order of painting. Where a text has so many that they would fill the memory (ranges over ranges in a page
    /// made to do so), those laid first have been replaced by what could still be seen of them.
    const std::vector<PaintRange> &ranges() const { return m_ranges; }

    /// What can be seen in the end: ranges that touch but do not overlap, in the order of the text, each different from
    /// the one before it. Characters that were never painted are in none of them.
    std::vector<PaintRange> visible() const;

    /// The same as formats, for a surface to apply in one go.
    QList<FormatRange> formats(const ColouringOptions &options) const;

private:
    qsizetype m_textLength;
    std::vector<PaintRange> m_ranges;
};
