#pragma once

#include "common/textSurface.h"

#include <vector>

/// What a character looks like; the colour is the value as it was given, however it is drawn.
struct Look {
    ColourValue colour = WindowTextColour;
    bool bold = false;
    bool underline = false;
    bool operator==(const Look &) const = default;
};

/// A stretch of text, from the first character to behind the last one.
struct TextStretch {
    qsizetype from = 0;
    qsizetype to = 0;
};

/// The looks of a text's characters, as runs of characters that look the same; breaks belong to the runs, too.
///
/// Questions take logarithmic time. An edit, or a setting of formats, takes time in proportion to the runs that it
/// touches and to those between it and the edit before, not to the size of the text.
class FormatRuns
{
public:
    /// Starts anew with a text that looks neutral.
    void reset(qsizetype length);
    /// `removed` characters at `position` give way to `added` ones of a look.
    void replace(qsizetype position, qsizetype removed, qsizetype added, const Look &look);
    /// Lays the ranges over what is there, later ones over earlier ones, cut to the text, without those of a negative
    /// start or length. Gives the stretches that came to look different, in their order.
    std::vector<TextStretch> apply(const QList<FormatRange> &ranges);

    /// The look of the character behind a position, which must be there.
    Look lookAt(qsizetype position) const;
    /// What all characters of a stretch that is not empty have in common.
    TextFormat common(qsizetype from, qsizetype to) const;
    /// Visits the runs of a stretch in their order, cut to it: `visit(from, to, look)`.
    template <typename Visit>
    void forEachRun(qsizetype from, qsizetype to, Visit visit) const
    {
        for (size_t i = from < to ? runAt(from) : count(); i < count() && start(i) < to; ++i) {
            const qsizetype end = i + 1 < count() ? start(i + 1) : m_length;
            visit(std::max(from, start(i)), std::min(to, end), look(i));
        }
    }
    size_t count() const { return m_front.size() + m_back.size(); }

private:
    struct Run {
        qsizetype place = 0;
        Look look;
    };
    struct Segment {
        qsizetype from = 0;
        qsizetype to = 0;
        TextFormat format;
    };
    /// Segments in their order, none of which overlaps another.
    using Layer = std::vector<Segment>;

    qsizetype start(size_t run) const;
    const Look &look(size_t run) const;
    size_t runAt(qsizetype position) const;
    void moveGapTo(qsizetype position);
    void append(qsizetype position, const Look &look);
    static Layer laidOver(const Layer &under, const Layer &over);
    static Layer flattened(const QList<FormatRange> &ranges, qsizetype length);

    // As in LineIndex: the runs in front of the place of the last edit count from the text's start, those behind it
    // from its end and in reverse order, so that an edit between the two moves neither.
    std::vector<Run> m_front = {{}};
    std::vector<Run> m_back;
    qsizetype m_length = 0;
};

/// The look that a format makes of another one.
Look merged(Look look, const TextFormat &change);
