#include "widgets/keptNodes.h"

#include "common/plainTip.h"

#include <QMetaObject>
#include <QSet>

#include <algorithm>

void KeptNodes::setImages(const QHash<QString, QIcon> &images)
{
    m_images = images;
}

bool KeptNodes::accepts(const TreeNode &node) const
{
    return (node.key.isEmpty() || !m_byKey.contains(node.key)) &&
           (node.imageKey.isEmpty() || m_images.contains(node.imageKey)) && node.parent >= -1 && node.parent < size();
}

void KeptNodes::reserve(int nodes)
{
    m_nodes.reserve(static_cast<size_t>(nodes));
}

std::optional<int> KeptNodes::add(TreeNode node)
{
    if (!accepts(node))
        return {};
    const int number = size();
    std::vector<int> &siblings = childrenOf(node.parent).nodes;
    const int row = static_cast<int>(siblings.size());
    siblings.push_back(number);
    if (!node.key.isEmpty())
        m_byKey.insert(node.key, number);
    m_nodes.push_back({std::move(node), row, {}});
    schedulePublishing();
    return number;
}

void KeptNodes::clear()
{
    if (m_nodes.empty())
        return;
    beginResetModel();
    m_nodes.clear();
    m_roots = {};
    m_byKey.clear();
    m_published = 0;
    endResetModel();
}

bool KeptNodes::update(const QList<TreeNode> &nodes)
{
    const bool isAlike = std::equal(m_nodes.begin(), m_nodes.end(), nodes.begin(), nodes.end(),
                                    [](const Entry &entry, const TreeNode &node) {
                                        return entry.item.text == node.text && entry.item.parent == node.parent;
                                    });
    if (!isAlike)
        return false;
    m_byKey.clear();
    for (int number = 0; number < size(); ++number) {
        TreeNode &item = entry(number).item;
        const TreeNode &node = nodes[number];
        const bool looksOther = item.imageKey != node.imageKey || item.tip != node.tip;
        item = node;
        if (!node.key.isEmpty())
            m_byKey.insert(node.key, number);
        if (looksOther && number < m_published)
            Q_EMIT dataChanged(indexOf(number), indexOf(number));
    }
    return true;
}

void KeptNodes::schedulePublishing()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QMetaObject::invokeMethod(
        this, [this] { publish(); }, Qt::QueuedConnection);
}

void KeptNodes::publish()
{
    m_scheduled = false;
    for (const int parent : parentsWithNews()) {
        Children &children = childrenOf(parent);
        const int last = static_cast<int>(children.nodes.size()) - 1;
        beginInsertRows(indexOf(parent), children.published, last);
        children.published = last + 1;
        endInsertRows();
    }
}

/// Counts what stands under new nodes as known, since it comes into view with them, and tells the known parents that
/// have new children.
QList<int> KeptNodes::parentsWithNews()
{
    QList<int> parents;
    QSet<int> known;
    for (int node = m_published; node < size(); ++node) {
        const int parent = entry(node).item.parent;
        if (parent >= m_published)
            ++entry(parent).children.published;
        else if (!known.contains(parent)) {
            known.insert(parent);
            parents.append(parent);
        }
    }
    m_published = size();
    return parents;
}

std::optional<int> KeptNodes::find(const QString &key) const
{
    const auto found = m_byKey.constFind(key);
    return found == m_byKey.constEnd() ? std::optional<int>() : *found;
}

QModelIndex KeptNodes::indexOf(int node) const
{
    return node < 0 ? QModelIndex() : createIndex(entry(node).row, 0, static_cast<quintptr>(node));
}

QModelIndex KeptNodes::index(int row, int column, const QModelIndex &parent) const
{
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    const Children &children = childrenOf(nodeOf(parent));
    return createIndex(row, 0, static_cast<quintptr>(children.nodes[static_cast<size_t>(row)]));
}

QModelIndex KeptNodes::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(entry(nodeOf(child)).item.parent) : QModelIndex();
}

int KeptNodes::rowCount(const QModelIndex &parent) const
{
    return childrenOf(nodeOf(parent)).published;
}

QVariant KeptNodes::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const TreeNode &node = entry(nodeOf(index)).item;
    if (role == Qt::DisplayRole)
        return node.text;
    if (role == Qt::DecorationRole && !node.imageKey.isEmpty())
        return m_images.value(node.imageKey);
    if (role == Qt::ToolTipRole && !node.tip.isEmpty())
        return plainTip(node.tip);
    return {};
}
