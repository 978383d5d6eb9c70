#include "widgets/checkList.h"
#include "widgets/listView.h"
#include "widgets/tabStrip.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

ListRow keyed(const char *key, const char *text)
{
    return {str(key), str(text), 0, {}, {}, false};
}

class ListViewTest : public testing::Test
{
protected:
    ListViewTest() : list({str("Name"), str("Path"), str("Size")})
    {
        list.addRow({str("k1"), str("b.htm"), 1, {str("/s/b.htm"), str("2KB")}, str("note"), false});
        list.addRow({str("k2"), str("a.htm"), 2, {str("/s/a.htm")}, {}, false});
        list.resize(400, 300);
        list.show();
    }

    ListView list;
};

TEST_F(ListViewTest, KeepsRowsAsTheyWereAdded)
{
    ASSERT_EQ(list.rowCount(), 2);
    EXPECT_EQ(list.rowAt(0).key, str("k1"));
    EXPECT_EQ(list.rowAt(0).text, str("b.htm"));
    EXPECT_EQ(list.rowAt(0).smallIcon, 1);
    EXPECT_EQ(list.rowAt(0).tag, str("note"));
    EXPECT_THAT(list.rowAt(0).subItems, ElementsAre(str("/s/b.htm"), str("2KB")));
    EXPECT_EQ(list.rowAt(1).subItems.value(0), str("/s/a.htm"));
}

TEST_F(ListViewTest, FitsItsFirstColumnToWhatStandsInIt)
{
    list.fitFirstColumn();
    const int narrow = list.columnWidth(0);
    list.addRow(keyed("k3", "Page with Navigation"));
    list.fitFirstColumn();
    EXPECT_GE(list.columnWidth(0), list.fontMetrics().horizontalAdvance(str("Page with Navigation")));
    EXPECT_LT(narrow, list.columnWidth(0));
    list.addRow(keyed("k4", std::string(500, 'x').c_str()));
    list.fitFirstColumn();
    EXPECT_LT(list.columnWidth(0), 400); // the others are to be seen, too
}

TEST_F(ListViewTest, RefusesAKnownKeyAndTakesRowsWithoutOne)
{
    EXPECT_FALSE(list.addRow(keyed("k1", "again")));
    EXPECT_EQ(list.rowCount(), 2);
    EXPECT_TRUE(list.addRow(keyed("", "one")));
    EXPECT_TRUE(list.addRow(keyed("", "two")));
    EXPECT_EQ(list.rowCount(), 4);
}

TEST_F(ListViewTest, InsertsInFrontOfARow)
{
    list.addRow(keyed("k3", "new"), 1);
    EXPECT_EQ(list.find(str("k3")), 1);
    EXPECT_EQ(list.find(str("k2")), 2);
}

TEST_F(ListViewTest, FreesTheKeysOfRemovedRows)
{
    list.removeRow(0);
    EXPECT_EQ(list.find(str("k1")), std::nullopt);
    EXPECT_EQ(list.find(str("k2")), 0);
    EXPECT_TRUE(list.addRow(keyed("k1", "back")));
    list.removeRow(7);
    EXPECT_EQ(list.rowCount(), 2);
    list.clearRows();
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_TRUE(list.addRow(keyed("k2", "back")));
}

TEST_F(ListViewTest, ChangesARowUnlessItsKeyIsAnothers)
{
    EXPECT_FALSE(list.setRow(0, keyed("k2", "x")));
    EXPECT_EQ(list.rowAt(0).text, str("b.htm"));
    EXPECT_TRUE(list.setRow(0, {str("k9"), str("x"), 2, {str("y")}, {}, false}));
    EXPECT_EQ(list.rowAt(0).text, str("x"));
    EXPECT_EQ(list.rowAt(0).subItems.value(1), QString()) << "columns that the new row lacks are emptied";
    EXPECT_EQ(list.find(str("k1")), std::nullopt);
    EXPECT_EQ(list.find(str("k9")), 0);
}

TEST_F(ListViewTest, SelectsOneRowOrSeveral)
{
    list.selectRow(0);
    list.selectRow(1);
    EXPECT_THAT(list.selectedRows(), ElementsAre(1));
    list.setMultiSelect(true);
    list.selectRow(0);
    EXPECT_THAT(list.selectedRows(), ElementsAre(0, 1));
    list.selectRow(1, false);
    EXPECT_EQ(list.selectedRow(), 0);
    list.selectRow(0, false);
    EXPECT_EQ(list.selectedRow(), std::nullopt);
}

