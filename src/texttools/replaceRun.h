#pragma once

#include "texttools/findText.h"

#include <QStringList>

/// Replace All over a text, one match after the other, without touching the text itself: what is found is what would be
/// found in the text as replaced so far, and no match holds anything of a replacement.
class ReplaceRun
{
public:
    /// `start` as `searchStart` gives it.
    ReplaceRun(const QString &text, const FindOptions &options, const QString &replacement, qsizetype start);
    ReplaceRun(const ReplaceRun &) = delete;
    ReplaceRun &operator=(const ReplaceRun &) = delete;

    /// Replaces the next match; false if there is none left.
    bool advance();
    qsizetype count() const { return m_count; }

    /// All that was replaced so far as one piece: `length` characters of the text from `start` on, counted from 0, give
    /// way to `text`.
    struct Change {
        qsizetype start = 0;
        qsizetype length = 0;
        QString text;
    };
    Change change() const;
    /// Where the last match stood, counted from 0 in the text as it is after the change.
    qsizetype lastPlace() const;
    /// Where a further run over the changed text starts; 0 or behind the end if there is nowhere left.
    qsizetype nextStart() const;

private:
    bool isUpwards() const { return m_options.direction == SearchDirection::Up; }
    bool isSought(qsizetype place);
    std::optional<QChar> characterBefore(qsizetype place) const;
    std::optional<QChar> characterBehind(qsizetype end) const;
    TagEnd tagEndAt(qsizetype place);
    void replaceAt(qsizetype place);
    void replaceDownwards(qsizetype place);
    void replaceUpwards(qsizetype place);
    void make(const QStringList &pieces);

    QString m_text;
    FindOptions m_options;
    QString m_replacement;
    qsizetype m_count = 0;
    qsizetype m_start = 0;  ///< downwards: where the change starts; upwards: where the text before it ends
    qsizetype m_end = 0;    ///< downwards: where the text behind the change starts; upwards: where the change ends
    qsizetype m_search = 0; ///< downwards: the first place looked at next; upwards: where a match ends at most
    QStringList m_pieces;   ///< of the new text in the order of their making, none of them empty
    qsizetype m_made = 0;   ///< their length
    TagPlaces m_tags;
    TagPlaces::Side m_side = TagPlaces::Side::NoTag; ///< downwards: of all that stands before m_end, as replaced
    bool m_endsBehind = false;                       ///< upwards: a ">" stands in what was made, or behind it
};
