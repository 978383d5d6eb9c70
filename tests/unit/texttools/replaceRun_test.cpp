#include "texttools/replaceRun.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

QString applied(QString text, const ReplaceRun::Change &change)
{
    return text.replace(change.start, change.length, change.text);
}

struct Row {
    const char *text;
    FindOptions options;
    const char *replacement;
    qsizetype start;
    const char *result;
    qsizetype count;
    qsizetype lastPlace;
};

FindOptions options(const char *find, SearchDirection direction = SearchDirection::All)
{
    return {.find = q(find), .direction = direction};
}

TEST(ReplaceRun, ReplacesEveryMatchOnce)
{
    FindOptions word = options("a");
    word.wholeWords = true;
    FindOptions tags = options("b");
    tags.type = SearchType::TagsOnly;
    FindOptions text = options("b");
    text.type = SearchType::TextOnly;
    const SearchDirection up = SearchDirection::Up;
    const Row rows[] = {
        {"banana", options("a"), "aa", 1, "baanaanaa", 3, 7}, // the new text is not found again
        {"banana", options("a"), "a", 1, "banana", 3, 5},     // the same text counts
        {"banana", options("A"), "", 1, "bnn", 3, 3},
        {"aaaa", options("aa"), "a", 1, "aa", 2, 1},
        {"banana", options("a"), "o", 4, "banono", 2, 5}, // from the start given
        {"banana", options("x"), "y", 1, "banana", 0, 0},
        {"banana", options("a", up), "aa", 6, "baanaanaa", 3, 1},
        {"banana", options("a", up), "o", 4, "bonona", 2, 1},
        {"abab", options("ab", up), "b", 4, "bb", 2, 0},
        // What was replaced takes part in what is asked of the next match.
        {"aa", word, "b ", 1, "aa", 0, 0},
        {"a a", word, "b", 1, "b b", 2, 2},
        {"<b>b", tags, "x>b", 1, "<x>b>b", 1, 1},
        {"<b b>b", tags, "x>", 1, "<x> b>b", 1, 1}, // the second is in no tag any more
        {"<i>b b", text, "<", 1, "<i>< <", 2, 5},   // a tag that does not end hides nothing
    };
    for (const Row &row : rows) {
        ReplaceRun run(q(row.text), row.options, q(row.replacement), row.start);
        while (run.advance())
            ;
        EXPECT_EQ(run.count(), row.count) << row.text << '/' << row.replacement;
        if (row.count == 0)
            continue;
        EXPECT_EQ(applied(q(row.text), run.change()), q(row.result)) << row.text << '/' << row.replacement;
        EXPECT_EQ(run.lastPlace(), row.lastPlace) << row.text << '/' << row.replacement;
    }
}

/// One match after the other in the text as it is by then: slow, and plainly what is meant.
QString replacedOneByOne(QString text, const FindOptions &options, const QString &replacement, qsizetype start)
{
    FindState state;
    while (const qsizetype place = SearchText(text, options, start, state)) {
        text.replace(place - 1, options.find.size(), replacement);
        start = options.direction == SearchDirection::Up ? place - 1 : place + replacement.size();
    }
    return text;
}

TEST(ReplaceRun, DoesWhatReplacingOneByOneDoes)
{
    QRandomGenerator random(7);
    const auto letters = [&](int most, const char *from) {
        QString text;
        for (int left = random.bounded(most + 1); left > 0; --left)
            text += QLatin1Char(from[random.bounded(6)]);
        return text;
    };
    int replaced = 0;
    for (int round = 0; round < 20'000; ++round) {
        FindOptions options{.find = letters(2, "ab <>a") + u'a'};
        options.direction = random.bounded(2) ? SearchDirection::Up : SearchDirection::Down;
        options.type = SearchType(random.bounded(3));
        options.matchCase = random.bounded(2);
        options.wholeWords = random.bounded(3) == 0;
        const QString text = letters(24, "aAb <>");
        const QString replacement = letters(3, "ab <>a");
        const qsizetype start = random.bounded(int(text.size()) + 1);
        ReplaceRun run(text, options, replacement, start);
        while (run.advance())
            ++replaced;
        EXPECT_EQ(run.count() ? applied(text, run.change()) : text, replacedOneByOne(text, options, replacement, start))
            << text.toStdString() << " | " << options.find.toStdString() << " | " << replacement.toStdString() << " | "
            << start << " direction " << int(options.direction) << " type " << int(options.type) << " words "
            << options.wholeWords << " case " << options.matchCase;
        if (HasFailure())
            break;
    }
    EXPECT_GT(replaced, 5000);
}

/// A pass takes a large text in several runs.
TEST(ReplaceRun, GoesOnWhereAnEarlierRunEnded)
{
    for (const SearchDirection direction : {SearchDirection::Down, SearchDirection::Up}) {
        const FindOptions order = options("ab", direction);
        QString text = q("ab-ab-ab-ab");
        qsizetype start = direction == SearchDirection::Up ? text.size() : 1;
        int runs = 0;
        for (; runs < 9; ++runs) {
            ReplaceRun run(text, order, q("abab"), start);
            if (!run.advance())
                break;
            text = applied(text, run.change());
            start = run.nextStart();
        }
        EXPECT_EQ(runs, 4);
        EXPECT_EQ(text, q("abab-abab-abab-abab"));
    }
}
} // namespace
