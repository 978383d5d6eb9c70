#include "project/mapView.h"

#include "project/mapScene.h"
#include "services/random.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

/// A view on a map of two pages, of which the first links to the second.
class MapViewTest : public testing::Test
{
protected:
    MapViewTest()
    {
        map->AddBox(q("index.htm"), q("/s/"));
        map->AddBox(q("a.htm"), q("/s/"));
        map->AddLine(q("a.htm"), q("/s/"), q("index.htm"), q("/s/"));
        scene =
            std::make_unique<MapScene>(map, MapLook::onPaper(), [](const MapBox &box) { return box.name == u"a.htm"; });
        view.setMap(scene.get());
        view.resize(400, 300);
        view.show();
        QApplication::setActiveWindow(&view);
        view.setFocus();
    }

    Random random{5};
    std::shared_ptr<SiteMap> map = std::make_shared<SiteMap>(
        MapStyle{.box = QSize(1740, 510), .sheet = QSize(30'000, 30'000)}, QSet<QString>{}, random);
    std::unique_ptr<MapScene> scene;
    MapView view;
};

TEST_F(MapViewTest, TellsScreenReadersWhichBoxTheKeyboardIsOn)
{
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(view.accessibleDescription(), q("index.htm [/s/], links to 1, linked from 0"));
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(view.accessibleDescription(), q("a.htm [/s/], not on the disk, links to 0, linked from 1"));
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(view.accessibleDescription(), QString());
}

TEST_F(MapViewTest, ScrollsAsFarAsItIsDragged)
{
    view.scrollTo({});
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, {300, 200});
    QTest::mouseMove(view.viewport(), {280, 170});
    QTest::mouseMove(view.viewport(), {290, 150});
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, {290, 150});
    EXPECT_EQ(view.scrolled(), QPoint(10, 50));
}
} // namespace
