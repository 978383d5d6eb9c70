#include "project/linkScan.h"

#include <QElapsedTimer>
#include <QStringList>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

QString q(const char *text)
{
    return QString::fromUtf8(text);
}

QStringList targets(const QString &page)
{
    QStringList found;
    LinkScan scan(page);
    while (const std::optional<QString> target = scan.next())
        found.append(*target);
    return found;
}

QStringList targets(const char *page)
{
    return targets(q(page));
}

TEST(LinkTargets, AreThoseInDoubleQuotesBehindABlank)
{
    EXPECT_THAT(targets("<a href=\"one.htm\">1</a> <a href=\"two.htm\">2</a>"),
                ElementsAre(q("one.htm"), q("two.htm")));
}

TEST(LinkTargets, KeepTheirCaseWhileTheElementIsKnownInAny)
{
    EXPECT_THAT(targets("<A HREF=\"Index.HTM\">"), ElementsAre(q("Index.HTM")));
}

TEST(LinkTargets, NeedNotStandRightBehindTheElementsName)
{
    EXPECT_THAT(targets("<A  HREF=\"x\">"), ElementsAre(q("x")));
    EXPECT_THAT(targets("<a class=\"b\" href=\"y\">"), ElementsAre(q("y")));
}

TEST(LinkTargets, AreNotSeenWithoutDoubleQuotesOrBlank)
{
    EXPECT_THAT(targets("<a href='x'>"), IsEmpty());
    EXPECT_THAT(targets("<a href=x>"), IsEmpty());
    EXPECT_THAT(targets("<a class=\"b\"\r\nhref=\"x\">"), IsEmpty());
    EXPECT_THAT(targets("<a\thref=\"x\">"), IsEmpty());
    EXPECT_THAT(targets("<a href =\"x\">"), IsEmpty());
}

TEST(LinkTargets, AreNotSeenInOtherElements)
{
    EXPECT_THAT(targets("<area href=\"x\"><frame src=\"y\"><link href=\"z\">"), IsEmpty());
}

// The search for the attribute does not end with its element.
TEST(LinkTargets, AreTakenFromALaterElementWhereTheLinkHasNone)
{
    EXPECT_THAT(targets("<a name=\"top\"></a><link href=\"style.css\">"), ElementsAre(q("style.css")));
}

TEST(LinkTargets, OfWhichOneIsEmptyArePassedOver)
{
    EXPECT_THAT(targets("<a href=\"\"><a href=\"x\">"), ElementsAre(q("x")));
}

TEST(LinkTargets, EndWithALinkThatIsNotClosed)
{
    EXPECT_THAT(targets("<a href=\"x\"><a href=\"never"), ElementsAre(q("x")));
}

TEST(LinkTargets, AreTakenLiterally)
{
    EXPECT_THAT(targets("<a href=\"a b&amp;c.htm#top\"><a href=\"..\\x\r\ny\">"),
                ElementsAre(q("a b&amp;c.htm#top"), q("..\\x\r\ny")));
}

TEST(LinkTargets, AreGivenAsOftenAsTheyStand)
{
    EXPECT_THAT(targets("<a href=\"x\"><a href=\"x\">"), ElementsAre(q("x"), q("x")));
}

// The scan goes on one character behind the blank of the attribute, where "<a " may stand inside the target.
TEST(LinkTargets, MayLieWithinOneAnother)
{
    EXPECT_THAT(targets("<a href=\"<a href=\"x\""), ElementsAre(q("<a href="), q("x")));
}

TEST(LinkTargets, OfAnEmptyPageAreNone)
{
    EXPECT_THAT(targets(""), IsEmpty());
    EXPECT_THAT(targets("<a "), IsEmpty());
    EXPECT_THAT(targets("<a href=\""), IsEmpty());
}

TEST(LinkTargets, AreFoundInLinearTime)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_THAT(targets(q("<a ").repeated(1'000'000)), IsEmpty());
    EXPECT_EQ(targets(q("<a href=\"").repeated(200'000)).size(), 199'999);
    EXPECT_LT(timer.elapsed(), 5000);
}
} // namespace
