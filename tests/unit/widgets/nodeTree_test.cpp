#include "widgets/nodeTree.h"

#include "widgets/keptNodes.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

class NodeTreeTest : public testing::Test
{
protected:
    NodeTreeTest()
    {
        tree.setImages({{str("Element"), QIcon()}});
        tree.addNode({str("root"), str("html"), str("Element"), -1});
        tree.addNode({str("child"), {}, {}, 0});
        tree.addNode({str("grandchild"), {}, {}, 1});
        tree.addNode({str("other root"), str("css"), {}, -1});
        tree.resize(300, 300);
        tree.show();
    }

    QPoint pointOf(int node)
    {
        tree.scrollTo(tree.indexOf(node));
        return tree.visualRect(tree.indexOf(node)).center();
    }

    NodeTree tree;
};

TEST_F(NodeTreeTest, NumbersNodesInOrderOfAdding)
{
    ASSERT_EQ(tree.nodeCount(), 4);
    EXPECT_EQ(tree.nodeAt(2).text, str("grandchild"));
    EXPECT_EQ(tree.nodeAt(2).parent, 1);
    EXPECT_EQ(tree.nodeAt(3).parent, -1);
    EXPECT_EQ(tree.find(str("css")), 3);
    EXPECT_EQ(tree.find(str("none")), std::nullopt);
}

TEST_F(NodeTreeTest, RefusesAKnownKeyAnUnknownImageAndAMissingParent)
{
    EXPECT_FALSE(tree.addNode({str("again"), str("html"), {}, -1}));
    EXPECT_FALSE(tree.addNode({str("picture"), {}, str("Unknown"), -1}));
    EXPECT_FALSE(tree.addNode({str("orphan"), {}, {}, 4}));
    EXPECT_FALSE(tree.addNode({str("orphan"), {}, {}, -2}));
    EXPECT_EQ(tree.nodeCount(), 4);
    EXPECT_EQ(tree.addNode({str("fifth"), str("key"), str("Element"), 3}), 4);
}

TEST_F(NodeTreeTest, ShowsChildrenUnderTheirParents)
{
    const QModelIndex grandchild = tree.indexOf(2);
    EXPECT_EQ(grandchild.data().toString(), str("grandchild"));
    EXPECT_EQ(tree.nodeOf(grandchild.parent()), 1);
    EXPECT_EQ(tree.model()->rowCount(), 2);
    EXPECT_EQ(tree.model()->rowCount(tree.indexOf(3)), 0);
}

TEST_F(NodeTreeTest, TakesNewChildrenOfShownNodesIntoTheView)
{
    ASSERT_EQ(tree.model()->rowCount(tree.indexOf(0)), 1);
    const auto added = tree.addNode({str("late child"), {}, {}, 0});
    tree.addNode({str("under it"), {}, {}, *added});
    tree.addNode({str("late root"), {}, {}, -1});
    QCoreApplication::processEvents();
    EXPECT_EQ(tree.model()->rowCount(), 3);
    EXPECT_EQ(tree.model()->rowCount(tree.indexOf(0)), 2);
    EXPECT_EQ(tree.model()->rowCount(tree.indexOf(*added)), 1);
}

TEST_F(NodeTreeTest, KeepsSelectionAndExpansionWhenNodesAreAdded)
{
    tree.expandNode(0);
    tree.selectNode(1);
    tree.addNode({str("late"), {}, {}, 0});
    QCoreApplication::processEvents();
    EXPECT_TRUE(tree.isNodeExpanded(0));
    EXPECT_EQ(tree.selectedNode(), 1);
}

TEST_F(NodeTreeTest, BringsASelectedNodeIntoView)
{
    EXPECT_EQ(tree.selectedNode(), std::nullopt);
    tree.selectNode(2);
    EXPECT_EQ(tree.selectedNode(), 2);
    EXPECT_TRUE(tree.isNodeExpanded(1));
    tree.selectNode({});
    EXPECT_EQ(tree.selectedNode(), std::nullopt);
}

TEST_F(NodeTreeTest, IsAsWideAsItsWidestRowOnShow)
{
    const auto width = [this] {
        tree.doItemsLayout();
        QCoreApplication::processEvents();
        return tree.columnWidth(0);
    };
    const int folded = width();
    for (int i = 0; i < 100; ++i)
        tree.addNode({QString(30, u'i'), {}, {}, 0});
    const auto wide = tree.addNode({QString(30, u'W'), {}, {}, 0});
    EXPECT_EQ(width(), folded) << "what is folded away takes no room";
    tree.expandNode(0);
    const QRect row = tree.visualRect(tree.indexOf(*wide));
    EXPECT_GE(width(), row.left() + tree.fontMetrics().horizontalAdvance(QString(30, u'W')));
    tree.expandNode(0, false);
    EXPECT_EQ(width(), folded);
}

TEST_F(NodeTreeTest, IsAsWideAsNodesThatOpenByThemselves)
{
    tree.doItemsLayout();
    const QString wide(40, u'W');
    tree.showNodes({{str("first"), {}, {}, -1}, {str("second"), {}, {}, 0}, {wide, {}, {}, 1}});
    tree.doItemsLayout();
    EXPECT_GE(tree.columnWidth(0), tree.fontMetrics().horizontalAdvance(wide));
}

