#include "project/mapScene.h"

#include "desktop/desktopPrinting.h"
#include "project/mapPicture.h"
#include "services/random.h"
#include "widgets/contrast.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QXmlStreamReader>
#include <algorithm>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

QString q(const char *text)
{
    return QString::fromUtf8(text);
}

QImage pictureOf(MapScene &scene)
{
    QImage image(scene.sceneRect().size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    scene.render(&painter);
    return image;
}

/// How much a part of a picture differs from white, a pixel on average.
double inkIn(const QImage &image, const QRectF &place)
{
    const QRect part = place.toAlignedRect();
    double ink = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            ink += 3 * 255 - colour.red() - colour.green() - colour.blue();
        }
    return ink / part.width() / part.height();
}

/// A few pixels in the middle of the way between two boxes.
QRectF halfWay(const QRectF &from, const QRectF &to)
{
    const QPointF middle = (from.center() + to.center()) / 2;
    return {middle - QPointF(3, 3), QSizeF(6, 6)};
}

/// A map of pages "0", "1", … that can be joined by their numbers.
class MapSceneTest : public testing::Test
{
protected:
    void addPages(int pages)
    {
        for (int i = 0; i < pages; ++i)
            map->AddBox(QString::number(i), {});
    }
    void link(int from, int to) { map->AddLine(QString::number(to), {}, QString::number(from), {}); }

    MapScene &scene(const std::function<bool(const MapBox &)> &isMissing = [](const MapBox &) { return false; })
    {
        m_scene = std::make_unique<MapScene>(map, MapLook::onPaper(), isMissing);
        return *m_scene;
    }

    Random random{5};
    std::shared_ptr<SiteMap> map = std::make_shared<SiteMap>(MapStyle{.located = 65535,
                                                                      .notLocated = 65280,
                                                                      .url = 16776960,
                                                                      .email = 33023,
                                                                      .randomLines = true,
                                                                      .box = QSize(1740, 510),
                                                                      .sheet = QSize(30'000, 30'000)},
                                                             QSet<QString>{}, random);

private:
    std::unique_ptr<MapScene> m_scene;
};

TEST_F(MapSceneTest, DrawsWhatIsNewInTheMap)
{
    addPages(1);
    MapScene &drawn = scene();
    const qsizetype before = drawn.items().size();
    addPages(3);
    link(0, 1);
    drawn.takeNew();
    EXPECT_EQ(drawn.items().size(), before + 3); // lines are all one item
    EXPECT_EQ(drawn.sceneRect(), QRectF(0, 0, 2000, 2000));
}

TEST_F(MapSceneTest, FindsTheBoxUnderAPoint)
{
    addPages(2);
    const MapScene &drawn = scene();
    EXPECT_EQ(drawn.boxAt(drawn.place(1).center()), 1);
    EXPECT_FALSE(drawn.boxAt(QPointF(-5, -5)).has_value());
}

TEST_F(MapSceneTest, KnowsWhatLinksWhere)
{
    addPages(4);
    link(0, 1);
    link(0, 1);
    link(2, 1);
    link(1, 1);
    const MapScene &drawn = scene();
    EXPECT_THAT(drawn.linksFrom(0), ElementsAre(1));
    EXPECT_THAT(drawn.linksTo(1), ElementsAre(0, 2, 1));
    EXPECT_THAT(drawn.linksFrom(1), ElementsAre(1));
    EXPECT_THAT(drawn.linksTo(3), IsEmpty());
}

// Of four ways one leads to the other box, and its opposite back; none does to a box that is not joined.
TEST_F(MapSceneTest, GoesAlongALineAndBack)
{
    addPages(3);
    link(0, 1);
    const MapScene &drawn = scene();
    int found = 0;
    for (const QPointF &way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
        const std::optional<int> next = drawn.nextAlongLines(0, way);
        found += next ? 1 : 0;
        EXPECT_EQ(next.value_or(1), 1);
        EXPECT_EQ(drawn.nextAlongLines(1, -way), next ? std::optional(0) : std::nullopt);
        EXPECT_FALSE(drawn.nextAlongLines(2, way).has_value());
    }
    EXPECT_EQ(found, 1);
}

TEST_F(MapSceneTest, GoesNowhereAlongALinkToItself)
{
    addPages(1);
    link(0, 0);
    EXPECT_FALSE(scene().nextAlongLines(0, QPointF(1, 0)).has_value());
}

TEST_F(MapSceneTest, MakesAllButTheLinesOfTheChosenBoxFaint)
{
    addPages(3);
    link(0, 1);
    link(2, 1);
    MapScene &drawn = scene();
    const QImage usual = pictureOf(drawn);
    const QList<QRectF> places{drawn.place(0), drawn.place(1), drawn.place(2), halfWay(drawn.place(0), drawn.place(1)),
                               halfWay(drawn.place(2), drawn.place(1))};
    const auto inkOfEach = [&places](const QImage &image) {
        QList<double> ink;
        for (const QRectF &place : places)
            ink.append(inkIn(image, place));
        return ink;
    };
    const QList<double> before = inkOfEach(usual);
    drawn.choose(0);
    EXPECT_EQ(drawn.chosen(), 0);
    const QList<double> after = inkOfEach(pictureOf(drawn));
    EXPECT_GE(after[0], before[0]);
    EXPECT_GE(after[1], before[1]);
    EXPECT_LT(after[2], before[2] / 2);
    EXPECT_GT(after[3], before[3]);
    EXPECT_LT(after[4], before[4]);
    drawn.choose(std::nullopt);
    EXPECT_EQ(pictureOf(drawn), usual);
}

