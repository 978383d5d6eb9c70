#pragma once

#include "widgets/nodeTreeModel.h"

#include <QHash>
#include <QIcon>
#include <vector>

/// The nodes of a tree. New ones are kept back from the view until publish(), which hands them over with one notice for
/// each parent that the view knows, whatever their number.
class KeptNodes final : public NodeTreeModel
{
public:
    using NodeTreeModel::NodeTreeModel;

    void setImages(const QHash<QString, QIcon> &images);
    std::optional<int> add(TreeNode node);
    void reserve(int nodes); ///< room for so many in all
    void clear();
    /// Takes these over for those that it has, of which only keys, images and tips may be others; the views keep what
    /// they show. False, and nothing changed, if there is more to it.
    bool update(const QList<TreeNode> &nodes);
    void publish() override;

    int size() const override { return static_cast<int>(m_nodes.size()); }
    TreeNode at(int node) const override { return m_nodes[static_cast<size_t>(node)].item; }
    std::optional<int> find(const QString &key) const override;
    QModelIndex indexOf(int node) const override;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Children {
        std::vector<int> nodes;
        int published = 0; ///< how many of them the view knows
    };
    struct Entry {
        TreeNode item;
        int row = 0; ///< among its siblings
        Children children;
    };

    Entry &entry(int node) { return m_nodes[static_cast<size_t>(node)]; }
    const Entry &entry(int node) const { return m_nodes[static_cast<size_t>(node)]; }
    Children &childrenOf(int node) { return node < 0 ? m_roots : entry(node).children; }
    const Children &childrenOf(int node) const { return node < 0 ? m_roots : entry(node).children; }
    bool accepts(const TreeNode &node) const;
    void schedulePublishing();
    QList<int> parentsWithNews();

    std::vector<Entry> m_nodes;
    Children m_roots;
    QHash<QString, int> m_byKey;
    QHash<QString, QIcon> m_images;
    int m_published = 0; ///< nodes up to this number are known to the view
    bool m_scheduled = false;
};
