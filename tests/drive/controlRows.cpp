#include "controlRows.h"

#include "widgets/characterGrid.h"
#include "widgets/checkList.h"
#include "widgets/listView.h"
#include "widgets/tabStrip.h"

#include <QComboBox>
#include <QStringList>

namespace drive
{
namespace
{
ControlRows rowsOfCombo(const QComboBox &combo)
{
    return {combo.count(), combo.currentIndex(), [&combo](int row) { return combo.itemText(row); }};
}

ControlRows rowsOfTabs(const QTabBar &tabs)
{
    ControlRows rows{tabs.count(), tabs.currentIndex(), [&tabs](int row) { return tabs.tabText(row); }};
    rows.toolTip = [&tabs](int row) { return tabs.tabToolTip(row); };
    if (const auto *strip = qobject_cast<const TabStrip *>(&tabs)) {
        rows.key = [strip](int row) { return strip->keyAt(row); };
        rows.text = [strip](int row) { return strip->tabText(row).replace(QStringLiteral("&&"), QStringLiteral("&")); };
    }
    return rows;
}

ControlRows rowsOfList(const QListWidget &list)
{
    const bool single = list.selectionMode() == QListWidget::SingleSelection;
    const bool chosen = list.currentItem() && (!single || list.currentItem()->isSelected());
    ControlRows rows{list.count(), chosen ? list.currentRow() : -1,
                     [&list](int row) { return list.item(row)->text(); }};
    rows.selected = [&list](int row) { return list.item(row)->isSelected(); };
    if (const auto *ticks = qobject_cast<const CheckList *>(&list))
        rows.ticked = [ticks](int row) { return ticks->isTicked(row); };
    return rows;
}

std::optional<QString> columnOf(const ListRow &row, int column)
{
    if (column == 0)
        return row.text;
    return column <= row.subItems.size() ? row.subItems[column - 1] : std::optional<QString>();
}

ControlRows rowsOfListView(const ListView &list)
{
    ControlRows rows{list.rowCount(), list.selectedRow().value_or(-1),
                     [&list](int row) { return list.rowAt(row).text; }};
    rows.key = [&list](int row) { return list.rowAt(row).key; };
    rows.subItem = [&list](int row, int column) { return columnOf(list.rowAt(row), column); };
    rows.smallIcon = [&list](int row) { return QString::number(list.rowAt(row).smallIcon); };
    rows.header = [&list](int column) {
        return column < list.columnCount() ? std::optional(list.headerItem()->text(column)) : std::nullopt;
    };
    rows.selected = [&list](int row) { return list.selectedRows().contains(row); };
    if (list.hasCheckBoxes())
        rows.ticked = [&list](int row) { return list.rowAt(row).checked; };
    return rows;
}

/// A list whose rows are a model's.
ControlRows rowsOfModel(const QListView &list)
{
    const QAbstractItemModel &model = *list.model();
    return {model.rowCount(), list.currentIndex().row(),
            [&model](int row) { return model.index(row, 0).data().toString(); }};
}

ControlRows rowsOfGrid(const CharacterGrid &grid)
{
    return {static_cast<int>(grid.characters().size()), grid.selectedCell(),
            [&grid](int cell) { return grid.characters().mid(cell, 1); }};
}

QString withoutMark(QString caption)
{
    return caption.remove(u'&');
}
} // namespace

std::optional<int> ControlRows::find(const QString &name, bool textFirst) const
{
    const auto byNumber = [&]() -> std::optional<int> {
        bool isNumber = false;
        const int number = name.toInt(&isNumber);
        return isNumber && number >= 0 && number < count ? std::optional<int>(number) : std::nullopt;
    };
    const auto first = [&](const auto &matches) -> std::optional<int> {
        for (int row = 0; row < count; ++row) {
            if (matches(row))
                return row;
        }
        return {};
    };
    const auto byKey = [&] { return first([&](int row) { return !name.isEmpty() && key(row) == name; }); };
    const auto byText = [&] {
        const auto exact = first([&](int row) { return text(row) == name; });
        return exact ? exact : first([&](int row) { return withoutMark(text(row)) == name; });
    };
    const auto one = textFirst ? byText() : byNumber();
    if (one)
        return one;
    const auto keyed = byKey();
    if (keyed)
        return keyed;
    return textFirst ? byNumber() : byText();
}

QString ControlRows::told() const
{
    QStringList texts;
    for (int row = 0; row < count; ++row)
        texts.append(u'"' + text(row) + u'"');
    return texts.isEmpty() ? QStringLiteral("no rows") : texts.join(QStringLiteral(", "));
}

std::optional<ControlRows> rowsOf(const QWidget &control)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(&control))
        return rowsOfCombo(*combo);
    if (const auto *tabs = qobject_cast<const QTabBar *>(&control))
        return rowsOfTabs(*tabs);
    if (const auto *list = qobject_cast<const QListWidget *>(&control))
        return rowsOfList(*list);
    if (const auto *list = qobject_cast<const ListView *>(&control))
        return rowsOfListView(*list);
    if (const auto *grid = qobject_cast<const CharacterGrid *>(&control))
        return rowsOfGrid(*grid);
    if (const auto *list = qobject_cast<const QListView *>(&control); list && list->model())
        return rowsOfModel(*list);
    return {};
}
} // namespace drive
