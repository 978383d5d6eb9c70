#include "common/patchedText.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
TEST(PatchedText, StartsEmpty)
{
    PatchedText text;
    EXPECT_EQ(text.text(), QString());
    EXPECT_EQ(text.length(), 0);
    text.replace(0, 0, u"ab");
    EXPECT_EQ(text.text(), QStringLiteral("ab"));
}

TEST(PatchedText, SharesWhatItWasGivenUntilItChanges)
{
    const QString given = QStringLiteral("some text").repeated(10);
    PatchedText text;
    text.reset(given);
    EXPECT_EQ(text.text().constData(), given.constData());
    text.replace(0, 4, u"any");
    EXPECT_EQ(text.text().left(8), QStringLiteral("any text"));
    EXPECT_EQ(given.left(9), QStringLiteral("some text")) << "what was given stays as it was";
    const QString taken = text.text();
    text.replace(0, 3, u"no");
    EXPECT_EQ(text.text().left(7), QStringLiteral("no text"));
    EXPECT_EQ(taken.left(8), QStringLiteral("any text")) << "what was taken stays as it was";
}

TEST(PatchedText, GivesTheSameStringWhileUnchanged)
{
    PatchedText text;
    text.reset(QStringLiteral("abc"));
    text.replace(1, 1, u"xyz");
    const QString first = text.text();
    EXPECT_EQ(text.text().constData(), first.constData());
}

struct MidRow {
    qsizetype position;
    qsizetype length;
    QString result;
};

TEST(PatchedText, CutsAPartAcrossAnUnsettledPatch)
{
    PatchedText text;
    text.reset(QStringLiteral("0123456789"));
    text.replace(3, 4, u"ab"); // 012ab789
    const MidRow rows[] = {
        {0, 3, QStringLiteral("012")},        {2, 2, QStringLiteral("2a")},  {3, 2, QStringLiteral("ab")},
        {4, 2, QStringLiteral("b7")},         {5, 3, QStringLiteral("789")}, {0, 8, QStringLiteral("012ab789")},
        {2, 4, QStringLiteral("2ab7")},       {8, 5, QStringLiteral("")},    {7, 9, QStringLiteral("9")},
        {0, 100, QStringLiteral("012ab789")}, {4, 0, QStringLiteral("")},
    };
    for (const MidRow &row : rows)
        EXPECT_EQ(text.mid(row.position, row.length), row.result) << row.position << ' ' << row.length;
    EXPECT_EQ(text.length(), 8);
}

TEST(PatchedText, AgreesWithAStringAfterAnyEdits)
{
    QRandomGenerator random(99);
    QString model = QStringLiteral("abcdefghij").repeated(3000); // long enough for edits that are far from one another
    PatchedText text;
    text.reset(model);
    QString held;
    for (int step = 0; step < 4000; ++step) {
        const bool near = random.bounded(4) != 0;
        const auto size = static_cast<int>(model.size());
        const int position = near ? std::min(size, 500 + random.bounded(60)) : random.bounded(size + 1);
        const int removed = std::min(size - position, random.bounded(step % 50 ? 9 : 9000));
        const QString inserted = QString(random.bounded(step % 50 ? 9 : 8900), QChar(u'A' + step % 26));
        text.replace(position, removed, inserted);
        model.replace(position, removed, inserted);
        ASSERT_EQ(text.length(), model.size());
        const int from = random.bounded(static_cast<int>(model.size()) + 1);
        ASSERT_EQ(text.mid(from, 50), model.mid(from, 50)) << step;
        if (step % 17 == 0) {
            ASSERT_EQ(text.text(), model) << step;
        }
        if (step % 34 == 0)
            held = text.text(); // somebody else keeps it, so that it must not be changed in place
    }
    EXPECT_EQ(text.text(), model);
    EXPECT_GT(model.size(), 5000);
}

TEST(PatchedText, TakesManyEditsFromTheEndToTheStart)
{
    QString model = QStringLiteral("word ").repeated(40000);
    PatchedText text;
    text.reset(model);
    for (qsizetype i = model.size() - 5; i >= 0; i -= 5)
        text.replace(i, 4, u"a");
    EXPECT_EQ(text.text(), QStringLiteral("a ").repeated(40000));
}
} // namespace
