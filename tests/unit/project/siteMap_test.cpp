#include "project/siteMap.h"

#include "services/random.h"

#include <gmock/gmock.h>

namespace
{
using testing::Each;
using testing::ElementsAre;

constexpr ColourValue Located = 65535;
constexpr ColourValue NotLocated = 65280;
constexpr ColourValue Url = 16776960;
constexpr ColourValue Email = 33023;
constexpr QSize Box(1560, 510);

QString q(const char *text)
{
    return QString::fromUtf8(text);
}

class SiteMapTest : public testing::Test
{
protected:
    static MapStyle style(QSize sheet, bool randomLines = true)
    {
        return {.located = Located,
                .notLocated = NotLocated,
                .url = Url,
                .email = Email,
                .randomLines = randomLines,
                .box = Box,
                .sheet = sheet};
    }

    SiteMap map(QSize sheet = QSize(150'000, 150'000), bool randomLines = true)
    {
        return SiteMap(style(sheet, randomLines), {q("/s/a.htm"), q("C:\\s\\b.htm")}, m_random);
    }

    static bool overlap(const QRect &a, const QRect &b)
    {
        const auto within = [](QPoint p, const QRect &r) {
            return p.x() >= r.x() && p.x() <= r.x() + r.width() && p.y() >= r.y() && p.y() <= r.y() + r.height();
        };
        return within(a.topLeft(), b) || within(b.topLeft(), a);
    }

private:
    Random m_random{7};
};

TEST_F(SiteMapTest, KnowsABoxByNameAndFolder)
{
    SiteMap boxes = map();
    EXPECT_FALSE(boxes.BoxExists(q("a.htm"), q("/s/")));
    boxes.AddBox(q("a.htm"), q("/s/"));
    EXPECT_TRUE(boxes.BoxExists(q("a.htm"), q("/s/")));
    EXPECT_FALSE(boxes.BoxExists(q("a.htm"), q("")));
    EXPECT_FALSE(boxes.BoxExists(q("A.htm"), q("/s/")));
    EXPECT_EQ(boxCaption(q("a.htm"), q("/s/")), q("a.htm\r\n[/s/]"));
    EXPECT_EQ(boxCaption(q("http://x/"), q("")), q("http://x/\r\n[]"));
}

TEST_F(SiteMapTest, ColoursABoxByItsKind)
{
    const struct {
        const char *name;
        const char *folder;
        ColourValue colour;
    } rows[] = {
        {"a.htm", "/s/", Located},     {"b.htm", "C:\\s\\", Located},    {"a.htm", "", NotLocated},
        {"A.htm", "/s/", NotLocated},  {"http://example.org/", "", Url}, {"HTTP:x", "", Url},
        {"https://x", "", NotLocated}, {"shttp://x", "", NotLocated},    {"http", "", NotLocated},
        {"mailto:a@b", "", Email},     {"MailTo:", "", Email},           {"mailto", "", NotLocated},
        {"ftp://x", "", NotLocated},   {"#top", "", NotLocated},
    };
    SiteMap boxes = map();
    for (const auto &row : rows) {
        boxes.AddBox(q(row.name), q(row.folder));
        EXPECT_EQ(boxes.boxes().last().colour, row.colour) << row.name;
    }
}

TEST_F(SiteMapTest, PutsBoxesOntoTheSheetWithoutOverlap)
{
    SiteMap boxes = map();
    for (int i = 0; i < 100; ++i)
        boxes.AddBox(QString::number(i), {});
    EXPECT_EQ(boxes.sheet(), QSize(150'000, 150'000));
    for (const MapBox &box : boxes.boxes()) {
        EXPECT_GE(box.place.x(), 0);
        EXPECT_GE(box.place.y(), 0);
        EXPECT_LE(box.place.x() + Box.width(), 150'000);
        EXPECT_LE(box.place.y() + Box.height(), 150'000);
        EXPECT_EQ(box.place.size(), Box);
        for (const MapBox &other : boxes.boxes())
            EXPECT_TRUE(box.name == other.name || !overlap(box.place, other.place));
    }
}

// On a sheet of a box's size every further box overlaps five times and makes the sheet grow by itself and 120.
TEST_F(SiteMapTest, GrowsTheSheetAlongTheDiagonalWhereItIsCrowded)
{
    SiteMap boxes = map(Box);
    boxes.AddBox(q("first"), {});
    EXPECT_EQ(boxes.boxes()[0].place, QRect(QPoint(0, 0), Box));
    EXPECT_EQ(boxes.sheet(), Box);
    boxes.AddBox(q("second"), {});
    EXPECT_EQ(boxes.sheet(), QSize(1560 + 1560 + 120, 510 + 510 + 120));
    EXPECT_EQ(boxes.boxes()[1].place, QRect(QPoint(3240 - 1560 - 60, 1140 - 510 - 60), Box));
}

// Two boxes find room beside each other on a sheet of two boxes' width only where their edges touch.
TEST_F(SiteMapTest, CountsACornerOnAnEdgeAsOverlap)
{
    for (quint32 seed = 1; seed <= 50; ++seed) {
        Random random(seed);
        SiteMap boxes(style(QSize(2 * 1560, 510)), {}, random);
        boxes.AddBox(q("first"), {});
        boxes.AddBox(q("second"), {});
        EXPECT_EQ(boxes.sheet(), QSize(2 * 1560 + 1560 + 120, 510 + 510 + 120)) << seed;
    }
}

// On a sheet that is hardly larger than a box two of them always lie over each other, but neither's top left corner
// need be in the other: that counts as room.
TEST_F(SiteMapTest, CountsNoOverlapWithoutACorner)
{
    int withoutGrowth = 0;
    for (quint32 seed = 1; seed <= 50; ++seed) {
        Random random(seed);
        SiteMap boxes(style(Box + QSize(150, 150)), {}, random);
        boxes.AddBox(q("first"), {});
        boxes.AddBox(q("second"), {});
        withoutGrowth += boxes.sheet() == Box + QSize(150, 150) ? 1 : 0;
    }
    EXPECT_GT(withoutGrowth, 0);
}

TEST_F(SiteMapTest, JoinsTheCentresTheTargetFirst)
{
    SiteMap boxes = map();
    boxes.AddBox(q("a.htm"), q("/s/"));
    boxes.AddBox(q("x"), {});
    boxes.AddLine(q("x"), {}, q("a.htm"), q("/s/"));
    ASSERT_EQ(boxes.lines().size(), 1);
    const MapLine &line = boxes.lines().first();
    const QRect from = boxes.boxes()[0].place;
    const QRect to = boxes.boxes()[1].place;
    EXPECT_EQ(line.toCentre, QPoint(to.x() + 780, to.y() + 255));
    EXPECT_EQ(line.fromCentre, QPoint(from.x() + 780, from.y() + 255));
    EXPECT_THAT(boxes.boxes()[0].lines, ElementsAre(0));
    EXPECT_THAT(boxes.boxes()[1].lines, ElementsAre(0));
}

TEST_F(SiteMapTest, JoinsABoxToItself)
{
    SiteMap boxes = map();
    boxes.AddBox(q("a.htm"), q("/s/"));
    boxes.AddLine(q("a.htm"), q("/s/"), q("a.htm"), q("/s/"));
    ASSERT_EQ(boxes.lines().size(), 1);
    EXPECT_EQ(boxes.lines().first().toCentre, boxes.lines().first().fromCentre);
    EXPECT_THAT(boxes.boxes()[0].lines, ElementsAre(0));
}

TEST_F(SiteMapTest, DrawsASecondLinkAsASecondLine)
{
    SiteMap boxes = map();
    boxes.AddBox(q("a"), {});
    boxes.AddBox(q("b"), {});
    boxes.AddLine(q("b"), {}, q("a"), {});
    boxes.AddLine(q("b"), {}, q("a"), {});
    EXPECT_EQ(boxes.lines().size(), 2);
}

TEST_F(SiteMapTest, JoinsNothingToABoxThatIsNotThere)
{
    SiteMap boxes = map();
    boxes.AddBox(q("a"), {});
    boxes.AddLine(q("b"), {}, q("a"), {});
    boxes.AddLine(q("a"), {}, q("b"), {});
    EXPECT_TRUE(boxes.lines().isEmpty());
}

TEST_F(SiteMapTest, GivesLinesColoursOfTheirOwnOnlyIfItIsToldTo)
{
    SiteMap coloured = map();
    SiteMap plain = map(QSize(150'000, 150'000), false);
    for (SiteMap *boxes : {&coloured, &plain}) {
        boxes->AddBox(q("a"), {});
        for (int i = 0; i < 200; ++i)
            boxes->AddLine(q("a"), {}, q("a"), {});
    }
    QSet<ColourValue> colours;
    for (const MapLine &line : coloured.lines()) {
        ASSERT_TRUE(line.colour.has_value());
        colours.insert(*line.colour);
        EXPECT_LT(redOf(*line.colour), 250);
        EXPECT_LT(greenOf(*line.colour), 250);
        EXPECT_LT(blueOf(*line.colour), 250);
    }
    EXPECT_GT(colours.size(), 150);
    for (const MapLine &line : plain.lines())
        EXPECT_FALSE(line.colour.has_value());
}

TEST_F(SiteMapTest, LeavesOutWhatIsBeyondTheHighestNumber)
{
    SiteMap boxes = map();
    boxes.AddBox(q("a"), {});
    for (int i = 0; i < SiteMap::Most + 10; ++i)
        boxes.AddLine(q("a"), {}, q("a"), {});
    EXPECT_EQ(boxes.lines().size(), 32767);
}

TEST_F(SiteMapTest, PlacesAtWholePixels)
{
    SiteMap boxes = map();
    QList<int> remainders;
    for (int i = 0; i < 20; ++i) {
        boxes.AddBox(QString::number(i), {});
        remainders << boxes.boxes().last().place.x() % 15 << boxes.boxes().last().place.y() % 15;
    }
    EXPECT_THAT(remainders, Each(0));
}
} // namespace
