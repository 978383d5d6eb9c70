#include "insertion/frmColourSel.h"

#include "common/colourText.h"
#include "insertion/colourPreview.h"
#include "insertion/modColourProcesses.h"
#include "services/commonDialogs.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/colourPalette.h"
#include "widgets/layout.h"
#include "widgets/pictureBox.h"
#include "widgets/themeColour.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace
{
constexpr int Slots = 16;
constexpr ColourValue White = 0xFFFFFF;

/// The colour kept for a slot; white where the store holds none that could be one.
ColourValue keptColour(SettingsStore &store, int slot)
{
    bool isNumber = false;
    const uint colour = settings::read(store, settings::CustomColour, slot).toUInt(&isNumber);
    return isNumber && colour <= White ? colour : White;
}

void show(PictureBox &box, ColourValue colour)
{
    setBackColor(box, colour);
    box.setAccessibleDescription(colourText(colour));
    box.setToolTip(colourText(colour));
}
} // namespace

frmColourSel::frmColourSel(ProgramContext &context) : Form(context, QStringLiteral("frmColourSel"))
{
    setCaption(QStringLiteral("Other Colours"));
}

void frmColourSel::Form_Load()
{
    picColour = ui::colourPalette(QStringLiteral("picColour"), wideColours(), WideColumns,
                                  [this] { leaveWithColour(*this, context(), picColour->currentColour()); });
    m_preview = new ColourPreview;
    connect(picColour, &ColourPalette::currentChanged, this, [this] { choose(picColour->currentColour()); });
    connect(picColour, &ColourPalette::pointedChanged, this,
            [this] { m_preview->setColour(picColour->pointedColour().value_or(m_chosen)); });
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"),
                                    [this] { leaveWithColour(*this, context(), m_chosen); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    setContent(ui::beside({
        ui::column({
            ui::under(QStringLiteral("&Colours:"), picColour).stretched(),
            ui::under(QStringLiteral("C&ustom colours (click to set):"), customRow()),
            m_preview,
        }),
        ui::buttons({cmdOK, cmdCancel}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
    choose(picColour->currentColour());
    picColour->setFocus();
}

QWidget *frmColourSel::customRow()
{
    auto *row = new QWidget;
    row->setObjectName(QStringLiteral("picCustomColour"));
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    picCustomColour = ui::array(QStringLiteral("picCustomColour"), Slots,
                                [this](const QString &name, int slot) { return customSlot(name, slot); });
    for (PictureBox *slot : picCustomColour)
        layout->addWidget(slot);
    row->setFocusProxy(picCustomColour.constFirst());
    return row;
}

PictureBox *frmColourSel::customSlot(const QString &name, int slot)
{
    PictureBox *box = ui::picture(name, {.click = [this, slot] { picCustomColour_Click(slot); }});
    box->setAccessibleName(QStringLiteral("Custom colour %1").arg(slot + 1));
    box->setOutlined(true);
    box->setMinimumSize(box->fontMetrics().lineSpacing(), box->fontMetrics().lineSpacing() * 3 / 2);
    show(*box, keptColour(services().settings, slot));
    ui::onGotFocus(box, [this, slot] { chooseSlot(slot); });
    ui::onKeyDown(box, [this, slot](const QKeyEvent &event) {
        const int step = event.key() == Qt::Key_Left ? -1 : event.key() == Qt::Key_Right ? 1 : 0;
        if (step != 0)
            moveAmongSlots(slot + step);
        return step != 0;
    });
    return box;
}

void frmColourSel::picCustomColour_Click(int slot)
{
    PictureBox &box = *picCustomColour[slot];
    const std::optional<ColourValue> colour = services().commonDialogs.showColour(backColor(box));
    if (!colour)
        return;
    show(box, *colour);
    settings::write(services().settings, settings::CustomColour, QString::number(*colour), slot);
    choose(*colour);
}

void frmColourSel::chooseSlot(int slot)
{
    choose(backColor(*picCustomColour[slot]));
}

void frmColourSel::moveAmongSlots(int slot)
{
    if (slot >= 0 && slot < picCustomColour.size())
        picCustomColour[slot]->setFocus(Qt::TabFocusReason);
}

void frmColourSel::choose(ColourValue colour)
{
    m_chosen = colour;
    m_preview->setColour(colour);
}
