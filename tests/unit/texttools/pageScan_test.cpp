#include "texttools/pageScan.h"

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

CheckScan::Result run(PageScan &scan, const QString &text)
{
    CheckScan::Result result = CheckScan::Result::Yield;
    while (result == CheckScan::Result::Yield)
        result = scan.advance(text);
    return result;
}

/// A check of texts against a tree of five elements.
class PageScanTest : public testing::Test
{
protected:
    /// All stops of a check whose words are ignored, as "word@start+length", with "!" behind that of an element, and
    /// how it ended.
    QString stops(const QString &text)
    {
        PageScan scan(words, dictionary);
        QStringList told;
        scan.begin(false);
        CheckScan::Result result = run(scan, text);
        for (; result == CheckScan::Result::Stopped && told.size() < 20; result = run(scan, text)) {
            const CheckScan::Stop &stop = scan.stop();
            told += q("%1@%2+%3%4")
                        .arg(stop.word)
                        .arg(stop.selStart)
                        .arg(stop.selLength)
                        .arg(stop.isElement ? q("!") : q(""));
            scan.clearWord();
            scan.begin(true);
        }
        told += result == CheckScan::Result::Finished ? q("done") : q("failed");
        return told.join(u' ');
    }

    /// The text once every word that stops the check was changed.
    QString changed(QString text, const QString &changeTo)
    {
        PageScan scan(words, dictionary);
        scan.begin(false);
        for (int changes = 0; changes < 20 && run(scan, text) == CheckScan::Result::Stopped; ++changes) {
            EXPECT_TRUE(scan.findsWord(text));
            const CheckScan::Place place = scan.Change(text, scan.stop().word, changeTo);
            text.replace(place.selStart, place.selLength, changeTo);
            scan.clearWord();
            scan.begin(true);
        }
        return text;
    }

    SmallCodes codes{q("a\n href=\n title=\nimg\n src=\n alt=\np\n title=\ntd\n nowrap\nscript\n src=\n")};
    CodeWords words{codes};
    CheckDictionary dictionary;
};

struct Row {
    const char *text;
    const char *stops;
};
} // namespace

TEST_F(PageScanTest, StopsAtWordsThatAreNotKnown)
{
    const Row rows[] = {
        {"", "done"},
        {"<p>text</p>", "done"},
        {"<BOGUS>", "bogus@1+5! done"},
        {"</bogus>", "bogus@1+6! done"}, // the "/" is marked, too
        {"<p><bogus x><p>", "bogus@4+5! x@10+1 done"},
        {"<a bogus=\"1\" href='2' zork = 3>", "bogus=@3+6 zork=@22+6 done"},
        {"<bogus", "bogus@1+5! done"},
        {"<td nowrap>", "done"},
        {"<td nowrap=\"x\">", "nowrap=@4+7 done"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stops(q(row.text)), q(row.stops)) << row.text;
}

TEST_F(PageScanTest, ReadsTheLastWordOfATagAsTheOthers)
{
    EXPECT_EQ(stops(q("<img src=a.gif alt=b>")), q("done"));
    EXPECT_EQ(stops(q("<img alt=b src=a.gif>")), q("done"));
    EXPECT_EQ(stops(q("<img\r\nsrc=a\talt=\"x > y\">")), q("done"));
}

TEST_F(PageScanTest, PassesOverWhatIsNoTag)
{
    const Row rows[] = {
        {"<!-- <bogus a> --><p>", "done"},
        {"<!DOCTYPE bogus PUBLIC \"x\"><p>", "done"},
        {"<script>if (a <bogus && b) \"</p zork>\"</script><bogus>", "bogus@48+5! done"},
        {"<?bogus a?><% bogus %>a < bogus", "done"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stops(q(row.text)), q(row.stops)) << row.text;
}

TEST_F(PageScanTest, EndsAtAQuotationMarkWithoutAPartner)
{
    EXPECT_EQ(stops(q("<p title=\"x>text")), q("failed"));
    EXPECT_EQ(stops(q("<p title=\"x>text<a title=\"y\">")), q("failed"));
    EXPECT_EQ(stops(q("<bogus><p title=\"x>")), q("bogus@1+5! failed"));
}

TEST_F(PageScanTest, ChangesTheWordThatItStopsAt)
{
    EXPECT_EQ(changed(q("<p><BOGUS>x</BOGUS>"), q("a")), q("<p><a>x</a>"));
    EXPECT_EQ(changed(q("<bogus><p><p bogus='bogus' zork=1>"), q("p title=")),
              q("<p title=><p><p p title='bogus' p title=1>"));
    EXPECT_EQ(changed(q("<p bogus=\"bogus\" title=\"y\">bogus"), q("title=")),
              q("<p title=\"bogus\" title=\"y\">bogus"));
}

TEST_F(PageScanTest, ReadsATagAnewThatWasTypedInAtTheStop)
{
    PageScan scan(words, dictionary);
    scan.begin(false);
    EXPECT_EQ(run(scan, q("<bogus title=x>")), CheckScan::Result::Stopped);
    const QString typed = q("<zork  title=x>");
    EXPECT_FALSE(scan.findsWord(typed));
    scan.clearWord();
    scan.begin(true);
    EXPECT_EQ(run(scan, typed), CheckScan::Result::Stopped);
    EXPECT_EQ(scan.stop().word, q("zork"));
}