TEST_F(ListViewTest, TellsDoubleClickAndEnter)
{
    QSignalSpy doubleClicks(&list, &ListView::rowDoubleClicked);
    QSignalSpy enters(&list, &ListView::rowEntered);
    const QPoint point = list.visualItemRect(list.topLevelItem(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, point);
    ASSERT_EQ(doubleClicks.count(), 1);
    EXPECT_EQ(doubleClicks[0][0].toInt(), 1);
    list.selectRow(0);
    QTest::keyClick(&list, Qt::Key_Return);
    ASSERT_EQ(enters.count(), 1);
    EXPECT_EQ(enters[0][0].toInt(), 0);
}

TEST(ListView, TellsTicksOfTheUserOnly)
{
    ListView list({str("Setting")});
    list.setCheckBoxes(true);
    QSignalSpy ticks(&list, &ListView::rowTicked);
    list.addRow({str("WordWrap"), str("Word-wrap"), 0, {}, {}, true});
    EXPECT_TRUE(list.rowAt(0).checked);
    EXPECT_EQ(ticks.count(), 0);
    list.selectRow(0);
    list.show();
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_FALSE(list.rowAt(0).checked);
    EXPECT_EQ(ticks.count(), 1);
}

TEST(CheckList, TellsTicksOfTheUserOnly)
{
    CheckList list;
    list.addRow(str("one"), true);
    QSignalSpy ticks(&list, &CheckList::rowTicked);
    list.addRow(str("two"));
    EXPECT_TRUE(list.isTicked(0));
    EXPECT_FALSE(list.isTicked(1));
    EXPECT_FALSE(list.isTicked(2)) << "a row that is not there";
    EXPECT_EQ(ticks.count(), 0);
    list.setCurrentRow(0);
    list.show();
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_FALSE(list.isTicked(0));
    ASSERT_EQ(ticks.count(), 1);
    EXPECT_EQ(ticks[0][0].toInt(), 0);
}

class TabStripTest : public testing::Test
{
protected:
    TabStripTest()
    {
        strip.addKeyedTab(str("1Key"), str("one"));
        strip.addKeyedTab(str("2Key"), str("R&D"));
        strip.addKeyedTab(str("3Key"), str("three"));
        strip.resize(500, 40);
        strip.show();
    }

    TabStrip strip;
    QSignalSpy clicks{&strip, &TabStrip::tabClicked};
};

TEST_F(TabStripTest, LetsLongNamesGiveWayAndKeepsShortOnesWhole)
{
    strip.addKeyedTab(QStringLiteral("short"), QStringLiteral("p2.html"));
    strip.addKeyedTab(QStringLiteral("long"), QString(80, u'n'));
    strip.resize(strip.sizeHint());
    strip.show();
    const int shortTab = *strip.find(QStringLiteral("short"));
    const int longTab = *strip.find(QStringLiteral("long"));
    const int whole = strip.tabRect(shortTab).width();
    const int all = strip.tabRect(longTab).width();
    strip.resize(strip.width() - all / 2, strip.height());
    QApplication::processEvents();
    EXPECT_EQ(strip.tabRect(shortTab).width(), whole);
    EXPECT_LT(strip.tabRect(longTab).width(), all);
}

TEST_F(TabStripTest, AddsAtTheEndWithoutSelecting)
{
    EXPECT_EQ(strip.selectedKey(), str("1Key"));
    EXPECT_EQ(strip.keyAt(2), str("3Key"));
    EXPECT_EQ(strip.tabText(1), str("R&&D")) << "a file's name holds no accelerators";
}

TEST_F(TabStripTest, RefusesAKnownKeyAndMissesAnUnknownOne)
{
    EXPECT_FALSE(strip.addKeyedTab(str("2Key"), str("again")));
    EXPECT_FALSE(strip.removeKeyedTab(str("9Key")));
    EXPECT_FALSE(strip.selectKey(str("9Key")));
    EXPECT_EQ(strip.count(), 3);
    EXPECT_TRUE(strip.removeKeyedTab(str("2Key")));
    EXPECT_EQ(strip.find(str("3Key")), 1);
}

TEST_F(TabStripTest, SelectingByKeyIsNoClick)
{
    EXPECT_TRUE(strip.selectKey(str("3Key")));
    EXPECT_EQ(strip.selectedKey(), str("3Key"));
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(TabStripTest, TellsClicksOnTheSelectedTabToo)
{
    QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.tabRect(1).center());
    QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.tabRect(1).center());
    ASSERT_EQ(clicks.count(), 2);
    EXPECT_EQ(clicks[1][0].toInt(), 1);
}

TEST_F(TabStripTest, TellsEachClickOfTwo)
{
    const QPoint place = strip.tabRect(1).center();
    QTest::mouseClick(&strip, Qt::LeftButton, {}, place);
    QTest::mouseDClick(&strip, Qt::LeftButton, {}, place);
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, place);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(TabStripTest, TellsAClickOnATabThatMovesIntoSightByIt)
{
    strip.resize(strip.tabRect(0).width() + strip.tabRect(1).width() + 20, strip.height()); // buttons at its end
    strip.selectKey(str("2Key"));
    QApplication::processEvents();
    const QRect half = strip.tabRect(0);
    ASSERT_LT(half.left(), 0);
    ASSERT_GT(half.right(), 2);
    const QPoint edge(half.right() - 2, half.center().y());
    QTest::mousePress(&strip, Qt::LeftButton, {}, edge);
    EXPECT_EQ(strip.selectedKey(), str("1Key"));
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, edge);
    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].toInt(), 0);
}

TEST_F(TabStripTest, TellsAPressThatIsReleasedElsewhere)
{
    QTest::mousePress(&strip, Qt::LeftButton, {}, strip.tabRect(1).center());
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, strip.tabRect(2).center());
    ASSERT_EQ(clicks.count(), 1) << "the strip shows it as selected";
    EXPECT_EQ(clicks[0][0].toInt(), 1);
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, strip.tabRect(1).center());
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(TabStripTest, IsMovedByTheKeyboard)
{
    QTest::keyClick(&strip, Qt::Key_Right);
    EXPECT_EQ(strip.selectedKey(), str("2Key"));
    QTest::keyClick(&strip, Qt::Key_Left);
    EXPECT_EQ(strip.selectedKey(), str("1Key"));
    QTest::keyClick(&strip, Qt::Key_Left); // the first one stays
    EXPECT_EQ(clicks.count(), 2);
}
} // namespace
