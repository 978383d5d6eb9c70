#include "widgets/checkList.h"

CheckList::CheckList(QWidget *parent) : QListWidget(parent)
{
    connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) { Q_EMIT rowTicked(row(item)); });
}

void CheckList::addRow(const QString &text, bool ticked)
{
    auto *item = new QListWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    addItem(item);
}

bool CheckList::isTicked(int row) const
{
    const QListWidgetItem *found = item(row);
    return found && found->checkState() == Qt::Checked;
}
