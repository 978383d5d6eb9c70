#include "insertion/parameterList.h"

#include "widgets/listView.h"

#include <QHeaderView>
#include <QPushButton>

ui::Node ParameterList::build(const QString &label, const Ask &ask)
{
    lstParam = ui::listView(QStringLiteral("lstParam"), {QStringLiteral("Name"), QStringLiteral("Value")});
    lstParam->header()->setSectionResizeMode(QHeaderView::Stretch);
    QPushButton *cmdAddPar =
        ui::button(QStringLiteral("cmdAddPar"), QStringLiteral("&Add..."), [this, ask] { cmdAddPar_Click(ask); });
    QPushButton *cmdRemPar =
        ui::button(QStringLiteral("cmdRemPar"), QStringLiteral("&Remove"), [this] { cmdRemPar_Click(); });
    return ui::column({
        ui::under(label, lstParam).stretched(),
        ui::line({cmdAddPar, cmdRemPar, ui::space()}),
    });
}

void ParameterList::cmdAddPar_Click(const Ask &ask)
{
    const std::optional<ElementParameter> parameter = ask();
    if (!parameter || !lstParam)
        return;
    ListRow row;
    row.text = parameter->name;
    row.subItems = {parameter->value};
    lstParam->addRow(row);
}

void ParameterList::cmdRemPar_Click()
{
    if (const std::optional<int> row = lstParam->selectedRow())
        lstParam->removeRow(*row);
}

QList<ElementParameter> ParameterList::parameters() const
{
    QList<ElementParameter> all;
    for (int row = 0; row < lstParam->rowCount(); ++row) {
        const ListRow shown = lstParam->rowAt(row);
        all.append({.name = shown.text, .value = shown.subItems.value(0)});
    }
    return all;
}
