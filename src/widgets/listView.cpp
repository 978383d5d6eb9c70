#include "widgets/listView.h"

#include "widgets/droppedFiles.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>

namespace
{
enum Role { KeyRole = Qt::UserRole, TagRole, IconRole };
}

ListView::ListView(const QStringList &columns, QWidget *parent) : QTreeWidget(parent)
{
    setHeaderLabels(columns);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    connect(this, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem *item) { Q_EMIT rowClicked(indexOfTopLevelItem(item)); });
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem *item) { Q_EMIT rowDoubleClicked(indexOfTopLevelItem(item)); });
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item) {
        if (!m_showing)
            Q_EMIT rowTicked(indexOfTopLevelItem(item));
    });
}

void ListView::setSmallIcons(const QList<QIcon> &icons)
{
    m_icons = icons;
    for (int row = 0; row < rowCount(); ++row)
        fillItem(*topLevelItem(row), rowAt(row));
}

void ListView::setMultiSelect(bool on)
{
    setSelectionMode(on ? ExtendedSelection : SingleSelection);
}

void ListView::setCheckBoxes(bool on)
{
    m_checkBoxes = on;
}

void ListView::setFileDropHandler(std::function<void(const QStringList &)> dropped)
{
    m_dropped = std::move(dropped);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
}

void ListView::setHotTracking(bool on)
{
    setMouseTracking(on);
    disconnect(this, &QTreeWidget::itemEntered, this, nullptr);
    if (on)
        connect(this, &QTreeWidget::itemEntered, this, &ListView::lightUp);
}

void ListView::lightUp(QTreeWidgetItem *item)
{
    const QScopedValueRollback<bool> quiet(m_showing, true);
    const auto underline = [this](QTreeWidgetItem *row, bool on) {
        if (!row || indexOfTopLevelItem(row) < 0) // it may have been removed meanwhile
            return;
        QFont font = row->font(0);
        font.setUnderline(on);
        row->setFont(0, font);
    };
    underline(m_lit, false);
    m_lit = item;
    underline(m_lit, true);
}

void ListView::leaveEvent(QEvent *event)
{
    lightUp(nullptr);
    QTreeWidget::leaveEvent(event);
}

bool ListView::isTaken(const QString &key, const QTreeWidgetItem *except) const
{
    const auto found = m_byKey.constFind(key);
    return found != m_byKey.constEnd() && *found != except;
}

bool ListView::addRow(const ListRow &row, std::optional<int> before)
{
    if (isTaken(row.key, nullptr))
        return false;
    auto *item = new QTreeWidgetItem;
    fillItem(*item, row);
    if (!row.key.isEmpty())
        m_byKey.insert(row.key, item);
    insertTopLevelItem(std::clamp(before.value_or(rowCount()), 0, rowCount()), item);
    return true;
}

void ListView::removeRow(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    m_byKey.remove(rowAt(row).key);
    if (m_lit == topLevelItem(row))
        m_lit = nullptr;
    delete takeTopLevelItem(row);
}

void ListView::clearRows()
{
    m_byKey.clear();
    m_lit = nullptr;
    clear();
}

ListRow ListView::rowAt(int row) const
{
    const QTreeWidgetItem &item = *topLevelItem(row);
    ListRow result{item.data(0, KeyRole).toString(), item.text(0),
                   item.data(0, IconRole).toInt(),   {},
                   item.data(0, TagRole).toString(), item.checkState(0) == Qt::Checked};
    for (int column = 1; column < item.columnCount(); ++column)
        result.subItems.append(item.text(column));
    return result;
}

bool ListView::setRow(int row, const ListRow &value)
{
    QTreeWidgetItem *item = topLevelItem(row);
    if (isTaken(value.key, item))
        return false;
    m_byKey.remove(rowAt(row).key);
    if (!value.key.isEmpty())
        m_byKey.insert(value.key, item);
    fillItem(*item, value);
    return true;
}

void ListView::fillItem(QTreeWidgetItem &item, const ListRow &row)
{
    const QScopedValueRollback<bool> quiet(m_showing, true);
    item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren |
                  (m_checkBoxes ? Qt::ItemIsUserCheckable : Qt::NoItemFlags));
    item.setData(0, KeyRole, row.key);
    item.setData(0, TagRole, row.tag);
    item.setData(0, IconRole, row.smallIcon);
    item.setText(0, row.text);
    item.setIcon(0, m_icons.value(row.smallIcon - 1));
    for (int column = 1; column < std::max<int>(item.columnCount(), static_cast<int>(row.subItems.size()) + 1);
         ++column)
        item.setText(column, row.subItems.value(column - 1));
    if (m_checkBoxes)
        item.setCheckState(0, row.checked ? Qt::Checked : Qt::Unchecked);
}

std::optional<int> ListView::find(const QString &key) const
{
    QTreeWidgetItem *item = m_byKey.value(key);
    return item ? indexOfTopLevelItem(item) : std::optional<int>();
}

std::optional<int> ListView::selectedRow() const
{
    const QList<int> rows = selectedRows();
    return rows.isEmpty() ? std::optional<int>() : rows.front();
}

QList<int> ListView::selectedRows() const
{
    QList<int> rows;
    for (const QTreeWidgetItem *item : selectedItems())
        rows.append(indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(item)));
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ListView::selectRow(int row, bool selected)
{
    QTreeWidgetItem *item = topLevelItem(row);
    if (!item)
        return;
    if (selected)
        setCurrentItem(item, 0,
                       selectionMode() == SingleSelection ? QItemSelectionModel::ClearAndSelect
                                                          : QItemSelectionModel::Select);
    item->setSelected(selected);
}

void ListView::fitFirstColumn()
{
    constexpr int MostCharacters = 40;
    resizeColumnToContents(0);
    setColumnWidth(0, std::min(columnWidth(0), fontMetrics().averageCharWidth() * MostCharacters));
}

QSize ListView::sizeHint() const
{
    return QSize(fontMetrics().averageCharWidth() * 24 * std::max(1, columnCount()), fontMetrics().lineSpacing() * 10);
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentItem() && receivers(SIGNAL(rowEntered(int))) > 0)
        Q_EMIT rowEntered(indexOfTopLevelItem(currentItem()));
    else
        QTreeWidget::keyPressEvent(event); // the dialog's default button takes it where the list has no use for it
}

void ListView::dragEnterEvent(QDragEnterEvent *event)
{
    acceptFiles(*event);
}

void ListView::dragMoveEvent(QDragMoveEvent *event)
{
    acceptFiles(*event);
}

void ListView::dropEvent(QDropEvent *event)
{
    acceptFiles(*event);
    if (event->isAccepted() && m_dropped)
        m_dropped(filesOf(*event->mimeData()));
}
