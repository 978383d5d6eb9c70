#pragma once

#include "common/textSelection.h"

#include <QList>
#include <QString>
#include <optional>

/// The search of the Find window: plain text in plain text, with filters on what stands around a match. Positions count
/// from 1, and 0 is "not found".

enum class SearchDirection { Down, Up, All };
enum class SearchType { EntireDocument, TextOnly, TagsOnly };

struct FindOptions {
    QString find;
    SearchDirection direction = SearchDirection::All;
    SearchType type = SearchType::EntireDocument;
    bool matchCase = false;
    bool wholeWords = false;
};

/// What one search leaves for the next.
struct FindState {
    bool ContinueSearch = false; ///< a match was turned down: the next step goes on from NextPosition
    qsizetype NextPosition = 0;  ///< behind the first character of the last match; 0 for none
    bool FoundMatch = false;     ///< the last step has found a match
    bool operator==(const FindState &) const = default;
};

/// Whether the question must be asked that turns a search into one of the entire document: upwards, a single character
/// cannot be told to lie in a tag or beside one.
bool isSingleCharacterUpwards(const FindOptions &options);

/// Where the next step starts; for "Up" the last place at which a match may end, and below 1 if there is none.
///
/// "All" begins at the text's start unless a search has begun. Everything else goes by the selection: behind it the
/// search starts at the selection's last character, or at the character in front of a caret. Only a selection of one
/// character is stepped over.
qsizetype searchStart(const FindOptions &options, const FindState &state, const TextSelection &selection);

/// Where a step goes on once the match at `place` was turned down.
qsizetype startBehindRejected(const FindOptions &options, qsizetype place);

/// Searches from a start as `searchStart` gives it, passing over what the filters turn down, and notes the outcome.
qsizetype SearchText(QStringView text, const FindOptions &options, qsizetype start, FindState &state);

/// All places of a text that the filters let through, overlapping ones, too; in order, counted from 0.
QList<qsizetype> allMatches(QStringView text, const FindOptions &options);

/// The match that a search comes to which goes round at the text's ends.
struct RoundStep {
    qsizetype index = 0;    ///< in the list of all matches, from 0
    bool wentRound = false; ///< it lies behind the end at which the search went round
};
/// The next one from a selection; nothing without any. If one of the matches is selected it is the one beside it,
/// otherwise the nearest at or behind the start as `searchStart` gives it, or, for "Up", that ends in front of the
/// selection.
std::optional<RoundStep> stepRound(const QList<qsizetype> &matches, const FindOptions &options, const FindState &state,
                                   const TextSelection &selection);

/// Which side of a match's start the ">" lies on that belongs to the last "<" at or before it.
enum class TagEnd { NoTag, Before, At, Behind, Missing };

/// Whether the filter on tags lets a match through. Without a "<" in front of it, everything passes.
bool passesTagFilter(SearchType type, TagEnd end);

/// Tells of places in a text, in any order, where the tag in front of them ends. What it has found it knows for the
/// places nearby, so that a text without tags costs one walk and not one for each match.
class TagPlaces
{
public:
    explicit TagPlaces(QStringView text) : m_text(text) {}

    /// What a stretch of text comes to for the places behind it.
    enum class Side { NoTag, Open, Closed };
    /// From now on no place before `from` is asked about, and all that stands there is passed over for `side`.
    void restart(qsizetype from, Side side);
    static Side behind(Side side, QStringView passed);

    TagEnd at(qsizetype place); ///< counted from 0

private:
    void lookBack(qsizetype place);
    qsizetype endOf(qsizetype bracket);

    QStringView m_text;
    qsizetype m_from = 0;
    Side m_side = Side::NoTag;
    qsizetype m_at = 0;         ///< the place asked about last
    qsizetype m_bracket = -1;   ///< the last "<" at or before it
    qsizetype m_endSought = -1; ///< from where on the ">" was sought
    qsizetype m_end = -1;
};

/// The raw search: the first place at or behind `from`, the last place that ends at or before `end`, counted from 0; -1
/// for none. Upper and lower case are compared character by character.
qsizetype indexOfText(QStringView text, QStringView find, qsizetype from, bool matchCase);
qsizetype lastIndexOfText(QStringView text, QStringView find, qsizetype end, bool matchCase);

/// Whether what stands around a match parts words: in front of it the text's start, a line feed or a blank, behind it
/// the text's end, a blank or a control character.
bool isWordEdge(std::optional<QChar> before, std::optional<QChar> behind);
