#pragma once

#include <QIcon>
#include <QTreeView>
#include <optional>

class NodeTreeModel;

/// One node as it is added. Nodes are numbered from 0 in the order of adding.
struct TreeNode {
    QString text;
    QString key;      ///< unique in its tree; empty for a node without one
    QString imageKey; ///< one of the tree's images; empty for none
    int parent = -1;  ///< the number of the node it stands under; -1 for a root
};

/// A tree drawn from a flat list of nodes. Adding is cheap, thousands of nodes at a time: the view takes them over in
/// one go when it next draws or is asked.
class NodeTree final : public QTreeView
{
    Q_OBJECT
public:
    explicit NodeTree(QWidget *parent = nullptr);
    ~NodeTree() override;

    void setImages(const QHash<QString, QIcon> &images);
    /// The number of the new node, the last child of its parent. Nothing, and no node, if the key is in the tree
    /// already, the image key is unknown or the parent is not there.
    std::optional<int> addNode(const TreeNode &node);
    void clearNodes();

    int nodeCount() const;
    const TreeNode &nodeAt(int node) const;
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

private:
    NodeTreeModel *m_model;
};
