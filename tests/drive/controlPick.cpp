#include "controlPick.h"

#include "controlRows.h"
#include "userInput.h"
#include "widgets/characterGrid.h"
#include "widgets/listView.h"
#include "widgets/nodeTree.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDate>
#include <QPointer>
#include <QStyleOptionViewItem>
#include <QTabBar>
#include <QTableView>

namespace drive
{
namespace
{
QModelIndex indexOf(const QAbstractItemView &view, int row)
{
    if (const auto *grid = qobject_cast<const CharacterGrid *>(&view))
        return grid->indexOf(row);
    return view.model()->index(row, 0);
}

/// A point on the index's text that is on view.
QPoint pointOf(QAbstractItemView &view, const QModelIndex &index)
{
    view.scrollTo(index);
    const QRect shown = view.visualRect(index) & view.viewport()->rect();
    return shown.center();
}

ActionResult pickInView(QAbstractItemView &view, int row, std::optional<bool> selected)
{
    const QModelIndex index = indexOf(view, row);
    const bool isSelected = view.selectionModel()->isSelected(index);
    if (selected && *selected == isSelected)
        return {};
    clickAt(*view.viewport(), pointOf(view, index), selected ? Qt::ControlModifier : Qt::NoModifier);
    return {};
}

/// Opens the list and takes the row, as a user does who points at it and presses Enter.
ActionResult pickInCombo(QComboBox &combo, int row)
{
    activateWindowOf(combo);
    combo.setFocus(Qt::MouseFocusReason);
    combo.showPopup();
    // By the mouse: a key sent to the list would reach the text field as well, which takes Enter for itself.
    clickAt(*combo.view()->viewport(),
            pointOf(*combo.view(), combo.model()->index(row, combo.modelColumn(), combo.rootModelIndex())));
    return {};
}

ActionResult unknownRow(const QWidget &control, const ControlRows &rows, const QString &row)
{
    return refused(QStringLiteral("expected a row \"%1\" in %2, it has %3").arg(row, nameOf(control), rows.told()));
}

struct Found {
    std::optional<int> row;
    ActionResult failure;
};

Found findRow(QWidget &control, const QString &name, bool textFirst = false)
{
    const std::optional<ControlRows> rows = rowsOf(control);
    if (!rows)
        return {{}, refused(QStringLiteral("%1 has no rows").arg(nameOf(control)))};
    const std::optional<int> row = rows->find(name, textFirst);
    return {row, row ? ActionResult() : unknownRow(control, *rows, name)};
}

/// The box in front of a row, where the style draws it.
QRect tickBox(const QAbstractItemView &view, const QModelIndex &index)
{
    QStyleOptionViewItem option;
    option.initFrom(&view);
    option.rect = view.visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = index.data().toString();
    option.widget = &view;
    return view.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view);
}

/// The texts on the way to a node; "\>" is a literal ">".
QStringList stepsOf(const QString &path)
{
    QStringList steps{QString()};
    for (qsizetype at = 0; at < path.size(); ++at) {
        const bool literal = path[at] == u'\\' && at + 1 < path.size() && path[at + 1] == u'>';
        if (literal)
            steps.back() += path[++at];
        else if (path[at] == u'>')
            steps.append(QString());
        else
            steps.back() += path[at];
    }
    return steps;
}

std::optional<int> childNamed(const NodeTree &tree, int parent, const QString &text)
{
    const QModelIndex above = tree.indexOf(parent);
    const QAbstractItemModel &nodes = *tree.model();
    for (int row = 0; row < nodes.rowCount(above); ++row) {
        const QModelIndex child = nodes.index(row, 0, above);
        if (child.data().toString() == text)
            return tree.nodeOf(child);
    }
    return {};
}

Found findNode(const NodeTree &tree, const QString &path)
{
    const int number = path.startsWith(u'#') ? path.mid(1).toInt() : -1;
    if (path.startsWith(u'#') && number >= 0 && number < tree.nodeCount())
        return {number, {}};
    std::optional<int> node = -1;
    for (const QString &step : stepsOf(path)) {
        node = childNamed(tree, *node, step);
        if (!node)
            return {{},
                    refused(QStringLiteral("expected a node \"%1\" in %2, there is no \"%3\" on the way")
                                .arg(path, nameOf(tree), step))};
    }
    return {node, {}};
}

void unfoldTo(NodeTree &tree, int node)
{
    const int parent = tree.nodeAt(node).parent;
    if (parent < 0)
        return;
    unfoldTo(tree, parent);
    tree.expandNode(parent);
}

void actOn(NodeTree &tree, int node, NodeAction action)
{
    const QModelIndex index = tree.indexOf(node);
    const QPoint point = pointOf(tree, index);
    switch (action) {
    case NodeAction::Click:
        return clickAt(*tree.viewport(), point);
    case NodeAction::DoubleClick:
        return dblclickAt(*tree.viewport(), point);
    case NodeAction::Enter: // the arrow keys lead there without a click
        activateWindowOf(tree);
        tree.setFocus(Qt::TabFocusReason);
        tree.setCurrentIndex(index);
        return pressKey(tree, Qt::Key_Return);
    }
}

/// The cell of a day in the month on view: the days of the month before stand in front of its first one.
QModelIndex cellOf(const QAbstractItemModel &days, int day)
{
    bool inMonth = false;
    for (int row = 1; row < days.rowCount(); ++row) { // the first row names the days of the week
        for (int column = 0; column < days.columnCount(); ++column) {
            const QModelIndex cell = days.index(row, column);
            inMonth = inMonth || cell.data().toInt() == 1;
            if (inMonth && cell.data().toInt() == day)
                return cell;
        }
    }
    return {};
}
} // namespace

