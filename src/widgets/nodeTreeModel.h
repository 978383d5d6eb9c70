#pragma once

#include "common/treeNode.h"

#include <QAbstractItemModel>
#include <optional>

/// The nodes of a tree, numbered from 0, as a view shows them and as others ask for them by their numbers.
class NodeTreeModel : public QAbstractItemModel
{
public:
    using QAbstractItemModel::QAbstractItemModel;

    virtual int size() const = 0;
    virtual TreeNode at(int node) const = 0;
    /// The node of that key; nothing if there is none.
    virtual std::optional<int> find(const QString &key) const = 0;
    virtual QModelIndex indexOf(int node) const = 0; ///< where a view draws it
    /// Hands over to the views what was kept back from them.
    virtual void publish() {}

    static int nodeOf(const QModelIndex &index) ///< -1 for no index
    {
        return index.isValid() ? static_cast<int>(index.internalId()) : -1;
    }
    int columnCount(const QModelIndex & = {}) const override { return 1; }
};
