#pragma once

#include "common/treeNode.h"

#include <QIcon>
#include <QTreeView>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class NodeTreeModel;
class KeptNodes;

/// A tree drawn from a flat list of nodes. Adding is cheap, thousands of nodes at a time: the view takes them over in
/// one go when it next draws or is asked.
class NodeTree final : public QTreeView
{
    Q_OBJECT
public:
    explicit NodeTree(QWidget *parent = nullptr);
    ~NodeTree() override;

    /// Shows the nodes of a model that other trees may show as well, in place of its own, and has none to add to from
    /// then on; selection and expansion are each tree's own.
    void showNodesOf(std::shared_ptr<NodeTreeModel> model);
    /// Runs once, when the tree is first on show, or before it first tells of its view.
    void atFirstLook(std::function<void()> prepare);

    void setImages(const QHash<QString, QIcon> &images);
    /// The number of the new node, the last child of its parent. Nothing, and no node, if the key is in the tree
    /// already, the image key is unknown or the parent is not there.
    std::optional<int> addNode(const TreeNode &node);
    void clearNodes();
    /// Shows these in the place of all nodes, opened but for those that were closed before; nodes that stand at the
    /// start or at the end of both lists, with the same texts, count as the same. Of a large tree, only the outer
    /// levels are opened.
    void showNodes(const QList<TreeNode> &nodes);

    int nodeCount() const;
    TreeNode nodeAt(int node) const;
    std::optional<int> find(const QString &key) const;

    void selectNode(std::optional<int> node); ///< scrolls to it, too; nothing: no node is selected
    std::optional<int> selectedNode() const;
    void expandNode(int node, bool expanded = true);
    bool isNodeExpanded(int node) const;
    QModelIndex indexOf(int node) const; ///< where the view draws it
    int nodeOf(const QModelIndex &index) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void nodeClicked(int node);
    void nodeDoubleClicked(int node);
    void nodeEntered(int node); ///< Enter was pressed on it

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    int sizeHintForColumn(int column) const override;

private:
    /// A node whose row may be the widest.
    struct Wide {
        int width = 0; ///< of its text and what it is set in by, as far as can be told without laying it out
        int depth = 0;
        QModelIndex index;
    };

    void look() const;
    int roughWidth(const QString &text) const;
    void collectWide(const QModelIndex &parent, int depth, std::vector<Wide> &rows) const;
    int widest() const;
    void forgetWidestWith(const QAbstractItemModel &model);

    std::shared_ptr<KeptNodes> m_own; ///< what can be added to; none while another model is shown
    std::shared_ptr<NodeTreeModel> m_model;
    mutable std::function<void()> m_atFirstLook;
    mutable std::optional<int> m_widest;        ///< of the rows on show; nothing if that may have changed
    mutable std::array<int, 128> m_widths = {}; ///< of the characters of ASCII, those that were asked for
};
