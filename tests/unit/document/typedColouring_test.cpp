#include "document/typedColouring.h"

#include <gtest/gtest.h>

namespace
{
const ColouringOptions Options{false, false, 10, 1, 2, 3, 4, 5, 6}; // the switches are not looked at
const TextFormat Nothing;
const TextFormat Tag{1, true, {}};
const TextFormat Attribute{2, false, {}};
const TextFormat AttributeColour{2, {}, {}};
const TextFormat Value{3, {}, {}};

TextPart partsOf(const QString &text, qsizetype *charactersRead = nullptr)
{
    return [text, charactersRead](qsizetype start, qsizetype length) {
        if (charactersRead)
            *charactersRead += length;
        return text.mid(start, length);
    };
}

/// A text under a caret that types into it as the edit surface would.
class Typist
{
public:
    explicit Typist(const QString &text = QString(), qsizetype caret = 0) : m_text(text), m_caret(caret) {}

    TypedResult type(const char *character)
    {
        const QString typed = QString::fromUtf8(character);
        const TypedResult result = m_colouring.keyPress(typed, m_caret, partsOf(m_text), Options);
        m_text.insert(m_caret, typed);
        m_caret += typed.size();
        return result;
    }
    TextFormat formatOf(const char *character) { return type(character).format; }
    void typeAll(const char *text)
    {
        for (const char *c = text; *c; ++c)
            type(std::string(1, *c).c_str());
    }
    void moveTo(qsizetype caret) { m_caret = caret; }
    TypedColouring &colouring() { return m_colouring; }

private:
    QString m_text;
    qsizetype m_caret;
    TypedColouring m_colouring;
};

TEST(TypedColouring, FollowsATagAsItIsTyped)
{
    Typist typist;
    EXPECT_EQ(typist.type("x"), TypedResult());
    EXPECT_EQ(typist.formatOf("<"), Tag);
    EXPECT_TRUE(typist.colouring().TagOpen());
    EXPECT_EQ(typist.formatOf("a"), Nothing);
    EXPECT_EQ(typist.formatOf(" "), Attribute);
    EXPECT_TRUE(typist.colouring().AttributeOpen());
    EXPECT_EQ(typist.formatOf("b"), Nothing);
    EXPECT_EQ(typist.formatOf("="), Value);
    EXPECT_TRUE(typist.colouring().ValueOpen());
    EXPECT_EQ(typist.formatOf("c"), Nothing);
    EXPECT_EQ(typist.formatOf("="), Nothing); // a value is open already
    EXPECT_EQ(typist.formatOf(" "), AttributeColour);
    EXPECT_FALSE(typist.colouring().ValueOpen());
    const TypedResult closing = typist.type(">");
    EXPECT_TRUE(closing.writesClosingBracket);
    EXPECT_EQ(closing.format, (TextFormat{WindowTextColour, false, {}}));
    EXPECT_FALSE(typist.colouring().TagOpen());
    EXPECT_FALSE(typist.colouring().AttributeOpen());
    EXPECT_FALSE(typist.colouring().ValueOpen());
    EXPECT_EQ(typist.type("y"), TypedResult());
    EXPECT_EQ(typist.type(" "), TypedResult());
    EXPECT_EQ(typist.type("="), TypedResult());
    EXPECT_EQ(typist.type("\""), TypedResult());
}

TEST(TypedColouring, IsMeantToOpenTheValueAgainWithItsClosingQuote)
{
    Typist typist;
    typist.typeAll("<a b");
    EXPECT_EQ(typist.formatOf("="), Value);
    EXPECT_EQ(typist.formatOf("\""), Value); // closes what "=" opened, and opens it again
    EXPECT_TRUE(typist.colouring().ValueOpen());
    typist.typeAll("c");
    EXPECT_EQ(typist.formatOf("\""), Value);
    EXPECT_TRUE(typist.colouring().ValueOpen());
    EXPECT_EQ(typist.formatOf(" "), AttributeColour); // the blank only closes it
    EXPECT_FALSE(typist.colouring().ValueOpen());
}

TEST(TypedColouring, ClosesAValueForGoodWhereTheTextIsNoTag)
{
    Typist typist(QStringLiteral("<a b"), 4);
    EXPECT_EQ(typist.formatOf("="), Value); // by the text, no "<" having been typed
    EXPECT_FALSE(typist.colouring().TagOpen());
    typist.colouring().keyPress(u"x", 5, partsOf(QStringLiteral("<a b=")), Options);
    const TypedResult result = typist.colouring().keyPress(u"\"", 6, partsOf(QStringLiteral("<>xxxx")), Options);
    EXPECT_EQ(result.format, AttributeColour);
    EXPECT_FALSE(typist.colouring().ValueOpen());
}

TEST(TypedColouring, ForgetsItsFlagsWhenTheCaretMoved)
{
    Typist typist(QStringLiteral("<p>0123456789"), 5);
    typist.typeAll("<a b=");
    EXPECT_TRUE(typist.colouring().TagOpen());
    EXPECT_TRUE(typist.colouring().ValueOpen());
    typist.moveTo(4);
    EXPECT_EQ(typist.formatOf(" "), Nothing); // behind "<p>0" there is no tag
    EXPECT_FALSE(typist.colouring().TagOpen());
    EXPECT_FALSE(typist.colouring().AttributeOpen());
    EXPECT_FALSE(typist.colouring().ValueOpen());
    EXPECT_EQ(typist.colouring().LastKeyCaret(), 4);
}

TEST(TypedColouring, KeepsItsFlagsThroughCharactersWithoutMeaning)
{
    Typist typist;
    typist.typeAll("<");
    typist.colouring().keyPress(u"\b", 1, partsOf(QStringLiteral("<")), Options);
    EXPECT_TRUE(typist.colouring().TagOpen());
    typist.colouring().keyPress(u"a", 0, partsOf(QString()), Options); // the "<" is gone, and the caret with it
    EXPECT_FALSE(typist.colouring().TagOpen());
}

TEST(TypedColouring, TagOpenCountsWhereTheTextIsNoTagAnyMore)
{
    Typist typist;
    typist.typeAll("<a");
    const TypedResult result = typist.colouring().keyPress(u" ", 2, partsOf(QStringLiteral(">>")), Options);
    EXPECT_EQ(result.format, Attribute);
}

TEST(TypedColouring, EnterAndArrowsLeaveTheTagButKeepTheWeight)
{
    Typist typist;
    typist.typeAll("<a b=");
    EXPECT_EQ(typist.colouring().leaveTag(), (TextFormat{WindowTextColour, {}, {}}));
    EXPECT_FALSE(typist.colouring().TagOpen());
    EXPECT_FALSE(typist.colouring().AttributeOpen());
    EXPECT_FALSE(typist.colouring().ValueOpen());
}

TEST(CaretInsideTag, LooksBackToTheNearestBracket)
{
    struct Row {
        const char *text;
        qsizetype caret;
        bool inside;
    };
    const Row rows[] = {
        {"", 0, false},     {"<", 0, false},       {"<", 1, true},       {"<a", 2, true},   {"<a>", 3, false},
        {"<a> ", 4, false}, {"<a><b", 5, true},    {"<a <b", 5, true},   {"a>b", 3, false}, {"abc", 3, false},
        {"<a>", 2, true},   {"x <a b=c", 8, true}, {"<a\r\nb", 5, true},
    };
    for (const Row &row : rows)
        EXPECT_EQ(CaretInsideTag(partsOf(QString::fromUtf8(row.text)), row.caret, u" "), row.inside) << row.text;
    EXPECT_FALSE(CaretInsideTag(partsOf(QStringLiteral("<a")), 2, u">"));
}

TEST(CaretInsideTag, ReadsNoFurtherBackThanItMust)
{
    const QString filler(1000000, u'x');
    qsizetype read = 0;
    EXPECT_TRUE(CaretInsideTag(partsOf(filler + QStringLiteral("<a b"), &read), 1000004, u" "));
    EXPECT_LE(read, 200);
    read = 0;
    EXPECT_TRUE(CaretInsideTag(partsOf(QChar(u'<') + filler, &read), 1000001, u" "));
    EXPECT_EQ(read, 1000001); // each character once
    read = 0;
    EXPECT_FALSE(CaretInsideTag(partsOf(filler, &read), 1000000, u" "));
    EXPECT_EQ(read, 1000000);
}

TEST(TypedColouring, ReadsNoTextForLetters)
{
    TypedColouring colouring;
    qsizetype read = 0;
    const TextPart text = partsOf(QStringLiteral("<a b=c"), &read);
    for (const char16_t *typed : {u"x", u"<", u">", u"\r", u"'", u"-"})
        colouring.keyPress(typed, 3, text, Options);
    EXPECT_EQ(read, 0);
}
} // namespace
