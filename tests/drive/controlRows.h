#pragma once

#include <QModelIndex>
#include <QString>
#include <functional>
#include <optional>

class QWidget;

namespace drive
{
/// The rows of a list, combo, tab strip or grid, seen alike. Rows count from 0.
struct ControlRows {
    int count = 0;
    int current = -1; ///< the selected one; -1 without
    std::function<QString(int)> text;
    std::function<QString(int)> key = [](int) { return QString(); };
    std::function<std::optional<QString>(int, int)> subItem = [](int, int) { return std::nullopt; };
    std::function<std::optional<bool>(int)> ticked = [](int) { return std::nullopt; };
    std::function<std::optional<QString>(int)> smallIcon = [](int) { return std::nullopt; }; ///< from 1; "0" for none
    std::function<std::optional<QString>(int)> toolTip = [](int) { return std::nullopt; };
    std::function<std::optional<QString>(int)> header = [](int) { return std::nullopt; }; ///< of a column, from 0
    std::function<bool(int)> selected = {}; ///< by default, whether it is the current one

    bool isSelected(int row) const { return selected ? selected(row) : row == current; }
    /// The row that a script names by number, key or text, in this order, or with `textFirst` by text, key or number.
    std::optional<int> find(const QString &name, bool textFirst = false) const;
    QString told() const; ///< the rows' texts, as messages list them
};

std::optional<ControlRows> rowsOf(const QWidget &control);
} // namespace drive
