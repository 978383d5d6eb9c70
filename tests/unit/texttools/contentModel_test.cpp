#include "texttools/contentModel.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace
{
NameSet letter(const QString &symbol)
{
    NameSet set;
    if (symbol.size() == 1)
        set.set(symbol[0].unicode());
    return set;
}

/// What a model says of children, each a letter: "ok", "no X" at the first that does not fit, or "short" at an early
/// end.
std::string verdict(const char *model, const char *children)
{
    const ContentModel read = ContentModel::read(QString::fromLatin1(model), letter);
    if (!read.judged())
        return "not judged";
    ContentModel::State state = read.start();
    for (const char *child = children; *child; ++child) {
        const ContentModel::Match match = read.match(state, *child);
        if (!match.accepted)
            return std::string(match.transparent ? "ask " : "no ") + *child;
        state = match.state;
    }
    return read.mayEnd(state) ? "ok" : "short";
}

struct Row {
    const char *model;
    const char *children;
    const char *verdict;
};

TEST(ContentModel, SaysWhatMayStandAndInWhatOrder)
{
    const Row rows[] = {
        {"", "", "ok"},
        {"", "a", "no a"},
        {"a", "", "short"},
        {"a", "a", "ok"},
        {"a", "aa", "no a"},
        {"a?", "", "ok"},
        {"a*", "aaa", "ok"},
        {"a+", "", "short"},
        {"a+", "aa", "ok"},
        {"(a, b)", "ab", "ok"},
        {"(a, b)", "ba", "no b"},
        {"(a, b)", "a", "short"},
        {"(a | b)*", "abba", "ok"},
        {"(a?, b*, c)", "bbc", "ok"},
        {"(a?, b*, c)", "abca", "no a"},
        {"((a+, b+)*)", "aabab", "ok"},
        {"((a+, b+)*)", "aba", "short"},
        {"((a+, b+)*)", "b", "no b"},
        {"(a, #transparent*)", "ax", "ask x"},
        {"(a, ", "a", "not judged"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(verdict(row.model, row.children), row.verdict) << row.model << " of " << row.children;
}

TEST(ContentModel, GoesOnBehindWhatTheParentMayHold)
{
    const ContentModel model = ContentModel::read(QStringLiteral("(a*, #transparent*)"), letter);
    const ContentModel::Match behind = model.matchTransparent(model.match(model.start(), 'a').state);
    EXPECT_TRUE(behind.accepted);
    EXPECT_FALSE(model.match(behind.state, 'a').accepted);
    EXPECT_TRUE(model.matchTransparent(behind.state).accepted);
}

TEST(ContentModel, IsNotJudgedWithMorePlacesThanItCanCount)
{
    EXPECT_FALSE(ContentModel::read(QStringList(61, QStringLiteral("a")).join(u'|'), letter).judged());
    EXPECT_TRUE(ContentModel::read(QStringList(60, QStringLiteral("a")).join(u'|'), letter).judged());
}
} // namespace
