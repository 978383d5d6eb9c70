#pragma once

#include <QString>

/// One node of a tree as it is added. Nodes are numbered from 0 in the order of adding.
struct TreeNode {
    QString text;
    QString key;      ///< unique in its tree; empty for a node without one
    QString imageKey; ///< one of the tree's images; empty for none
    int parent = -1;  ///< the number of the node it stands under; -1 for a root
    QString tip = {}; ///< what the pointer on it tells; empty for nothing
    bool operator==(const TreeNode &) const = default;
};
