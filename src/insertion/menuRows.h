#pragma once

#include <QList>
#include <QString>
#include <optional>

/// A row of a menu: a caption of its bar, or an item that drops down from the caption above.
struct MenuRow {
    bool item = false;
    QString text = {}; ///< without the mark that an item has in the designer's list
    QString link = {}; ///< of an item; a caption that once was one keeps its own, which is not written
    bool operator==(const MenuRow &) const = default;
};

/// What stands in front of an item's text in the designer's list.
QString menuItemMark();
/// The row's text as the designer's list shows it.
QString shownText(const MenuRow &row);

/// The rows of a menu under design, one of which is selected. The first one is always a caption, and there is always
/// one. Rows are counted from 0.
///
/// What would leave an item at the top is refused: nothing changes, and the answer is what the user is to be told.
class MenuRows
{
public:
    using Refusal = std::optional<QString>;

    const QList<MenuRow> &rows() const { return m_rows; }
    int selected() const { return m_selected; }
    const MenuRow &row() const { return m_rows[m_selected]; } ///< the selected one

    void select(int row); ///< nothing for a row that is not there
    void setText(const QString &text);
    void setLink(const QString &link);
    void makeCaption();
    Refusal makeItem();

    /// Adds a row at the end, of the kind that the row above it has, and selects it. A blank last row is taken instead.
    void addNew();
    /// Puts a caption above the selected row and selects it. If the last row is blank, that one is selected instead.
    void insertAbove();
    /// Deletes the selected row and selects the last one.
    Refusal remove();
    Refusal moveUp();
    Refusal moveDown();

private:
    bool selectsBlankEnd();
    bool isItem(int row) const { return row < m_rows.size() && m_rows[row].item; }
    void swapWith(int other);

    QList<MenuRow> m_rows{MenuRow()};
    int m_selected = 0;
};
