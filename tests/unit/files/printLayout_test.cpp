#include "common/tags.h"
#include "files/printLayout.h"

#include "surface/editSurface.h"

#include <gtest/gtest.h>

namespace
{
/// Every character is as wide, so that widths are counts.
qreal counted(const QString &text)
{
    return static_cast<qreal>(text.size());
}

QStringList broken(const QString &line, int width)
{
    QStringList parts;
    for (const LinePart &part : brokenLine(line, width, counted))
        parts.append(line.mid(part.start, part.length));
    return parts;
}

TEST(BrokenLine, BreaksAtBlanksWithinTheWidth)
{
    EXPECT_EQ(broken(QStringLiteral("one two three"), 20), QStringList{QStringLiteral("one two three")});
    EXPECT_EQ(broken(QStringLiteral("one two three"), 13), QStringList{QStringLiteral("one two three")});
    EXPECT_EQ(broken(QStringLiteral("one two three"), 12),
              (QStringList{QStringLiteral("one two"), QStringLiteral("three")}));
    EXPECT_EQ(broken(QStringLiteral("one two three"), 7),
              (QStringList{QStringLiteral("one two"), QStringLiteral("three")}));
    EXPECT_EQ(broken(QStringLiteral("one two three"), 6),
              (QStringList{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")}));
}

TEST(BrokenLine, BreaksBetweenCharactersWhereThereIsNoBlank)
{
    EXPECT_EQ(broken(QStringLiteral("abcdefgh"), 3),
              (QStringList{QStringLiteral("abc"), QStringLiteral("def"), QStringLiteral("gh")}));
    EXPECT_EQ(broken(QStringLiteral("    abcdefgh"), 8),
              (QStringList{QStringLiteral("    abcd"), QStringLiteral("efgh")})); // not behind its indentation
    EXPECT_EQ(broken(QStringLiteral("abc"), 0),
              (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
}

TEST(BrokenLine, LosesNothingButBlanksAtItsBreaks)
{
    EXPECT_EQ(broken({}, 10), QStringList{QString()});
    EXPECT_EQ(broken(QStringLiteral("ab     cd"), 4), (QStringList{QStringLiteral("ab  "), QStringLiteral("cd")}));
    EXPECT_EQ(broken(QStringLiteral("ab        "), 4), QStringList{QStringLiteral("ab  ")});
}

TEST(BrokenLine, HoldsWhereCharactersAreWiderThanTheAverage)
{
    const auto wide = [](const QString &text) {
        return static_cast<qreal>(text.size() + 3 * text.count(u'W')); // as wide as four others
    };
    const QString line = QStringLiteral("WWWW aaaa");
    QStringList parts;
    for (const LinePart &part : brokenLine(line, 10, wide)) {
        parts.append(line.mid(part.start, part.length));
        EXPECT_LE(wide(parts.last()), 10);
    }
    EXPECT_EQ(parts, (QStringList{QStringLiteral("WW"), QStringLiteral("WW"), QStringLiteral("aaaa")}));
}

TEST(BrokenLine, IsQuickForAMinifiedPage)
{
    const QString line(2'000'000, u'x');
    EXPECT_EQ(brokenLine(line, 100, counted).size(), 20'000);
}

TEST(WithoutTabs, FillsUpToTheNextStop)
{
    EXPECT_EQ(withoutTabs(QStringLiteral("\tx"), 4), QStringLiteral("    x"));
    EXPECT_EQ(withoutTabs(QStringLiteral("ab\tx\ty"), 4), QStringLiteral("ab  x   y"));
    EXPECT_EQ(withoutTabs(QStringLiteral("abcd\tx"), 4), QStringLiteral("abcd    x"));
}

TEST(CountDocumentLines, IsOneMoreThanTheCarriageReturns)
{
    EXPECT_EQ(CountDocumentLines({}), 1);
    EXPECT_EQ(CountDocumentLines(QStringLiteral("one")), 1);
    EXPECT_EQ(CountDocumentLines(QStringLiteral("one\r\ntwo\r\n")), 3);
}

class PagesTest : public testing::Test
{
protected:
    QList<PrintedPage> pages(const QString &text, const PrintChoices &choices = {})
    {
        surface.setText(text);
        return laidOutPages(surface, paper, choices);
    }

    EditSurface surface;
    Paper paper{.size = {20, 5}, .lineHeight = 1, .textWidth = counted}; // three lines over the foot
};

TEST_F(PagesTest, HoldTheLinesInOrderAsManyAsFit)
{
    const QList<PrintedPage> laidOut = pages(QStringLiteral("1\r\n2\r\n3\r\n4"));
    ASSERT_EQ(laidOut.size(), 2);
    ASSERT_EQ(laidOut[0].lines.size(), 3);
    EXPECT_EQ(laidOut[0].lines[2].text, QStringLiteral("3"));
    ASSERT_EQ(laidOut[1].lines.size(), 1);
    EXPECT_EQ(laidOut[1].lines[0].text, QStringLiteral("4"));
    EXPECT_EQ(laidOut[1].lines[0].number, 4);
}

TEST_F(PagesTest, OfAnEmptyDocumentAreOneWithOneEmptyLine)
{
    const QList<PrintedPage> laidOut = pages({});
    ASSERT_EQ(laidOut.size(), 1);
    ASSERT_EQ(laidOut[0].lines.size(), 1);
    EXPECT_EQ(laidOut[0].lines[0].text, QString());
}

TEST_F(PagesTest, NumberASourceLineOnlyWhereItBegins)
{
    const QList<PrintedPage> laidOut = pages(QStringLiteral("a long line of the source\r\nb"));
    ASSERT_EQ(laidOut.size(), 1);
    ASSERT_EQ(laidOut[0].lines.size(), 3);
    EXPECT_EQ(laidOut[0].lines[0].text, QStringLiteral("a long line of the"));
    EXPECT_EQ(laidOut[0].lines[0].number, 1);
    EXPECT_EQ(laidOut[0].lines[1].text, QStringLiteral("source"));
    EXPECT_EQ(laidOut[0].lines[1].number, 0);
    EXPECT_EQ(laidOut[0].lines[2].number, 2);
}

TEST_F(PagesTest, LeaveRoomForLineNumbersWhereTheyAreWanted)
{
    // One digit and two more of them: 17 characters are left, into which the words no longer go.
    const QList<PrintedPage> laidOut = pages(QStringLiteral("a long line of the source"), {.lineNumbers = true});
    EXPECT_EQ(laidOut[0].lines[0].text, QStringLiteral("a long line of"));
    EXPECT_EQ(laidOut[0].lines[1].text, QStringLiteral("the source"));
}

TEST_F(PagesTest, TakeTheColoursOfTheSource)
{
    surface.setText(QStringLiteral("x <b> y"));
    surface.setFormat(2, 3, {.colour = 0x800000, .bold = true, .underline = false});
    const QList<PrintedPage> laidOut = laidOutPages(surface, paper, {.colours = true});
    const QList<FormatRange> &formats = laidOut[0].lines[0].formats;
    ASSERT_EQ(formats.size(), 3);
    EXPECT_EQ(formats[1].start, 2);
    EXPECT_EQ(formats[1].length, 3);
    EXPECT_EQ(formats[1].format.colour, 0x800000U);
    EXPECT_EQ(formats[1].format.bold, true);
    EXPECT_EQ(formats[2].start, 5);
    EXPECT_EQ(formats[2].length, 2);
}

// A tab is one character of the source and several on paper.
TEST_F(PagesTest, ColoursALineWithTabs)
{
    surface.setText(QStringLiteral("\tx <b>\ty"));
    surface.setFormat(3, 3, {.colour = 0x800000, .bold = true, .underline = false});
    const QList<PrintedPage> laidOut = laidOutPages(surface, paper, {.colours = true, .tabWidth = 4});
    const PrintedLine &line = laidOut[0].lines[0];
    EXPECT_EQ(line.text, QStringLiteral("    x <b>   y"));
    ASSERT_EQ(line.formats.size(), 3);
    EXPECT_EQ(line.formats[0].length, 6);
    EXPECT_EQ(line.formats[1].start, 6);
    EXPECT_EQ(line.formats[1].length, 3);
    EXPECT_EQ(line.formats[1].format.bold, true);
    EXPECT_EQ(line.formats[2].start, 9);
    EXPECT_EQ(line.formats[2].length, 4);
}

TEST(WithoutTags, TakesOutEveryTag)
{
    EXPECT_EQ(withoutTags(QStringLiteral("<p>One <b>two</b></p>\r\n")), QStringLiteral("One two\r\n"));
    EXPECT_EQ(withoutTags(QStringLiteral("no tags")), QStringLiteral("no tags"));
    EXPECT_EQ(withoutTags({}), QString());
    EXPECT_EQ(withoutTags(QStringLiteral("<!-- a > b -->c")), QStringLiteral(" b -->c")); // a tag ends at its first ">"
    EXPECT_EQ(withoutTags(QStringLiteral("<<b>x")), QStringLiteral("x"));
    EXPECT_EQ(withoutTags(QStringLiteral("2 > 1")), QStringLiteral("2 > 1"));
}

TEST(WithoutTags, EndsAtATagThatIsNeverClosed)
{
    EXPECT_EQ(withoutTags(QStringLiteral("<i>a</i> <b and c")), QStringLiteral("a <b and c"));
    EXPECT_EQ(withoutTags(QStringLiteral("a < b <")), QStringLiteral("a < b <"));
}
} // namespace
