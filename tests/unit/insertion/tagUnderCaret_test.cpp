#include "insertion/tagUnderCaret.h"

#include <gtest/gtest.h>

namespace
{
const QString ImageWord = QStringLiteral("<img ");
const QStringList Known{QStringLiteral("src"), QStringLiteral("width")};

std::optional<TagUnderCaret> read(const QString &text, qsizetype selStart, qsizetype selLength = 0)
{
    return ReadTagUnderCaret(text, selStart, selLength, ImageWord, Known);
}
} // namespace

TEST(TagUnderCaret, takesKnownAttributesOutAndKeepsTheRest)
{
    const auto tag = read(QStringLiteral("ab<IMG onclick=\"go()\" SRC=\"A.gif\" width=\"5\" alt=\"\">"), 6);
    ASSERT_TRUE(tag);
    EXPECT_EQ(tag->value(QStringLiteral("src")), QStringLiteral("A.gif"));
    EXPECT_EQ(tag->value(QStringLiteral("width")), QStringLiteral("5"));
    EXPECT_EQ(tag->leftoverAttributes, QStringLiteral(" onclick=\"go()\" alt=\"\""));
    EXPECT_EQ(tag->start, 2);
    EXPECT_EQ(tag->length, 49);
}

TEST(TagUnderCaret, belongsToACaretRightBehindEitherBracket)
{
    const QString text = QStringLiteral("<img src=\"a\"> b"); // the ">" is the 13th character
    EXPECT_FALSE(read(text, 0)) << "the very start";
    EXPECT_TRUE(read(text, 1)) << "behind the <";
    EXPECT_TRUE(read(text, 13)) << "behind the >";
    EXPECT_FALSE(read(text, 14)) << "no > from there on";
}

TEST(TagUnderCaret, reachesOverPlainTextToTheNextBracketByIntent)
{
    const auto tag = read(QStringLiteral("<img src=\"a\">word<b>"), 15);
    ASSERT_TRUE(tag);
    EXPECT_EQ(tag->value(QStringLiteral("src")), QStringLiteral("a"));
    EXPECT_EQ(tag->leftoverAttributes, QStringLiteral(">word<b"));
    EXPECT_EQ(tag->start, 0);
    EXPECT_EQ(tag->length, 20);
}

TEST(TagUnderCaret, isNotReadWhereTextIsSelectedOrTheTagIsAnother)
{
    EXPECT_FALSE(read(QStringLiteral("<img src=\"a\">"), 3, 1));
    EXPECT_FALSE(read(QStringLiteral("<image src=\"a\">"), 3));
    EXPECT_FALSE(read(QStringLiteral("<img\r\nsrc=\"a\">"), 3)) << "no blank behind the word";
    EXPECT_FALSE(read(QStringLiteral("<img src=\"a\"\r\nwidth=\"5\">"), 3)) << "a tag on two lines";
    EXPECT_FALSE(read(QStringLiteral("img src=\"a\">"), 3));
    EXPECT_FALSE(read(QStringLiteral("<img src=\"a\""), 3));
}

TEST(TagUnderCaret, leavesWhatItDoesNotRecognise)
{
    const auto tag = read(QStringLiteral("<img src=a width='5' src = \"b\" width=\"\">"), 3);
    ASSERT_TRUE(tag);
    EXPECT_TRUE(tag->values.isEmpty());
    EXPECT_EQ(tag->leftoverAttributes, QStringLiteral(" src=a width='5' src = \"b\" width=\"\""));
}
