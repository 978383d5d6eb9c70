#include "texttools/findText.h"

#include <gtest/gtest.h>

namespace
{
constexpr SearchDirection Down = SearchDirection::Down;
constexpr SearchDirection Up = SearchDirection::Up;
constexpr SearchDirection All = SearchDirection::All;

FindOptions options(const QString &find, SearchDirection direction = Down)
{
    return {.find = find, .direction = direction, .matchCase = true};
}

struct StartRow {
    SearchDirection direction;
    qsizetype findLength;
    FindState state;
    TextSelection selection;
    qsizetype start;
};

TEST(SearchStart, FollowsTheSelectionAndTheStateOfTheSearch)
{
    const FindState fresh;
    const FindState found{.NextPosition = 7, .FoundMatch = true};
    const FindState rejected{.ContinueSearch = true, .NextPosition = 7};
    const StartRow rows[] = {
        {All, 3, fresh, {20, 4}, 1},  // a new search of all begins at the start, whatever is selected
        {All, 3, found, {20, 4}, 24}, // the selection's last character
        {All, 3, found, {20, 1}, 22}, // one character is stepped over
        {All, 3, found, {20, 0}, 20}, // the character in front of the caret
        {Down, 3, fresh, {20, 4}, 24},
        {Down, 3, fresh, {20, 1}, 22},
        {Down, 3, fresh, {20, 0}, 20},
        {Down, 3, fresh, {0, 0}, 1}, // the very start
        {Down, 3, rejected, {20, 4}, 7},
        {Up, 3, fresh, {20, 4}, 21}, // 20 + 4 - 3
        {Up, 3, fresh, {20, 3}, 20},
        {Up, 1, fresh, {20, 1}, 19}, // 20 + 1 - 1 - 1: the character in front is
                                     // passed over, which is meant
        {Up, 3, fresh, {20, 0}, 20}, // no length is taken off a caret
        {Up, 3, fresh, {0, 0}, 0},
        {Up, 3, rejected, {20, 4}, 4}, // 7 - 3
        {Up, 3, fresh, {0, 2}, -1},    // 0 + 2 - 3: nowhere
    };
    for (const StartRow &row : rows)
        EXPECT_EQ(searchStart(options(QString(row.findLength, u'x'), row.direction), row.state, row.selection),
                  row.start)
            << int(row.direction) << ' ' << row.findLength << ' ' << row.selection.start << ' ' << row.selection.length;
}

struct SearchRow {
    const char *text;
    FindOptions options;
    qsizetype start;
    qsizetype place;
};

void expectPlaces(std::initializer_list<SearchRow> rows)
{
    for (const SearchRow &row : rows) {
        FindState state;
        EXPECT_EQ(SearchText(QString::fromUtf8(row.text), row.options, row.start, state), row.place)
            << row.text << " / " << row.options.find.toStdString() << " / " << row.start;
        EXPECT_EQ(state.FoundMatch, row.place > 0) << row.text;
        EXPECT_EQ(state.NextPosition, row.place > 0 ? row.place + 1 : 0) << row.text;
        EXPECT_FALSE(state.ContinueSearch);
    }
}

TEST(SearchText, ComparesCharactersInTheCaseAsked)
{
    FindOptions anyCase = options(QStringLiteral("b"));
    anyCase.matchCase = false;
    FindOptions sharp = options(QStringLiteral("STRASSE"));
    sharp.matchCase = false;
    FindOptions umlaut = options(QStringLiteral("äÖ"));
    umlaut.matchCase = false;
    expectPlaces({
        {"aBab", options(QStringLiteral("b")), 1, 4},
        {"aBab", anyCase, 1, 2},
        {"aBab", anyCase, 3, 4},
        {"aBab", anyCase, 5, 0},
        {"straße strasse", sharp, 1, 8}, // no letter becomes two
        {"xÄöx", umlaut, 1, 2},
        {"", anyCase, 1, 0},
    });
}

TEST(SearchText, UpwardsFindsTheLastPlaceThatEndsAtTheStart)
{
    FindOptions anyCase = options(QStringLiteral("AB"), Up);
    anyCase.matchCase = false;
    expectPlaces({
        {"abab", options(QStringLiteral("ab"), Up), 4, 3},
        {"abab", options(QStringLiteral("ab"), Up), 3, 1},
        {"abab", options(QStringLiteral("ab"), Up), 1, 0},
        {"abab", options(QStringLiteral("ab"), Up), 0, 0}, // a failed step
        {"abab", options(QStringLiteral("ab"), Up), -3, 0},
        {"abab", options(QStringLiteral("ab"), Up), 5, 0}, // behind the end
        {"abaB", anyCase, 4, 3},
    });
}

FindOptions word(const QString &find, SearchDirection direction = Down)
{
    FindOptions result = options(find, direction);
    result.wholeWords = true;
    return result;
}

TEST(SearchText, WholeWordsStandBetweenBlanksAndLineEnds)
{
    expectPlaces({
        {"category cat", word(QStringLiteral("cat")), 1, 10},
        {"cat", word(QStringLiteral("cat")), 1, 1},    // the ends of the text part words
        {"a cat.", word(QStringLiteral("cat")), 1, 0}, // punctuation does not
        {"(cat b", word(QStringLiteral("cat")), 1, 0},
        {"a\r\ncat\r\nb", word(QStringLiteral("cat")), 1, 4},
        {"a\tcat b", word(QStringLiteral("cat")), 1, 0}, // a tab ends a word and begins none
        {"a cat\tb", word(QStringLiteral("cat")), 1, 3},
        {"cat concat", word(QStringLiteral("cat"), Up), 10, 1},
        {"x xx", word(QStringLiteral("x"), Up), 4, 1}, // one character: a step back at a time
        {"xx", word(QStringLiteral("x"), Up), 2, 0},
    });
}

FindOptions in(SearchType type, const QString &find, SearchDirection direction = Down)
{
    FindOptions result = options(find, direction);
    result.type = type;
    return result;
}

TEST(SearchText, TagsOnlyPassesWhatStandsInATag)
{
    const auto tags = [](const char *find, SearchDirection direction = Down) {
        return in(SearchType::TagsOnly, QString::fromUtf8(find), direction);
    };
    expectPlaces({
        {"b <b>b</b>", tags("b"), 1, 1}, // no "<" in front: it passes
        {"b <b>b</b>", tags("b"), 2, 4},
        {"b <b>b</b>", tags("b"), 5, 9}, // the one between the tags is passed over
        {"<b>b", tags("<b"), 1, 1},      // the match starts with the "<"
        {"<a>b", tags(">"), 1, 3},       // the ">" itself passes in both
        {"<a b", tags("b"), 1, 0},       // a tag that does not end is none
        {"<p>one <i class=one>", tags("one", Up), 20, 17},
        {"<p>one <i class=one>", tags("one", Up), 18, 0},
    });
}

TEST(SearchText, TextOnlyPassesWhatStandsBetweenTags)
{
    const auto between = [](const char *find, SearchDirection direction = Down) {
        return in(SearchType::TextOnly, QString::fromUtf8(find), direction);
    };
    expectPlaces({
        {"b <b>b</b>", between("b"), 1, 1},
        {"b <b>b</b>", between("b"), 2, 6},
        {"b <b>b</b>", between("b"), 7, 0},
        {"<a>b", between(">"), 1, 3},
        {"<a b", between("b"), 1, 4}, // a tag that does not end hides nothing
        {"one <i class=one>two", between("one", Up), 20, 1},
    });
}

TEST(SearchText, OneCharacterUpwardsBesideTagsIsAsked)
{
    EXPECT_TRUE(isSingleCharacterUpwards(in(SearchType::TagsOnly, QStringLiteral("a"), Up)));
    EXPECT_TRUE(isSingleCharacterUpwards(in(SearchType::TextOnly, QStringLiteral("a"), Up)));
    EXPECT_FALSE(isSingleCharacterUpwards(in(SearchType::TextOnly, QStringLiteral("ab"), Up)));
    EXPECT_FALSE(isSingleCharacterUpwards(in(SearchType::TextOnly, QStringLiteral("a"), All)));
    EXPECT_FALSE(isSingleCharacterUpwards(in(SearchType::EntireDocument, QStringLiteral("a"), Up)));
}

/// A text without tags is walked once, not once a match.
TEST(SearchText, DoesNotWalkBackForEveryMatch)
{
    const QString text = QString(300'000, u'x') + QStringLiteral("y");
    FindState state;
    EXPECT_EQ(SearchText(u'<' + text + u'>', in(SearchType::TextOnly, QStringLiteral("xy")), 1, state), 0);
    EXPECT_EQ(SearchText(u'<' + text + u'>', in(SearchType::TextOnly, QStringLiteral("x")), 1, state), 0);
}
struct MatchesRow {
    const char *text;
    FindOptions options;
    QList<qsizetype> places;
};

TEST(AllMatches, HoldsWhatTheFiltersLetThroughAndWhatOverlaps)
{
    FindOptions text = options(QStringLiteral("b"));
    text.type = SearchType::TextOnly;
    FindOptions tags = options(QStringLiteral("b"), Up); // a single character upwards is no matter here
    tags.type = SearchType::TagsOnly;
    const MatchesRow rows[] = {
        {"aaa", options(QStringLiteral("aa")), {0, 1}},
        {"cat category cat", word(QStringLiteral("cat")), {0, 13}},
        {"<b>ab</b>", text, {4}},
        {"<b>ab</b>", tags, {1, 7}},
        {"abc", options(QStringLiteral("x")), {}},
        {"", options(QStringLiteral("x")), {}},
    };
    for (const MatchesRow &row : rows)
        EXPECT_EQ(allMatches(QString::fromUtf8(row.text), row.options), row.places)
            << row.text << " / " << row.options.find.toStdString();
}

struct RoundRow {
    SearchDirection direction;
    FindState state;
    TextSelection selection;
    qsizetype index;
    bool wentRound;
};

TEST(StepRound, GoesOnAtTheOtherEnd)
{
    const FindState found{.NextPosition = 2, .FoundMatch = true};
    const QList<qsizetype> places{4, 10, 11, 20}; // of a text that is sought by two characters
    const RoundRow rows[] = {
        {Down, {}, {0, 0}, 0, false},   {Down, {}, {4, 2}, 1, false}, // a match is selected: the next one
        {Down, {}, {10, 2}, 2, false},                                // even if it overlaps
        {Down, {}, {20, 2}, 0, true},   {Down, {}, {30, 0}, 0, true},
        {Down, {}, {5, 0}, 0, false},                                 // the character in front of the caret, as ever
        {Down, {}, {6, 0}, 1, false},   {All, {}, {20, 2}, 0, false}, // a new search of all begins at the start
        {All, found, {20, 2}, 0, true}, {Up, {}, {4, 2}, 3, true},
        {Up, {}, {11, 2}, 1, false},    {Up, {}, {12, 0}, 1, false}, // it has to end in front of the selection
        {Up, {}, {13, 0}, 2, false},    {Up, {}, {0, 0}, 3, true},
    };
    for (const RoundRow &row : rows) {
        const auto step = stepRound(places, options(QStringLiteral("xx"), row.direction), row.state, row.selection);
        ASSERT_TRUE(step);
        EXPECT_EQ(step->index, row.index) << int(row.direction) << ' ' << row.selection.start;
        EXPECT_EQ(step->wentRound, row.wentRound) << int(row.direction) << ' ' << row.selection.start;
    }
    EXPECT_FALSE(stepRound({}, options(QStringLiteral("xx")), {}, {0, 0}));
}
} // namespace
