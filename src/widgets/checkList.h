#pragma once

#include <QListWidget>

/// A list whose rows have a tick each; Space turns the tick of the current row.
class CheckList final : public QListWidget
{
    Q_OBJECT
public:
    explicit CheckList(QWidget *parent = nullptr);

    void addRow(const QString &text, bool ticked = false);
    bool isTicked(int row) const;

Q_SIGNALS:
    void rowTicked(int row); ///< by the user
};
