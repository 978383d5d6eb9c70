#pragma once

#include "codeknowledge/codeTree.h"
#include "widgets/nodeTreeModel.h"

#include <QHash>
#include <QIcon>
#include <functional>

/// The code tree for its view. The tree is asked for when the view first wants to know something of it.
class CodeTreeModel final : public NodeTreeModel
{
public:
    /// The function gives the same tree each time, which outlives the model.
    explicit CodeTreeModel(std::function<const CodeTree &()> codes) : m_codes(std::move(codes)) {}

    int size() const override { return m_codes().size(); }
    TreeNode at(int node) const override { return m_codes().node(node); }
    std::optional<int> find(const QString &key) const override { return m_codes().find(key); }
    QModelIndex indexOf(int node) const override;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override { return m_codes().childCount(nodeOf(parent)); }
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::function<const CodeTree &()> m_codes;
    mutable QHash<QString, QIcon> m_images; ///< once one of them was asked for
};

/// The elements that the code assistant offers, a flat list; they, too, are asked for when they are needed.
class CodeElementsModel final : public NodeTreeModel
{
public:
    /// The function gives the rows of lstCodeAssistantElementsFull, the same each time.
    explicit CodeElementsModel(std::function<const QStringList &()> rows) : m_rows(std::move(rows)) {}

    int size() const override { return static_cast<int>(nodes().size()); }
    TreeNode at(int node) const override { return nodes()[node]; }
    std::optional<int> find(const QString &key) const override;
    QModelIndex indexOf(int node) const override { return index(node, 0); }

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &) const override { return {}; }
    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : size(); }
    QVariant data(const QModelIndex &index, int role) const override;

private:
    const QList<TreeNode> &nodes() const;

    std::function<const QStringList &()> m_rows;
    mutable QList<TreeNode> m_nodes; ///< once they were asked for
    mutable QHash<QString, QIcon> m_images;
};
