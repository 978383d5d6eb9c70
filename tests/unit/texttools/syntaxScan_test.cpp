#include "texttools/syntaxScan.h"

#include "texttools/checkDictionary.h"
#include "texttools/codeWords.h"
#include "unit/texttools/smallCodes.h"

#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

/// A check of texts against a tree of four elements.
class SyntaxScanTest : public testing::Test
{
protected:
    SyntaxScan::Result run(SyntaxScan &scan, const QString &text)
    {
        SyntaxScan::Result result = SyntaxScan::Result::Yield;
        yields = 0;
        while ((result = scan.advance(text)) == SyntaxScan::Result::Yield)
            ++yields;
        return result;
    }

    /// All stops of a check whose words are ignored, as "word@start+length", with "!" behind that of an element, and
    /// how it ended.
    QString stops(const QString &text)
    {
        SyntaxScan scan(words, dictionary);
        QStringList told;
        scan.begin(false);
        SyntaxScan::Result result = run(scan, text);
        for (; result == SyntaxScan::Result::Stopped && told.size() < 20; result = run(scan, text)) {
            const SyntaxScan::Stop &stop = scan.stop();
            told += q("%1@%2+%3%4")
                        .arg(stop.word)
                        .arg(stop.selStart)
                        .arg(stop.selLength)
                        .arg(stop.isElement ? q("!") : q(""));
            scan.clearWord();
            scan.begin(true);
        }
        told += result == SyntaxScan::Result::Finished ? q("done") : q("failed");
        return told.join(u' ');
    }

    SmallCodes codes{q("a\n href=\n title=\n id=\nimg\n src=\n alt=\n id=\n align=\np\n title=\n id=\ntd\n nowrap\n "
                       "class=\n id=\ntable\n")};
    CodeWords words{codes};
    CheckDictionary dictionary;
    int yields = 0;
};

struct Row {
    const char *text;
    const char *stops;
};

