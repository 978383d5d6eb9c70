#include "common/lineIndex.h"

#include <QRandomGenerator>
#include <QString>
#include <gtest/gtest.h>

namespace
{
LineIndex indexOf(const QString &text)
{
    LineIndex index;
    index.reset(text);
    return index;
}

TEST(LineIndex, AnEmptyTextHasOneLine)
{
    const LineIndex index;
    EXPECT_EQ(index.lineCount(), 1);
    EXPECT_EQ(index.length(), 0);
    EXPECT_EQ(index.narrowLength(), 0);
    EXPECT_EQ(index.lineStart(0), 0);
    EXPECT_EQ(index.lineEnd(0), 0);
    EXPECT_EQ(index.lineAt(7), 0);
    EXPECT_EQ(index.toNarrow(7), 0);
    EXPECT_EQ(index.toWide(7), 0);
}

TEST(LineIndex, StaysAsItWasWhereABreakStandsAlone)
{
    LineIndex index = indexOf(QStringLiteral("ab\r\nc"));
    for (const char *text : {"\n", "\r", "a\r\nb\n", "\r\n\r", "\n\r", "\r\r\n", "a\r\n\n"}) {
        EXPECT_FALSE(index.reset(QString::fromLatin1(text))) << text;
        EXPECT_EQ(index.lineCount(), 2) << text;
        EXPECT_EQ(index.lineStart(1), 4) << text;
        EXPECT_EQ(index.length(), 5) << text;
    }
    EXPECT_TRUE(index.reset(QStringLiteral("a\r\n\r\n")));
    EXPECT_EQ(index.lineCount(), 3);
    EXPECT_EQ(index.lineStart(2), 5);
}

TEST(LineIndex, KnowsWhereLinesStartAndEnd)
{
    const LineIndex index = indexOf(QStringLiteral("ab\r\n\r\ncde\r\n"));
    const qsizetype starts[] = {0, 4, 6, 11};
    const qsizetype ends[] = {2, 4, 9, 11};
    ASSERT_EQ(index.lineCount(), 4);
    for (qsizetype line = 0; line < 4; ++line) {
        EXPECT_EQ(index.lineStart(line), starts[line]);
        EXPECT_EQ(index.lineEnd(line), ends[line]);
    }
    EXPECT_EQ(index.length(), 11);
    EXPECT_EQ(index.narrowLength(), 8);
}

TEST(LineIndex, MapsBothCountingsAndSnapsBeforeABreak)
{
    struct Row {
        qsizetype wide, narrow, back, line;
    };
    const LineIndex index = indexOf(QStringLiteral("ab\r\n\r\ncd"));
    const Row rows[] = {
        {-1, 0, 0, 0}, {0, 0, 0, 0}, {1, 1, 1, 0}, {2, 2, 2, 0}, {3, 2, 2, 0}, {4, 3, 4, 1},
        {5, 3, 4, 1},  {6, 4, 6, 2}, {7, 5, 7, 2}, {8, 6, 8, 2}, {9, 6, 8, 2}, {1000, 6, 8, 2},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(index.toNarrow(row.wide), row.narrow) << row.wide;
        EXPECT_EQ(index.toWide(row.narrow), row.back) << row.wide;
        EXPECT_EQ(index.snapped(row.wide), row.back) << row.wide;
        EXPECT_EQ(index.lineAt(row.wide), row.line) << row.wide;
    }
    EXPECT_EQ(index.toWide(-1), 0);
    EXPECT_EQ(index.toWide(1000), 8);
}

struct EditRow {
    QString before;
    qsizetype position;
    qsizetype removed;
    QString inserted;
    std::vector<qsizetype> starts;
};

TEST(LineIndex, FollowsEdits)
{
    const EditRow rows[] = {
        {QStringLiteral(""), 0, 0, QStringLiteral("a"), {0}},
        {QStringLiteral(""), 0, 0, QStringLiteral("\r\n"), {0, 2}},
        {QStringLiteral("ab"), 1, 0, QStringLiteral("\r\n"), {0, 3}},
        {QStringLiteral("a\r\nb"), 0, 0, QStringLiteral("xy"), {0, 5}},
        {QStringLiteral("a\r\nb"), 3, 1, QStringLiteral("xyz"), {0, 3}},
        {QStringLiteral("a\r\nb"), 1, 2, QStringLiteral(""), {0}},
        {QStringLiteral("a\r\nb\r\nc\r\nd"), 1, 5, QStringLiteral("\r\n\r\n\r\n"), {0, 3, 5, 7, 10}},
        {QStringLiteral("a\r\nb\r\nc"), 0, 7, QStringLiteral(""), {0}},
        {QStringLiteral("a\r\nb"), 4, 0, QStringLiteral("\r\n"), {0, 3, 6}},
    };
    for (const EditRow &row : rows) {
        LineIndex index = indexOf(row.before);
        index.replace(row.position, row.removed, row.inserted);
        ASSERT_EQ(index.lineCount(), static_cast<qsizetype>(row.starts.size()));
        for (size_t line = 0; line < row.starts.size(); ++line)
            EXPECT_EQ(index.lineStart(static_cast<qsizetype>(line)), row.starts[line]);
    }
}

/// A text of letters and breaks, at least every second character a break on the average.
QString randomText(QRandomGenerator &random, int pieces)
{
    QString text;
    for (int i = 0; i < pieces; ++i)
        text += random.bounded(2) ? QStringLiteral("\r\n") : QStringLiteral("x");
    return text;
}

qsizetype randomPlace(QRandomGenerator &random, const QString &text)
{
    const qsizetype place = random.bounded(static_cast<int>(text.size()) + 1);
    return place > 0 && place < text.size() && text[place] == u'\n' ? place - 1 : place;
}

TEST(LineIndex, AgreesWithACountAnewAfterAnyEdits)
{
    QRandomGenerator random(4711);
    QString text = randomText(random, 200);
    LineIndex index = indexOf(text);
    for (int step = 0; step < 3000; ++step) {
        const qsizetype one = randomPlace(random, text);
        const qsizetype other = step % 3 ? one : randomPlace(random, text);
        const QString inserted = randomText(random, random.bounded(6));
        const qsizetype start = std::min(one, other);
        const qsizetype removed = std::max(one, other) - start;
        if (removed > 40)
            continue;
        index.replace(start, removed, inserted);
        text.replace(start, removed, inserted);
        const LineIndex fresh = indexOf(text);
        ASSERT_EQ(index.lineCount(), fresh.lineCount());
        ASSERT_EQ(index.length(), text.size());
        for (qsizetype line = 0; line < fresh.lineCount(); ++line)
            ASSERT_EQ(index.lineStart(line), fresh.lineStart(line)) << step;
    }
    EXPECT_GT(index.lineCount(), 100);
}

TEST(LineIndex, CountsAsAWalkThroughTheTextDoes)
{
    QRandomGenerator random(42);
    const QString text = randomText(random, 500);
    const LineIndex index = indexOf(text);
    qsizetype narrow = 0;
    qsizetype line = 0;
    for (qsizetype wide = 0; wide <= text.size(); ++wide) {
        if (wide > 0 && text[wide - 1] == u'\n')
            ++line;
        const bool inBreak = wide > 0 && wide < text.size() && text[wide] == u'\n';
        ASSERT_EQ(index.lineAt(wide), line);
        ASSERT_EQ(index.toNarrow(wide), inBreak ? narrow - 1 : narrow);
        if (!inBreak) {
            ASSERT_EQ(index.toWide(narrow), wide);
            ++narrow;
        }
    }
}
} // namespace