bool hasNode(const NodeTree &tree, const QString &path)
{
    return findNode(tree, path).row.has_value();
}

ActionResult pickRow(QWidget &control, const QString &row, std::optional<bool> selected, bool textFirst)
{
    if (qobject_cast<NodeTree *>(&control))
        return node(control, row, NodeAction::Click);
    const Found found = findRow(control, row, textFirst);
    if (!found.row)
        return found.failure;
    auto *view = qobject_cast<QAbstractItemView *>(&control);
    if (selected && !view)
        return refused(QStringLiteral("%1 has one row selected at a time").arg(nameOf(control)));
    if (view)
        return pickInView(*view, *found.row, selected);
    if (auto *combo = qobject_cast<QComboBox *>(&control))
        return pickInCombo(*combo, *found.row);
    auto &tabs = static_cast<QTabBar &>(control);
    clickAt(tabs, tabs.tabRect(*found.row).center());
    return {};
}

ActionResult dblpick(QObject &control, const QString &row)
{
    if (ActionResult result = usable(control); !result.done)
        return result;
    auto *view = qobject_cast<QAbstractItemView *>(&control);
    if (!view)
        return refused(QStringLiteral("%1 has no rows to double-click").arg(nameOf(control)));
    if (qobject_cast<NodeTree *>(&control))
        return node(control, row, NodeAction::DoubleClick);
    const Found found = findRow(*view, row);
    if (!found.row)
        return found.failure;
    dblclickAt(*view->viewport(), pointOf(*view, indexOf(*view, *found.row)));
    return {};
}

ActionResult tick(QObject &control, const QString &row, bool ticked)
{
    if (ActionResult result = usable(control); !result.done)
        return result;
    auto *view = qobject_cast<QAbstractItemView *>(&control);
    const Found found =
        view ? findRow(*view, row) : Found{{}, refused(nameOf(control) + QStringLiteral(" has no rows"))};
    if (!found.row)
        return found.failure;
    const std::optional<bool> before = rowsOf(*view)->ticked(*found.row);
    if (!before)
        return refused(QStringLiteral("the rows of %1 have no ticks").arg(nameOf(control)));
    const QModelIndex index = indexOf(*view, *found.row);
    const QPointer<QAbstractItemView> alive(view);
    view->scrollTo(index);
    if (*before != ticked)
        clickAt(*view->viewport(), tickBox(*view, index).center());
    if (alive && rowsOf(*view)->ticked(*found.row) != ticked)
        return refused(QStringLiteral("expected the tick of %1 to turn, it did not").arg(row));
    return {};
}

ActionResult node(QObject &control, const QString &path, NodeAction action)
{
    if (ActionResult result = usable(control); !result.done)
        return result;
    auto *tree = qobject_cast<NodeTree *>(&control);
    if (!tree)
        return refused(QStringLiteral("%1 is no tree").arg(nameOf(control)));
    const Found found = findNode(*tree, path);
    if (!found.row)
        return found.failure;
    unfoldTo(*tree, *found.row);
    actOn(*tree, *found.row, action);
    return {};
}

ActionResult pickDate(QCalendarWidget &calendar, const QString &date)
{
    const QDate wanted = QDate::fromString(date, Qt::ISODate);
    if (!wanted.isValid() || wanted < calendar.minimumDate() || wanted > calendar.maximumDate())
        return refused(QStringLiteral("expected a date such as 2026-04-05 for %1, got %2").arg(nameOf(calendar), date));
    calendar.setCurrentPage(wanted.year(), wanted.month());
    auto *days = calendar.findChild<QTableView *>();
    const QModelIndex cell = days ? cellOf(*days->model(), wanted.day()) : QModelIndex();
    if (cell.isValid())
        clickAt(*days->viewport(), pointOf(*days, cell));
    return calendar.selectedDate() == wanted
               ? ActionResult()
               : refused(QStringLiteral("expected %1 to show %2, it shows %3")
                             .arg(nameOf(calendar), date, calendar.selectedDate().toString(Qt::ISODate)));
}
} // namespace drive
