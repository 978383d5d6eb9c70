#include "insertion/areaDrawing.h"
#include "insertion/imageMap.h"
#include "markupReader.h"

#include <QRandomGenerator>
#include <QRect>
#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

MapArea rectangle(const QPoint &from, const QPoint &to)
{
    return {.shape = AreaShape::Rectangle, .points = {from, to}};
}

MapArea circle(const QPoint &centre, int radius)
{
    return {.shape = AreaShape::Circle, .points = {centre}, .radius = radius};
}

MapArea polygon(const QList<QPoint> &points, bool open = false)
{
    return {.shape = AreaShape::Polygon, .points = points, .open = open};
}

void drag(AreaDrawing &drawing, const QPointF &from, const QPointF &to)
{
    drawing.press(from);
    drawing.move(to, true);
    drawing.release(to);
}

void click(AreaDrawing &drawing, const QPointF &at)
{
    drawing.press(at);
    drawing.release(at);
}
} // namespace

TEST(ImageMapMarkup, writesEachKindOfArea)
{
    const struct {
        const char *name;
        QList<MapArea> areas;
        const char *text;
    } rows[] = {
        {"", {}, "<map>\r\n</map>"},
        {"nav", {}, "<map name=\"nav\">\r\n</map>"},
        {"",
         {rectangle({10, 20}, {110, 70})},
         "<map>\r\n<area shape=\"rect\" coords=\"10,20,110,70\" href=\"(link #0)\">\r\n</map>"},
        {"",
         {rectangle({110, 70}, {10, 20})},
         "<map>\r\n<area shape=\"rect\" coords=\"110,70,10,20\" href=\"(link #0)\">\r\n</map>"},
        {"",
         {circle({200, 60}, 40)},
         "<map>\r\n<area shape=\"circle\" coords=\"200,60,40\" href=\"(link #0)\">\r\n</map>"},
        {"", {polygon({{5, 5}})}, "<map>\r\n<area shape=\"poly\" coords=\"5,5\" href=\"(link #0)\">\r\n</map>"},
        {"a \"b\"",
         {polygon({{5, 5}, {50, 5}, {50, 50}, {5, 5}}), circle({1, 2}, 0)},
         "<map name=\"a \"b\"\">\r\n<area shape=\"poly\" coords=\"5,5,50,5,50,50,5,5\" href=\"(link #0)\">\r\n"
         "<area shape=\"circle\" coords=\"1,2,0\" href=\"(link #1)\">\r\n</map>"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(imageMapMarkup(str(row.name), row.areas), str(row.text));
}

TEST(ImageMapMarkup, leavesAnOpenPolygonWithoutItsEndAndWithoutANumber)
{
    EXPECT_EQ(imageMapMarkup({}, {circle({1, 2}, 3), polygon({{5, 6}, {7, 8}}, true), circle({4, 5}, 6)}),
              str("<map>\r\n<area shape=\"circle\" coords=\"1,2,3\" href=\"(link #0)\">\r\n"
                  "<area shape=\"poly\" coords=\"5,6,7,8,\r\n"
                  "<area shape=\"circle\" coords=\"4,5,6\" href=\"(link #1)\">\r\n</map>"));
    EXPECT_EQ(imageMapMarkup({}, {polygon({}, true)}), str("<map>\r\n<area shape=\"poly\" coords=\"\r\n</map>"));
}

// The end of a polygon takes one character away, whatever it is; a tool that is chosen between the press and the
// release of its first corner finds no comma there.
TEST(ImageMapMarkup, takesTheQuoteOfAPolygonWithoutCorners)
{
    EXPECT_EQ(imageMapMarkup({}, {polygon({})}),
              str("<map>\r\n<area shape=\"poly\" coords=\" href=\"(link #0)\">\r\n</map>"));
}

TEST(AreaDrawing, roundsHalvesToTheEvenNumber)
{
    AreaDrawing drawing;
    drawing.begin();
    drag(drawing, {0.5, 1.5}, {2.5, 3.49});
    EXPECT_EQ(drawing.areas(), QList<MapArea>{rectangle({0, 2}, {2, 3})});
    drawing.choose(AreaShape::Circle);
    drag(drawing, {10.5, 11.5}, {13.5, 15.5});
    EXPECT_EQ(drawing.areas().last(), circle({10, 12}, 5));
    drag(drawing, {0, 0}, {2.5, 0});
    EXPECT_EQ(drawing.areas().last(), circle({0, 0}, 2));
}

TEST(AreaDrawing, showsWhatFollowsThePointerAsLongAsItIsHeld)
{
    AreaDrawing drawing;
    drawing.begin();
    drawing.move({3, 4}, false);
    EXPECT_FALSE(drawing.rectangle().visible);
    EXPECT_FALSE(drawing.sidesVisible());
    EXPECT_EQ(drawing.rectangle().line.p2(), QPointF(3, 4)); // kept up to date, unseen
    drawing.press({10, 20});
    EXPECT_TRUE(drawing.rectangle().visible);
    EXPECT_FALSE(drawing.sidesVisible());
    EXPECT_EQ(drawing.rectangle().line, QLineF(10, 20, 10, 20));
    drawing.move({30, 40}, true);
    EXPECT_TRUE(drawing.sidesVisible());
    EXPECT_EQ(drawing.rectangle().line, QLineF(10, 20, 30, 40));
    drawing.release({30, 40});
    EXPECT_FALSE(drawing.rectangle().visible || drawing.sidesVisible());
    drawing.choose(AreaShape::Circle);
    drawing.move({1, 1}, false);
    EXPECT_FALSE(drawing.ovalVisible());
    drawing.press({5, 5});
    EXPECT_TRUE(drawing.circle().visible);
    EXPECT_FALSE(drawing.ovalVisible());
    drawing.move({8, 9}, true);
    EXPECT_TRUE(drawing.ovalVisible());
    EXPECT_EQ(drawing.circle().line, QLineF(5, 5, 8, 9));
    drawing.release({8, 9});
    EXPECT_FALSE(drawing.circle().visible || drawing.ovalVisible());
}

TEST(AreaDrawing, closesAPolygonOnlyWhereBothCoordinatesDiffer)
{
    const struct {
        QList<QPoint> clicks;
        QList<QPoint> corners;
    } rows[] = {
        {{{1, 1}}, {{1, 1}}},
        {{{1, 1}, {5, 6}}, {{1, 1}, {5, 6}, {1, 1}}},
        {{{1, 1}, {5, 1}}, {{1, 1}, {5, 1}}},
        {{{1, 1}, {9, 3}, {1, 7}}, {{1, 1}, {9, 3}, {1, 7}}},
        {{{1, 1}, {9, 3}, {1, 1}}, {{1, 1}, {9, 3}, {1, 1}}},
    };
    for (const auto &row : rows) {
        AreaDrawing drawing;
        drawing.begin();
        drawing.choose(AreaShape::Polygon);
        for (const QPoint &at : row.clicks)
            click(drawing, at);
        EXPECT_TRUE(drawing.areas().last().open);
        drawing.finishPolygon();
        EXPECT_EQ(drawing.areas(), QList<MapArea>{polygon(row.corners)});
        EXPECT_EQ(drawing.marks().size(), row.corners.size()); // an edge a corner, the first one of no length
        drawing.finishPolygon();
        EXPECT_EQ(drawing.areas().size(), 1);
    }
}

TEST(AreaDrawing, setsTheFirstCornerWhereItIsLetGoAndClosesWhereItWasPressed)
{
    AreaDrawing drawing;
    drawing.begin();
    drawing.choose(AreaShape::Polygon);
    drag(drawing, {1, 2}, {10, 20});
    click(drawing, {30, 5});
    drawing.choose(AreaShape::Rectangle);
    EXPECT_EQ(drawing.areas(), QList<MapArea>{polygon({{10, 20}, {30, 5}, {1, 2}})});
}

TEST(AreaDrawing, keepsAnOpenPolygonOpenOverTheNextBeginning)
{
    AreaDrawing drawing;
    drawing.begin();
    click(drawing, {3, 3});
    drawing.choose(AreaShape::Polygon);
    click(drawing, {1, 2});
    drawing.begin();
    EXPECT_EQ(drawing.tool(), AreaShape::Rectangle);
    EXPECT_TRUE(drawing.marks().isEmpty());
    drawing.finishPolygon();
    EXPECT_FALSE(drawing.takeBackCorner());
    EXPECT_EQ(drawing.areas(), QList<MapArea>({rectangle({3, 3}, {3, 3}), polygon({{1, 2}}, true)}));
    EXPECT_TRUE(drawing.takeBackArea());
    EXPECT_TRUE(drawing.takeBackArea());
    EXPECT_FALSE(drawing.takeBackArea());
    EXPECT_TRUE(drawing.areas().isEmpty());
}

TEST(AreaDrawing, takesCornersBack)
{
    AreaDrawing drawing;
    drawing.begin();
    EXPECT_FALSE(drawing.takeBackCorner());
    drawing.press({1, 1});
    EXPECT_TRUE(drawing.takeBackCorner());
    drawing.release({5, 5}); // its press was taken back
    EXPECT_TRUE(drawing.areas().isEmpty());
    drawing.choose(AreaShape::Polygon);
    click(drawing, {1, 1});
    click(drawing, {9, 9});
    drawing.clearMarks(); // as another picture does
    EXPECT_TRUE(drawing.takeBackCorner());
    click(drawing, {1, 7});
    drawing.finishPolygon();
    EXPECT_EQ(drawing.areas(), QList<MapArea>{polygon({{1, 1}, {1, 7}})});
    click(drawing, {4, 4});
    EXPECT_TRUE(drawing.takeBackCorner());
    EXPECT_EQ(drawing.areas().size(), 1);
    EXPECT_FALSE(drawing.isDrawing());
}

TEST(AreaDrawing, forgetsAPressWhenTheToolChanges)
{
    AreaDrawing drawing;
    drawing.begin();
    drawing.press({1, 1});
    drawing.choose(AreaShape::Circle);
    drawing.release({5, 5});
    EXPECT_TRUE(drawing.areas().isEmpty());
    EXPECT_FALSE(drawing.isDrawing());
}

namespace
{
constexpr QSize Picture(640, 480);

QPointF randomPlace(QRandomGenerator &random)
{
    return {random.bounded(2 * Picture.width() - 1) / 2.0, random.bounded(2 * Picture.height() - 1) / 2.0};
}

void drawAtRandom(AreaDrawing &drawing, QRandomGenerator &random)
{
    constexpr AreaShape tools[] = {AreaShape::Rectangle, AreaShape::Circle, AreaShape::Polygon};
    for (int step = random.bounded(30); step > 0; --step) {
        switch (random.bounded(6)) {
        case 0:
            drawing.choose(tools[random.bounded(3)]);
            break;
        case 1:
            drawing.takeBackCorner();
            break;
        case 2:
            drawing.move(randomPlace(random), random.bounded(2) == 1);
            break;
        default:
            drag(drawing, randomPlace(random), randomPlace(random));
        }
    }
    drawing.finishPolygon();
}

/// An area as a reader of the page takes it.
MapArea readArea(const ReadElement &element)
{
    QList<int> numbers;
    for (const QString &number : element.attributes.value(QStringLiteral("coords")).split(u','))
        numbers.append(number.toInt());
    const QString shape = element.attributes.value(QStringLiteral("shape"));
    MapArea area{.shape = shape == u"rect"     ? AreaShape::Rectangle
                          : shape == u"circle" ? AreaShape::Circle
                                               : AreaShape::Polygon};
    if (area.shape == AreaShape::Circle)
        area.radius = numbers.takeLast();
    for (int i = 0; i + 1 < numbers.size(); i += 2)
        area.points.append({numbers[i], numbers[i + 1]});
    return area;
}
} // namespace

TEST(ImageMap, aRandomMapReadsBackAsItsAreas)
{
    QRandomGenerator random(68);
    const QRect picture(QPoint(0, 0), Picture);
    qsizetype areas = 0;
    for (int i = 0; i < 5000; ++i) {
        AreaDrawing drawing;
        drawing.begin();
        drawAtRandom(drawing, random);
        const QString name = randomWords(random);
        const QString text = imageMapMarkup(name, drawing.areas());
        const QList<ReadElement> elements = elementsOf(text);
        ASSERT_EQ(elements.size(), drawing.areas().size() + 1);
        ASSERT_EQ(elements[0].name, str("map"));
        ASSERT_EQ(elements[0].attributes.value(str("name")), name);
        for (int area = 0; area < drawing.areas().size(); ++area) {
            const ReadElement &read = elements[area + 1];
            ASSERT_EQ(readArea(read), drawing.areas()[area]);
            ASSERT_EQ(read.attributes.value(str("href")), str("(link #%1)").arg(area));
            for (const QPoint &point : drawing.areas()[area].points)
                ASSERT_TRUE(picture.contains(point));
        }
        ASSERT_TRUE(text.endsWith(str("\r\n</map>")));
        areas += drawing.areas().size();
    }
    EXPECT_GT(areas, 20000);
}