TEST_F(MapSceneTest, LetsABoxGrowAboutItsMiddleAndShrinkAgain)
{
    map->AddBox(q("a name that is far too long for the box that it stands in.htm"), q("/some/folder/"));
    MapScene &drawn = scene();
    const QRectF before = drawn.place(0);
    drawn.enlarge(0);
    EXPECT_TRUE(drawn.BoxEnlarged());
    EXPECT_GT(drawn.place(0).width(), before.width());
    EXPECT_EQ(drawn.place(0).center(), before.center());
    drawn.shrinkAll();
    EXPECT_FALSE(drawn.BoxEnlarged());
    EXPECT_EQ(drawn.place(0), before);
}

TEST_F(MapSceneTest, TellsWhichFilesAreMissing)
{
    addPages(2);
    const MapScene &drawn = scene([](const MapBox &box) { return box.name == u"1"; });
    EXPECT_FALSE(drawn.isMissing(0));
    EXPECT_TRUE(drawn.isMissing(1));
}

// A target can be as long as a page where a quotation mark is missing.
TEST_F(MapSceneTest, KeepsABoxOfALongNameInBounds)
{
    map->AddBox(QString(1'000'000, u'x') + q("\r\ny"), {});
    MapScene &drawn = scene();
    drawn.enlarge(0);
    EXPECT_LT(drawn.place(0).width(), 1300);
}

TEST_F(MapSceneTest, IsSavedAsADrawingThatHoldsItsNames)
{
    map->AddBox(q("a & <b>"), q("/s/"));
    addPages(1);
    link(0, 0);
    MapScene &drawn = scene();
    const SvgFile file = DesktopPrinting(partFolders()).svg(mapAsSvg(drawn, q("The map")));
    QXmlStreamReader reader(file.bytes);
    QString text;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isCharacters())
            text += reader.text();
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_TRUE(text.contains(q("a & <b>")));
    EXPECT_TRUE(text.contains(q("The map")));
}

TEST_F(MapSceneTest, IsSavedAsAPictureOnWhiteWithTwoPixelsToOne)
{
    addPages(1);
    MapScene &drawn = scene();
    drawn.setLook({Qt::black, Qt::white, Qt::blue});
    const QImage picture = QImage::fromData(mapAsPng(drawn), "PNG");
    // The one box, 116 x 34 pixels, with 3 for its outline and 16 for a margin on each side.
    EXPECT_EQ(picture.size(), QSize(2 * (116 + 38), 2 * (34 + 38)));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(drawn.look().ground, QColor(Qt::black));
}

TEST_F(MapSceneTest, IsSavedWithoutABox)
{
    MapScene &drawn = scene();
    EXPECT_FALSE(QImage::fromData(mapAsPng(drawn), "PNG").isNull());
    EXPECT_FALSE(DesktopPrinting(partFolders()).svg(mapAsSvg(drawn, {})).bytes.isEmpty());
}

TEST(MapLook, MovesALineThatIsNotSeenTowardsTheText)
{
    const MapLook dark{QColor(0x1E, 0x1E, 0x1E), Qt::white, Qt::blue};
    EXPECT_GT(dark.seen(QColor(0x20, 0x20, 0x20)).lightness(), 0x40);
    EXPECT_EQ(dark.seen(QColor(0xF0, 0x40, 0x40)), QColor(0xF0, 0x40, 0x40));
    EXPECT_LT(MapLook::onPaper().seen(QColor(0xF9, 0xF9, 0xF9)).lightness(), 0xD0);
}

TEST(MapLook, TellsTheChosenBoxFromTheGroundOfAnyTheme)
{
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(225, 225, 225));
    dark.setColor(QPalette::Highlight, QColor(36, 80, 122));
    EXPECT_GE(contrast(MapLook::ofTheme(dark).highlight, QColor(30, 30, 30)), 3);
}

// A name on a box that steps back is faint, and still read.
TEST(MapLook, KeepsFaintBoxesReadable)
{
    for (const QColor &ground : {QColor(Qt::white), QColor(30, 30, 30)})
        for (const QColor &colour : {QColor(Qt::yellow), QColor(Qt::green), QColor(Qt::cyan), QColor(255, 128, 0)}) {
            const MapLook look{ground, inkOn(ground), Qt::blue};
            EXPECT_GE(contrast(look.faint(colour), inkOn(look.faint(colour))), 4.5);
            EXPECT_EQ(look.faint(colour).alpha(), 255);
        }
}

TEST(InkOn, IsWhatReadsBetter)
{
    EXPECT_EQ(inkOn(Qt::yellow), QColor(Qt::black));
    EXPECT_EQ(inkOn(QColor(0, 0, 128)), QColor(Qt::white));
}
} // namespace
