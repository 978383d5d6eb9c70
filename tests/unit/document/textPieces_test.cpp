#include "document/textPieces.h"

#include "unit/document/randomTexts.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace
{
TEST(TextPieces, GiveTheTextBack)
{
    EXPECT_TRUE(TextPieces().isEmpty());
    EXPECT_EQ(TextPieces().text(), QString());
    EXPECT_TRUE(TextPieces(QString(), {}).isEmpty());
    for (const qsizetype size : {1, 2, 4096, 16383, 16384, 16385, 100'000}) {
        const QString text(size, u'x'); // no place in it is marked
        const TextPieces pieces(text, {});
        EXPECT_FALSE(pieces.isEmpty());
        EXPECT_EQ(pieces.text(), text);
        EXPECT_TRUE(pieces.holds(text));
        EXPECT_FALSE(pieces.holds(text + u'x'));
        EXPECT_FALSE(pieces.holds(QStringView(text).chopped(1)));
        EXPECT_FALSE(pieces.holds(QString(size, u'y')));
    }
}

QString words(RandomTexts &random, int count)
{
    return random.text({QStringLiteral("<p>"), QStringLiteral("word "), QStringLiteral("\r\n"), QStringLiteral("&amp;"),
                        QStringLiteral("another ")},
                       count);
}

TEST(TextPieces, GiveTheTextBackWhateverItIsSimilarTo)
{
    RandomTexts random(20261122);
    QString text = words(random, 20'000);
    TextPieces pieces(text, {});
    for (int i = 0; i < 300; ++i) {
        for (int change = random.below(5); change >= 0; --change) {
            const int at = random.below(static_cast<int>(text.size()) + 1);
            text.replace(at, random.onceIn(20) ? random.below(60'000) : random.below(10), words(random, 20));
        }
        if (text.size() < 10'000)
            text += words(random, 20'000);
        pieces = TextPieces(text, random.onceIn(30) ? TextPieces() : pieces);
        ASSERT_EQ(pieces.text(), text);
        ASSERT_TRUE(pieces.holds(text));
    }
}

// Such as a word that is replaced all over a page.
TEST(TextPieces, ShareWhatStandsBetweenManyChanges)
{
    RandomTexts random(20261123);
    const QString text = words(random, 200'000);
    const TextPieces pieces(text, {});
    QString changed = text;
    for (qsizetype at = 0; at < changed.size(); at += 100'000)
        changed.insert(at, QStringLiteral("new"));
    const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    const TextPieces others(changed, pieces);
    const std::size_t taken = mallinfo2().uordblks + mallinfo2().hblkhd - before;
    EXPECT_LT(taken, text.size() * sizeof(QChar) / 4);
    EXPECT_EQ(others.text(), changed);
}
} // namespace
