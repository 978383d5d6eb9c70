#pragma once

#include <QHash>
#include <QIcon>
#include <QTreeWidget>
#include <functional>
#include <optional>

/// One row of a list view. Columns are counted from 0: column 0 is `text`, column 1 `subItems[0]` and so on.
struct ListRow {
    QString key; ///< unique in its list; empty for a row without one
    QString text;
    int smallIcon = 0; ///< one of the list's icons, counted from 1; 0 for none
    QStringList subItems = {};
    QString tag = {}; ///< the form's own note on the row, never shown
    bool checked = false;
};

/// A list in columns. Rows are numbered from 0 in the order in which they stand.
class ListView final : public QTreeWidget
{
    Q_OBJECT
public:
    explicit ListView(const QStringList &columns, QWidget *parent = nullptr);

    void setSmallIcons(const QList<QIcon> &icons);
    void setMultiSelect(bool on);
    void setCheckBoxes(bool on); ///< before the first row is added
    /// Makes the first column as wide as its title and the rows that are there ask for, within reason.
    void fitFirstColumn();
    /// Takes files that are dropped on the list.
    void setFileDropHandler(std::function<void(const QStringList &)> dropped);
    bool hasCheckBoxes() const { return m_checkBoxes; }
    /// Lights the row under the pointer up.
    void setHotTracking(bool on);

    /// Adds the row in front of the row `before`, at the end without one. False, and no row, if its key is in the list.
    bool addRow(const ListRow &row, std::optional<int> before = {});
    void removeRow(int row);
    void clearRows();
    int rowCount() const { return topLevelItemCount(); }
    ListRow rowAt(int row) const;
    /// False, and nothing changed, if another row has that key.
    bool setRow(int row, const ListRow &value);
    std::optional<int> find(const QString &key) const;

    std::optional<int> selectedRow() const; ///< the first one
    QList<int> selectedRows() const;        ///< from the top
    void selectRow(int row, bool selected = true);

    QSize sizeHint() const override;

Q_SIGNALS:
    void rowClicked(int row);
    void rowDoubleClicked(int row);
    void rowEntered(int row); ///< Enter was pressed on it
    void rowTicked(int row);  ///< by the user

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void lightUp(QTreeWidgetItem *item);
    bool isTaken(const QString &key, const QTreeWidgetItem *except) const;
    void fillItem(QTreeWidgetItem &item, const ListRow &row);

    QHash<QString, QTreeWidgetItem *> m_byKey;
    QList<QIcon> m_icons;
    std::function<void(const QStringList &)> m_dropped;
    QTreeWidgetItem *m_lit = nullptr; ///< the row under the pointer, where that is followed
    bool m_checkBoxes = false;
    bool m_showing = false;
};
