#include "codeknowledge/codeTreeModel.h"

#include "widgets/programIcon.h"

#include <QSet>

namespace
{
/// Deprecated codes have a shape and a colour of their own.
QIcon deprecatedIcon()
{
    return programIcon(QStringLiteral("strikethrough"), QColor(0xA8501F), QColor(0xF0B47D));
}

QHash<QString, QIcon> treeImages()
{
    const QIcon value = programIcon(QStringLiteral("quote"));
    return {{QStringLiteral("ImgNode1"), programIcon(QStringLiteral("globe"))},
            {QStringLiteral("ImgNode2"), programIcon(QStringLiteral("code-xml"))},
            {QStringLiteral("ImgNode3"), programIcon(QStringLiteral("variable"))},
            {QStringLiteral("ImgNode4"), value},
            {QStringLiteral("ImgDepr"), deprecatedIcon()},
            {QStringLiteral("ImgNodeCSS1"), programIcon(QStringLiteral("palette"))},
            {QStringLiteral("ImgNodeCSSProperty"), programIcon(QStringLiteral("type-outline"))},
            {QStringLiteral("ImgNodeCSSValue"), value}};
}

QHash<QString, QIcon> elementImages()
{
    return {{QStringLiteral("Element"), programIcon(QStringLiteral("code-xml"))},
            {QStringLiteral("ElementDepr"), deprecatedIcon()}};
}

QVariant shown(const TreeNode &node, int role, QHash<QString, QIcon> &images, QHash<QString, QIcon> (*all)())
{
    if (role == Qt::DisplayRole)
        return node.text;
    if (images.isEmpty())
        images = all();
    return images.value(node.imageKey);
}

bool isShown(const QModelIndex &index, int role)
{
    return index.isValid() && (role == Qt::DisplayRole || role == Qt::DecorationRole);
}
} // namespace

QModelIndex CodeTreeModel::indexOf(int node) const
{
    return node < 0 ? QModelIndex() : createIndex(m_codes().rowOf(node), 0, static_cast<quintptr>(node));
}

QModelIndex CodeTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    return createIndex(row, 0, static_cast<quintptr>(m_codes().child(nodeOf(parent), row)));
}

QModelIndex CodeTreeModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(m_codes().parentOf(nodeOf(child))) : QModelIndex();
}

QVariant CodeTreeModel::data(const QModelIndex &index, int role) const
{
    return isShown(index, role) ? shown(at(nodeOf(index)), role, m_images, treeImages) : QVariant();
}

const QList<TreeNode> &CodeElementsModel::nodes() const
{
    if (!m_nodes.isEmpty())
        return m_nodes;
    QSet<QString> keys; // an element that comes again gets no second node
    for (const QString &row : m_rows()) {
        const QString key = row.toLower();
        const bool current = row.startsWith(u'e');
        if (!keys.contains(key))
            m_nodes.append(
                {row.sliced(1), key, current ? QStringLiteral("Element") : QStringLiteral("ElementDepr"), -1});
        keys.insert(key);
    }
    return m_nodes;
}

std::optional<int> CodeElementsModel::find(const QString &key) const
{
    for (int node = 0; node < size(); ++node)
        if (nodes()[node].key == key)
            return node;
    return std::nullopt;
}

QModelIndex CodeElementsModel::index(int row, int column, const QModelIndex &parent) const
{
    const bool there = !parent.isValid() && column == 0 && row >= 0 && row < size();
    return there ? createIndex(row, 0, static_cast<quintptr>(row)) : QModelIndex();
}

QVariant CodeElementsModel::data(const QModelIndex &index, int role) const
{
    return isShown(index, role) ? shown(at(nodeOf(index)), role, m_images, elementImages) : QVariant();
}