TEST_F(NodeTreeTest, IsAsWideAsNodesThatAnAsteriskOpens)
{
    tree.setFocus();
    const auto wide = tree.addNode({QString(40, u'W'), {}, {}, 2});
    tree.selectNode(0);
    tree.doItemsLayout();
    QTest::keyClick(&tree, Qt::Key_Asterisk);
    QCoreApplication::processEvents();
    ASSERT_TRUE(tree.isNodeExpanded(2));
    EXPECT_GE(tree.columnWidth(0), tree.fontMetrics().horizontalAdvance(tree.nodeAt(*wide).text));
}

TEST_F(NodeTreeTest, IsWiderInALargerFont)
{
    tree.doItemsLayout();
    const int before = tree.columnWidth(0);
    QFont larger = tree.font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    tree.setFont(larger);
    tree.doItemsLayout();
    EXPECT_GT(tree.columnWidth(0), before * 3 / 2);
}

TEST_F(NodeTreeTest, ForgetsEverythingWhenCleared)
{
    tree.selectNode(2);
    tree.clearNodes();
    EXPECT_EQ(tree.nodeCount(), 0);
    EXPECT_EQ(tree.model()->rowCount(), 0);
    EXPECT_EQ(tree.selectedNode(), std::nullopt);
    EXPECT_EQ(tree.addNode({str("root"), str("html"), {}, -1}), 0) << "keys are free again";
    EXPECT_EQ(tree.indexOf(0).data().toString(), str("root"));
}

TEST_F(NodeTreeTest, TellsClicksDoubleClicksAndEnter)
{
    QSignalSpy clicks(&tree, &NodeTree::nodeClicked);
    QSignalSpy doubleClicks(&tree, &NodeTree::nodeDoubleClicked);
    QSignalSpy enters(&tree, &NodeTree::nodeEntered);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, pointOf(3));
    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].toInt(), 3);
    EXPECT_EQ(tree.selectedNode(), 3);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, pointOf(3));
    ASSERT_EQ(doubleClicks.count(), 1);
    QTest::keyClick(&tree, Qt::Key_Up);
    QTest::keyClick(&tree, Qt::Key_Return);
    ASSERT_EQ(enters.count(), 1);
    EXPECT_EQ(enters[0][0].toInt(), 0);
}

TEST_F(NodeTreeTest, TellsNothingOfClicksBesideARow)
{
    QSignalSpy clicks(&tree, &NodeTree::nodeClicked);
    QSignalSpy doubleClicks(&tree, &NodeTree::nodeDoubleClicked);
    const QPoint beside(tree.viewport()->width() - 5, pointOf(3).y());
    ASSERT_FALSE(tree.indexAt(beside).isValid());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, beside);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, beside);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, {5, tree.viewport()->height() - 5});
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(doubleClicks.count(), 0);
}

TEST_F(NodeTreeTest, FoldsAndUnfoldsByKeyboard)
{
    tree.selectNode(0);
    QTest::keyClick(&tree, Qt::Key_Right);
    EXPECT_TRUE(tree.isNodeExpanded(0));
    QTest::keyClick(&tree, Qt::Key_Left);
    EXPECT_FALSE(tree.isNodeExpanded(0));
}

TEST(NodeTree, TellsTheViewOfThousandsOfNodesAtOnce)
{
    NodeTree tree;
    tree.show();
    QCoreApplication::processEvents();
    QSignalSpy notices(tree.model(), &QAbstractItemModel::rowsInserted);
    tree.addNode({str("root"), {}, {}, -1});
    for (int element = 0; element < 100; ++element) {
        const int parent = *tree.addNode({str("element"), {}, {}, 0});
        for (int attribute = 0; attribute < 59; ++attribute)
            tree.addNode({str("attribute"), {}, {}, parent});
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(tree.nodeCount(), 6001);
    EXPECT_EQ(notices.count(), 1) << "the view hears of the new root only, whatever comes with it";
    EXPECT_EQ(tree.model()->rowCount(tree.indexOf(0)), 100);
    EXPECT_EQ(tree.model()->rowCount(tree.indexOf(1)), 59);
}

TEST(NodeTree, ShowsAModelThatOthersShowToo)
{
    const auto model = std::make_shared<KeptNodes>();
    model->add({str("one"), {}, {}, -1});
    NodeTree first;
    auto second = std::make_unique<NodeTree>();
    first.showNodesOf(model);
    second->showNodesOf(model);
    model->add({str("two"), {}, {}, 0});
    EXPECT_EQ(first.nodeCount(), 2);
    EXPECT_EQ(second->nodeAt(1).text, str("two"));
    first.selectNode(1);
    EXPECT_EQ(first.selectedNode(), 1);
    EXPECT_EQ(second->selectedNode(), std::nullopt) << "what is chosen is each tree's own";
    EXPECT_FALSE(second->isNodeExpanded(0));
    second.reset();
    EXPECT_EQ(first.selectedNode(), 1);
}
} // namespace