TEST_F(SyntaxScanTest, StopsAtWordsThatAreNotKnown)
{
    const Row rows[] = {
        {"", "done"},
        {"no tags", "done"},
        {"<p>text</p>", "done"},
        {"<bogus>", "bogus@1+5! done"},
        {"<BOGUS>", "bogus@1+5! done"},
        {"<p><p><bogus>", "bogus@7+5! done"},
        {"</bogus>", "bogus@1+6! done"}, // the "/" is selected, too
        {"x <a bogus=\"1\" id=\"2\"></a>", "bogus=@5+6 done"},
        {"<bogus", "bogus@1+5! done"}, // a tag without an end
        {"<>", "done"},                // an empty word is accepted
        {"a < b", "b@4+1! done"},      // a "<" in a text starts a tag
        {"<p bogus a>x", "bogus@3+5 a@9+1 done"},
        {"<A HREF=\"x\" ID=\"y\">", "done"}, // case does not count
        {"<td nowrap>", "done"},             // stored without "="
        {"<td nowrap=\"x\" id=\"y\">", "nowrap=@4+7 done"},
        {"<td nowrap id>", "id@11+2 done"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stops(q(row.text)), q(row.stops)) << row.text;
}

TEST_F(SyntaxScanTest, PassesOverCommentsAndServerBlocks)
{
    const Row rows[] = {
        {"<!-- a > b -->", "done"},
        {"<!--x--><bogus>", "bogus@9+5! done"},
        {"<!-- x --><bogus>", "bogus@11+5! done"},
        {"<%=x%>", "done"},
        {"<% if x %><bogus>", "bogus@11+5! done"},
        {"<bogus><!-- x --><bogus>", "bogus@1+5! bogus@18+5! done"}, // after a stop, too
        {"<bogus><!--x--><!-- y --><bogus>", "bogus@1+5! bogus@26+5! done"},
        {"<!-- <bogus> -->", "done"}, // the first "<" is the comment's, whose end is the first ">"
        {"<!-- > <bogus> -->", "bogus@8+5! done"},
        {"<p % bogus>", "done"}, // a word with a per cent sign in front ends the tag
    };
    for (const Row &row : rows)
        EXPECT_EQ(stops(q(row.text)), q(row.stops)) << row.text;
}

TEST_F(SyntaxScanTest, TakesNothingInQuotationMarksForWords)
{
    const Row rows[] = {
        {"<a href=\"x y z\">", "done"},
        {"<a href=\"x y z\" title=\"bogus = b\" id=\"b c\">", "done"},
        {"<p title=\"a\" \"b c\">", "done"},
        {"<p title=\"a\"\" b>", "b@14+1 done"}, // a mark within two characters of the last one is not looked for
        {"<p title=\"a\"\">", "done"},
        {"<a href=\"x>", "failed"}, // no partner
        {"<p title=\"a\"xx\">", "failed"},
        {"<bogus><a href=\"x>", "bogus@1+5! failed"},
        {"<p title=\"\" id=\"\">", "id=\"\"@12+5 done"},
        {"<a href='x y' id=\"z\">", "y'@11+2 done"}, // other marks are none
    };
    for (const Row &row : rows)
        EXPECT_EQ(stops(q(row.text)), q(row.stops)) << row.text;
}

/// The "=" of the last word is looked for from the place in the word that has the number of the blank in front of it.
TEST_F(SyntaxScanTest, ReadsTheLastWordInItsOwnWay)
{
    const Row rows[] = {
        {"<img width = 5>", "width@5+5 =@11+1 5@13+1 done"},
        {"<img alt=x width=5>", "width=5@11+7 done"},
        {"<img src=\"a\" alt=\"\">", "alt=\"\"@13+6 done"},
        {"<img src=\"a\" bogus=\"b\">", "done"}, // quoted text in it, and it is passed over
        {"<a href=x>", "done"},                  // the "=" is the fifth character, and the blank the second
        {"<img id=x>", "id=x@5+4 done"},         // the third, and the blank is the fourth
        {"<img alt=x>", "done"},
        {"<p bogus >", "bogus@3+5 done"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stops(q(row.text)), q(row.stops)) << row.text;
}

TEST_F(SyntaxScanTest, ReadsTagsOverSeveralLines)
{
    const Row rows[] = {
        {"<a href=\"x\"\r\n   title=\"y\" id=\"z\">", "done"},
        {"<img src=\"x\" \r\n alt=\"y\" id=\"z\">", "done"},
        {"<td nowrap \r\nclass=\"x\" id=\"y\">", "done"},
        {"<p title=\"x\" \r\nbogus id=\"y\">", "bogus@15+5 done"},
        {"<a\thref=\"x\" id=\"y\">", "a\thref=@1+7! done"}, // a tab is no blank
    };
    for (const Row &row : rows)
        EXPECT_EQ(stops(q(row.text)), q(row.stops)) << row.text;
    EXPECT_EQ(stops(q("<a\r\n href=\"x\" id=\"y\">")),
              q("a\r\n@1+3! href=@5+5 done")); // a break behind the name is part of it
}

/// What the tag's text begins with counts as its name, wherever it stands.
TEST_F(SyntaxScanTest, TakesAWordThatTheTagBeginsWithForAnElement)
{
    EXPECT_EQ(stops(q("<table tab>")), q("tab@7+3! done"));
    EXPECT_EQ(stops(q("<img mg>")), q("mg@5+2! done"));
}

TEST_F(SyntaxScanTest, AsksTheDictionaryAboutTheTagOfTheLastAttribute)
{
    const QString text = q("<a href=\"x\" id=\"y\"><bogus>");
    dictionary.add(q("«bogus"));
    EXPECT_EQ(stops(text), q("bogus@20+5! done"));
    SyntaxScan scan(words, dictionary);
    scan.begin(false);
    EXPECT_EQ(run(scan, text), SyntaxScan::Result::Stopped);
    EXPECT_EQ(scan.TagName(), q("a"));
    scan.clearWord();
    EXPECT_EQ(scan.TagName(), QString());
    // Behind a stop it is empty.
    EXPECT_EQ(stops(q("<a href=\"x\" id=\"y\"><zork><bogus>")), q("zork@20+4! done"));
    dictionary.add(q("»a»bogus"));
    EXPECT_EQ(stops(text), q("done"));
}

TEST_F(SyntaxScanTest, KnowsWhatTheDictionaryLearnsBetweenTwoStops)
{
    const QString text = q("<zork><p><zork><p bogus id=\"1\"><p bogus id=\"1\"><a bogus>");
    SyntaxScan scan(words, dictionary);
    scan.begin(false);
    EXPECT_EQ(run(scan, text), SyntaxScan::Result::Stopped);
    EXPECT_EQ(scan.stop().word, q("zork"));
    dictionary.add(q("«zork"));
    scan.clearWord();
    scan.begin(true);
    EXPECT_EQ(run(scan, text), SyntaxScan::Result::Stopped);
    EXPECT_EQ(scan.stop().word, q("bogus"));
    EXPECT_EQ(scan.TagName(), q("p"));
    dictionary.ignore(q("BOGUS"));
    scan.clearWord();
    scan.begin(true);
    EXPECT_EQ(run(scan, text), SyntaxScan::Result::Finished);
}

TEST_F(SyntaxScanTest, LetsEventsRunOnceATag)
{
    SyntaxScan scan(words, dictionary);
    scan.begin(false);
    EXPECT_EQ(run(scan, q("<p><p>x<p>")), SyntaxScan::Result::Finished);
    EXPECT_EQ(yields, 3);
}

/// Its counters hold 32,767, and a longer tag ends the check.
TEST_F(SyntaxScanTest, FailsInTagsThatAreTooLong)
{
    const QString longest = QString(32'767 - 10, u'x'); // behind «p title="» and in front of the mark
    EXPECT_EQ(stops(q("<p title=\"") + longest + q("\">")), q("done"));
    EXPECT_EQ(stops(q("<p title=\"") + longest + q("x\">")), q("failed"));
    EXPECT_EQ(stops(q("<!-- ") + QString(70'000, u'x') + q(" -->")), q("done"));
}

struct ChangeRow {
    const char *text;
    const char *changeTo;
    qsizetype selStart;
    qsizetype selLength;
};

TEST_F(SyntaxScanTest, ChangesAtThePlacesItRemembers)
{
    const ChangeRow rows[] = {
        {"<p><bogus>x", "table", 4, 5},
        {"<p><bogus>x", "blockquote", 4, 5},
        // A shorter text shortens what is searched, counted from the start of the document: so near to it, the word is
        // not found, and the text goes in front of the tag.
        {"<p><bogus>x", "b", 2, 5},
        {"0123456789<bogus>x", "b", 11, 5},
        {"<p><BOGUS>x", "table", 2, 5}, // in capitals it is not found either
        {"<BOGUS>x", "table", 1, 5},    // -1 is taken for 1
    };
    for (const ChangeRow &row : rows) {
        SyntaxScan scan(words, dictionary);
        scan.begin(false);
        ASSERT_EQ(run(scan, q(row.text)), SyntaxScan::Result::Stopped);
        const SyntaxScan::Place place = scan.Change(q(row.text), q("bogus"), q(row.changeTo));
        EXPECT_EQ(place.selStart, row.selStart) << row.text << ' ' << row.changeTo;
        EXPECT_EQ(place.selLength, row.selLength) << row.text << ' ' << row.changeTo;
    }
}

/// Types the change into the text and goes on.
struct After {
    const char *text;
    const char *word;
    const char *changeTo;
    const char *changed;
    const char *next; ///< the next word, empty if none
};

TEST_F(SyntaxScanTest, GoesOnBehindAChange)
{
    const After rows[] = {
        {"<p><bogus><zork>", "bogus", "table", "<p><table><zork>", "zork"},
        {"....<p bgous id=\"1\" zork>", "bgous", "title", "....<p title id=\"1\" zork>", "zork"},
        // A longer name reaches behind the place where the words go on, and its end is taken for a word.
        {"....<p bogus title=\"1\" id=\"1\">", "bogus", "title=\"x\"", "....<p title=\"x\" title=\"1\" id=\"1\">", "="},
    };
    for (const After &row : rows) {
        SyntaxScan scan(words, dictionary);
        QString text = q(row.text);
        scan.begin(false);
        ASSERT_EQ(run(scan, text), SyntaxScan::Result::Stopped);
        const SyntaxScan::Place place = scan.Change(text, q(row.word), q(row.changeTo));
        text.replace(place.selStart, place.selLength, q(row.changeTo));
        EXPECT_EQ(text, q(row.changed));
        scan.clearWord();
        scan.begin(true);
        const SyntaxScan::Result result = run(scan, text);
        EXPECT_EQ(result == SyntaxScan::Result::Stopped ? scan.stop().word : QString(), q(row.next)) << row.text;
    }
}
} // namespace
