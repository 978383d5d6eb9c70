#include "widgets/nodeTree.h"

#include "widgets/keptNodes.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>
#include <numeric>
#include <utility>

NodeTree::NodeTree(QWidget *parent) : QTreeView(parent), m_own(std::make_shared<KeptNodes>()), m_model(m_own)
{
    forgetWidestWith(*m_model); // in front of the view, which asks as soon as it hears of a change
    setModel(m_model.get());
    connect(this, &QTreeView::expanded, this, [this] { m_widest.reset(); });
    connect(this, &QTreeView::collapsed, this, [this] { m_widest.reset(); });
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents); // long texts scroll sideways
    header()->setStretchLastSection(false);
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex &index) { Q_EMIT nodeClicked(nodeOf(index)); });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex &index) {
        if (index.isValid()) // the view tells of clicks beside a row's text, too
            Q_EMIT nodeDoubleClicked(nodeOf(index));
    });
}

NodeTree::~NodeTree()
{
    setModel(nullptr); // which may go now, in front of the view
}

void NodeTree::showNodesOf(std::shared_ptr<NodeTreeModel> model)
{
    QItemSelectionModel *oldSelection = selectionModel();
    model->publish();
    forgetWidestWith(*model);
    setModel(model.get());
    delete oldSelection;
    m_model = std::move(model);
    m_own.reset();
}

void NodeTree::atFirstLook(std::function<void()> prepare)
{
    m_atFirstLook = std::move(prepare);
    if (isVisible())
        look();
}

void NodeTree::look() const
{
    if (const auto prepare = std::exchange(m_atFirstLook, nullptr))
        prepare();
}

void NodeTree::showEvent(QShowEvent *event)
{
    if (m_atFirstLook)
        scheduleDelayedItemsLayout(); // once, and not for each node that is opened
    look();
    QTreeView::showEvent(event);
}

void NodeTree::setImages(const QHash<QString, QIcon> &images)
{
    if (m_own)
        m_own->setImages(images);
    m_widest.reset();
    viewport()->update();
}

std::optional<int> NodeTree::addNode(const TreeNode &node)
{
    return m_own ? m_own->add(node) : std::nullopt;
}

void NodeTree::clearNodes()
{
    if (m_own)
        m_own->clear();
}

void NodeTree::showNodes(const QList<TreeNode> &nodes)
{
    constexpr qsizetype OpenedWhole = 3000;
    constexpr int OuterLevels = 3;
    if (!m_own || m_own->update(nodes))
        return;
    const int before = nodeCount();
    QList<TreeNode> old;
    QList<bool> closed;
    for (int node = 0; node < before; ++node) {
        old.append(nodeAt(node));
        closed.append(m_model->rowCount(indexOf(node)) > 0 && !isNodeExpanded(node));
    }
    const auto isSame = [](const TreeNode &one, const TreeNode &other) { return one.text == other.text; };
    const qsizetype most = std::min(old.size(), nodes.size());
    const qsizetype head = std::mismatch(old.begin(), old.begin() + most, nodes.begin(), isSame).first - old.begin();
    const qsizetype tail =
        std::mismatch(old.rbegin(), old.rbegin() + (most - head), nodes.rbegin(), isSame).first - old.rbegin();
    const auto nowAt = [&](qsizetype node) {
        if (node < head)
            return std::optional(static_cast<int>(node));
        return node >= before - tail ? std::optional(static_cast<int>(node - before + nodes.size())) : std::nullopt;
    };
    const std::optional<int> selected = selectedNode();
    clearNodes();
    m_own->reserve(static_cast<int>(nodes.size()));
    for (const TreeNode &node : nodes)
        addNode(node);
    m_own->publish();
    m_widest.reset(); // the view tells of no node that it opens together with others
    nodes.size() <= OpenedWhole ? expandAll() : expandToDepth(OuterLevels);
    for (qsizetype node = 0; node < before; ++node)
        if (const std::optional<int> now = closed[node] ? nowAt(node) : std::nullopt; now && before <= OpenedWhole)
            expandNode(*now, false);
    if (const std::optional<int> now = selected ? nowAt(*selected) : std::nullopt)
        selectionModel()->setCurrentIndex(indexOf(*now), QItemSelectionModel::ClearAndSelect);
}

