#include "document/syntaxScanner.h"

#include "unit/document/scanHelpers.h"

#include <gmock/gmock.h>

namespace
{
struct LookRow {
    const char *text;
    const char *look; ///< one letter a character, see lookOf
};

std::string lookAfterPass(const char *text, const ColouringOptions &options = {}, int cancelAt = 0)
{
    const QString string = QString::fromUtf8(text);
    SyntaxScanner scanner(string, options);
    scanAll(scanner, false, cancelAt);
    return lookOf(formatsAfter(string, scanner, options, {0x123456, true, true}), options);
}

template <std::size_t Size>
void expectLooks(const LookRow (&rows)[Size])
{
    for (const LookRow &row : rows)
        EXPECT_EQ(lookAfterPass(row.text), row.look) << row.text;
}

int placesOf(const char *text)
{
    SyntaxScanner scanner(QString::fromUtf8(text), {});
    int places = 0;
    while (scanner.advance())
        ++places;
    return places;
}

TEST(SyntaxScanner, ColoursTagsFromAngleToAngle)
{
    const LookRow rows[] = {
        {"", ""},
        {"x", "."},
        {"ab", ".."},
        {"<", "."},
        {">", "."},
        {"<>", "TT"},
        {"<b", ".."},
        {"<b>", "TTT"},
        {"a<b>c", ".TTT."},
        {"<b>x<", "TTT.."},
        {"a>b<c>", "...TTT"},
        {"a><c>", "..TTT"},
        {"<b><i></i></b>", "TTTTTTTTTTTTTT"},
    };
    expectLooks(rows);
}

TEST(SyntaxScanner, ColoursAttributesFromTheFirstBlankToTheLastCharacter)
{
    const LookRow rows[] = {
        {"<p a>", "TTTaT"},
        {"<p >", "TTTT"},
        {"< >", "TTT"},
        {"<p a b c>", "TTTaaaaaT"},
        {"<a\r\nb=\"c\">", "TTTTTTVVVT"}, // a line end is no blank
    };
    expectLooks(rows);
}

TEST(SyntaxScanner, ColoursValuesFromTheEqualsSignOn)
{
    const LookRow rows[] = {
        {"<p align=left>", "TTTaaaaaavvvvT"},
        {"<p align=\"left\">x</p>", "TTTaaaaaavvvvvvT.TTTT"},
        {"<a b=c d=e>", "TTTaavvaavT"}, // an unquoted value takes the blank behind it
        {"<a=b>", "TTTVT"},             // without a blank ahead of it the value stays bold
        {"<a=>", "TTTT"},               // nothing behind the sign
        {"<=>", "TTT"},
        {"<a b=\"c>", "TTTaavvT"}, // a quote that never closes
        {"<a b=\"c d\" e>", "TTTaavvvvvaaT"},
        {"<a b=\"x>y\">", "TTTaavvT..."}, // ">" in a value ends the tag
        {"<a b='c d'>", "TTTaavvvaaT"},   // only double quotes are quotes
        {"<a b==c>", "TTTaavvT"},
        {"<a b= c>", "TTTaavvT"},
        {"<a b=\"\"c=\"d\">", "TTTaavvaavvvT"},
    };
    expectLooks(rows);
}

TEST(SyntaxScanner, PaintsCommentsOverWhatTheyHold)
{
    const LookRow rows[] = {
        {"<!-- a > b -->", "cccccccccccccc"},
        {"<!-- open", "........."},   // no ">" at all
        {"<!-- a > b", "cccccccc.."}, // up to the next ">"
        {"<!-->", "ccccc"},
        {"<!->", "cccc"},
        {"<!-- <!-- a --> b -->", "ccccccccccccccc......"}, // the first end ends both
        {"x<!-- <!-- a --> b", ".ccccccccccccccc.."},
        {"<!-- a=\"b\" -->x", "cccccccccccccc."},
        {"--><!--x-->", "...cccccccc"},
        {"<!--a--><b>", "ccccccccTTT"},
        {"<a <!-- >b-->c", "ccccccccccccc."}, // a comment opened inside a tag
    };
    expectLooks(rows);
}

TEST(SyntaxScanner, RepairsTagsThatWereNeverClosed)
{
    const LookRow rows[] = {
        {"a < b and <b>bold</b>", "..TT......TTT....TTTT"},
        {"x<b\r\n<i>", ".TTT.TTT"},
        {"<b\r\n<i>", "TTTTTTT"}, // not at the start of the text, where the cut fails
        {"x<a b=c\r\n<d>", ".TTTaavT.TTT"},
        {"x<a b=c <d>", ".TTT....TTT"},
        {"a b c<d<e> f", ".....TTTTTT."},   // blanks ahead of the tag are passed one by one
        {"a\r\nb<c\r\n<d>", "....TTT.TTT"}, // and so are line ends
        {"x y\r\n<c<d> z", ".....TTTTTT."},
        {"x y\r<c<d> z", "..........."}, // a CR just ahead of the tag counts, and then there is none behind
        {"x<a<b>", "......"},            // neither a blank nor a line end
        {"<script>if (a<b) x()</script>", "TTTTTTTT.....TTTT...TTTTTTTTT"},
    };
    expectLooks(rows);
}

TEST(SyntaxScanner, PaintsAspCodeOverTags)
{
    const LookRow rows[] = {
        {"<% if a > b then %>", "%%%%%%%%%%%%%%%%%%%"},
        {"<a b=\"<%=c%>\">d", "TTTaav%%%%%%..."},
        {"<% a > b", "TTTaaT.."},
        {"%><%x%>", "..%%%%%"},
        {"<%>", "%%%"},
        {"<%a<%b%>", "%%%%%%%%"},
        {"<%a%>b<%c%>", "%%%%%.%%%%%"},
        {"<!--<%a%>-->", "cccc%%%%%ccc"},
    };
    expectLooks(rows);
}

TEST(SyntaxScanner, UnderlinesLinksUpToTheirTerminator)
{
    const LookRow rows[] = {
        {"www.a.b c", "ullllll.."}, // the first character gets its colour back, not its look
        {" www.a", ".llll."},       // one short of the text's end
        {"www.", "ull."},
        {" http:x\r\n", ".llllll.."},
        {" www.a<b>", ".lllllTTT"},
        {" www.a\"b", ".lllll.."},
        {"x http://a.b> y", "..lllllllllll.."}, // ">" is no terminator
        {"x HTTP://A.B y", "..llllllllll.."},
        {"x http://www.a.b y", "..llllllllllllll.."},
        {"<a href=\"http://x/\">y</a>", "TTTaaaaavlllllllllvT.TTTT"},
        {"<a=www.x>", "TTTLLLLLT"},
        {" ftp:x ", ".lllll."},
        {" file://x ", ".llllllll."},
        {" file:x ", "........"},
        {" https:x ", ".lllllll."},
        {" news:x ", ".llllll."},
        {" mailto:x ", ".llllllll."},
        {" www.a www.b ", ".lllll.lllll."},
        {" wwwxa ww.b ", "............"},
        {"<%www.a %>", "%%lllll%%%"},
    };
    expectLooks(rows);
}

TEST(SyntaxScanner, KeepsNeighboursApart)
{
    // Between a character in front and a blank behind, each next to each; only a link runs on through what follows it,
    // unless that starts with "<".
    const LookRow units[] = {
        {"x", "."}, {"<b>", "TTT"}, {"<!-- -->", "cccccccc"}, {"<%a%>", "%%%%%"}, {"www.a", "lllll"},
    };
    for (const LookRow &left : units) {
        for (const LookRow &right : units) {
            const std::string text = std::string("y") + left.text + right.text + " ";
            const bool runsOn = *left.look == 'l' && *right.text != '<';
            const std::string rightLook = runsOn ? std::string(strlen(right.text), 'l') : right.look;
            EXPECT_EQ(lookAfterPass(text.c_str()), std::string(".") + left.look + rightLook + ".") << text;
        }
    }
    const LookRow insideTags[] = {
        {"<a b=www.c> ", "TTTaalllllL."},         {"<a www.b c>", "TTTlllllaaT"},
        {"<a b=\"<%c%>\" d>", "TTTaav%%%%%...."}, {"<a <%b%> c>", "TTT%%%%%..."},
        {"<a b=\"www.c\"> ", "TTTaavlllllvT."},
    };
    expectLooks(insideTags);
}

TEST(SyntaxScanner, SwitchedOffTagsLeaveLinksAndAspCode)
{
    ColouringOptions options;
    options.ColourCodeSyntax = false;
    EXPECT_EQ(lookAfterPass("<b>www.x <%a%>", options), "...lllll.%%%%%");
    options.ColourCodeHyperlink = false;
    EXPECT_EQ(lookAfterPass("<b>www.x <%a%>", options), ".........%%%%%");
    options.ColourCodeSyntax = true;
    EXPECT_EQ(lookAfterPass("<b>www.x ", options), "TTT......");
}

TEST(SyntaxScanner, TakesItsColoursFromTheOptions)
{
    const ColouringOptions options{true, true, 10, 1, 2, 3, 4, 5, 6};
    EXPECT_EQ(lookAfterPass("<a b=c><!-- --><%%> www.x ", options), "TTTaavTcccccccc%%%%.lllll.");
}

TEST(SyntaxScanner, ListsItsPaintsInTheOrderOfPainting)
{
    SyntaxScanner scanner(QStringLiteral("x<a b=c><!-- --><%%>www.y"), {});
    scanAll(scanner);
    // The ASP block is a tag first. The link has no terminator and ends one short of the text.
    const std::vector<PaintRange> expected = {
        {0, 25, DefaultPaint}, {1, 7, TagPaint},        {4, 3, AttributePaint},      {6, 1, ValuePaint},
        {8, 8, TagPaint},      {13, 2, AttributePaint}, {8, 8, CommentPaint},        {16, 4, TagPaint},
        {16, 4, AspCodePaint}, {20, 4, LinkPaint},      {0, 1, FirstCharacterPaint},
    };
    EXPECT_EQ(scanner.paints().ranges(), expected);
}

TEST(SyntaxScanner, LetsEventsRunAtTagsValuesAndLinks)
{
    EXPECT_EQ(placesOf(""), 0);
    EXPECT_EQ(placesOf("a"), 1);
    EXPECT_EQ(placesOf("ab"), 1 + 7);
    EXPECT_EQ(placesOf("<b>"), 2 + 7);
    EXPECT_EQ(placesOf("<a b=c>"), 3 + 7);
    EXPECT_EQ(placesOf("<b>x"), 3 + 7);
    EXPECT_EQ(placesOf(" www.a b"), 1 + 1 + 6); // behind the link one character is left, too little to look again
    EXPECT_EQ(placesOf(" www.a bc"), 1 + 2 + 6);
}

TEST(SyntaxScanner, StopsAtTheNextTagWhenCancelled)
{
    EXPECT_EQ(lookAfterPass("<b>x<i>www.y ", {}, 1), ".............");
    EXPECT_EQ(lookAfterPass("<b>x<i>www.y ", {}, 2), "TTT..........");
    EXPECT_EQ(lookAfterPass("<b>x<i>www.y ", {}, 3), "TTT..........");
    EXPECT_EQ(lookAfterPass("<b>x<i>www.y ", {}, 4), "TTT.TTT......");
    // Values are coloured to the end of their tag, and ASP code in any case.
    EXPECT_EQ(lookAfterPass("<a b=c d=e><i><%%>", {}, 2), "TTTaavvaavT...%%%%");
}

TEST(SyntaxScanner, StopsAtTheNextLinkWhenCancelled)
{
    EXPECT_EQ(lookAfterPass(" www.a www.b http:c ", {}, 2), "....................");
    EXPECT_EQ(lookAfterPass(" www.a www.b http:c ", {}, 3), ".lllll..............");
    EXPECT_EQ(lookAfterPass(" www.a www.b http:c ", {}, 4), ".lllll.lllll........");
    EXPECT_EQ(lookAfterPass(" www.a www.b http:c ", {}, 6), ".lllll.lllll.llllll.");
}

TEST(SyntaxScanner, ColoursOneCharacterShortOfTheLimit)
{
    const QString text = QStringLiteral("<b>") + QString(63996, u'x');
    ASSERT_EQ(text.size(), 63999);
    SyntaxScanner scanner(text, {});
    scanAll(scanner, true);
    const std::string look = lookOf(formatsAfter(text, scanner, {}, {1, true, true}), {});
    EXPECT_EQ(look, "TTT" + std::string(63996, '.'));
    EXPECT_EQ(scanner.structure().nodes().size(), 1U);
}

TEST(SyntaxScanner, TakesAwayTheColourFromTheLimitOn)
{
    const QString text = QStringLiteral("<b><%x%>www.a ") + QString(63986, u'x');
    ASSERT_EQ(text.size(), 64000);
    SyntaxScanner scanner(text, {});
    scanner.setStructureShown(true);
    EXPECT_FALSE(scanner.advance());
    EXPECT_TRUE(scanner.structure().nodes().empty());
    const auto formats = formatsAfter(text, scanner, {}, {1, true, true});
    // What was bold stays bold, but for ASP code, which the pass paints before it takes the colours away.
    for (std::size_t i = 0; i < formats.size(); ++i)
        ASSERT_EQ(formats[i], (CharacterFormat{WindowTextColour, i < 3 || i > 7, false})) << i;
}
} // namespace