int NodeTree::nodeCount() const
{
    return m_model->size();
}

TreeNode NodeTree::nodeAt(int node) const
{
    return m_model->at(node);
}

std::optional<int> NodeTree::find(const QString &key) const
{
    return m_model->find(key);
}

void NodeTree::selectNode(std::optional<int> node)
{
    if (!node) {
        selectionModel()->clear();
        return;
    }
    setCurrentIndex(indexOf(*node));
    scrollTo(indexOf(*node));
}

std::optional<int> NodeTree::selectedNode() const
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? std::optional<int>() : nodeOf(selected.front());
}

void NodeTree::expandNode(int node, bool expanded)
{
    setExpanded(indexOf(node), expanded);
}

bool NodeTree::isNodeExpanded(int node) const
{
    return isExpanded(indexOf(node));
}

QModelIndex NodeTree::indexOf(int node) const
{
    look();
    m_model->publish();
    return m_model->indexOf(node);
}

int NodeTree::nodeOf(const QModelIndex &index) const
{
    return NodeTreeModel::nodeOf(index);
}

QSize NodeTree::sizeHint() const
{
    return QSize(fontMetrics().averageCharWidth() * 36, fontMetrics().lineSpacing() * 12);
}

/// All rows on show, so far as there are not too many.
void NodeTree::collectWide(const QModelIndex &parent, int depth, std::vector<Wide> &rows) const
{
    constexpr size_t Most = 3000;
    const int count = model()->rowCount(parent);
    for (int row = 0; row < count && rows.size() < Most; ++row) {
        const QModelIndex index = model()->index(row, 0, parent);
        rows.push_back({roughWidth(index.data().toString()) + depth * indentation(), depth, index});
        if (isExpanded(index))
            collectWide(index, depth + 1, rows);
    }
}

/// The width of a text character by character, without the laying out that takes a hundred times as long.
int NodeTree::roughWidth(const QString &text) const
{
    return std::accumulate(text.begin(), text.end(), 0, [this](int width, QChar character) {
        const QChar known = character.unicode() < m_widths.size() ? character : u'W';
        int &own = m_widths[known.unicode()];
        if (own == 0)
            own = fontMetrics().horizontalAdvance(known);
        return width + own;
    });
}

/// The view's own way lays out a thousand rows each time. Here those are that seem the widest.
int NodeTree::sizeHintForColumn(int column) const
{
    if (!isVisible()) // nobody has looked at the nodes yet
        return QTreeView::sizeHintForColumn(column);
    if (!m_widest)
        m_widest = widest();
    return *m_widest;
}

int NodeTree::widest() const
{
    constexpr std::ptrdiff_t Measured = 12;
    std::vector<Wide> rows;
    collectWide(rootIndex(), rootIsDecorated() ? 1 : 0, rows);
    const auto end = rows.begin() + std::min(Measured, std::ssize(rows));
    std::partial_sort(rows.begin(), end, rows.end(),
                      [](const Wide &one, const Wide &other) { return one.width > other.width; });
    int widest = rows.empty() ? -1 : 0;
    std::for_each(rows.begin(), end, [&](const Wide &row) {
        widest = std::max(widest, sizeHintForIndex(row.index).width() + row.depth * indentation());
    });
    return widest;
}

/// Whatever may change how wide a row is, or which of them are on show.
void NodeTree::forgetWidestWith(const QAbstractItemModel &model)
{
    const auto forget = [this] { m_widest.reset(); };
    connect(&model, &QAbstractItemModel::dataChanged, this, forget);
    connect(&model, &QAbstractItemModel::rowsInserted, this, forget);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(&model, &QAbstractItemModel::layoutChanged, this, forget);
    connect(&model, &QAbstractItemModel::modelReset, this, forget);
    forget();
}

void NodeTree::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_widest.reset();
        m_widths = {};
    }
    QTreeView::changeEvent(event);
}

void NodeTree::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid()) {
        Q_EMIT nodeEntered(nodeOf(currentIndex()));
    } else {
        m_widest.reset(); // an asterisk opens nodes of which the view does not tell
        QTreeView::keyPressEvent(event);
    }
}
