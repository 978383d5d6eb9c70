#include "insertion/frmColourSelSafe.h"

#include "common/programState.h"
#include "forms/formRuntime.h"
#include "insertion/colourPreview.h"
#include "insertion/frmColourSel.h"
#include "insertion/modColourProcesses.h"
#include "widgets/colourPalette.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QPushButton>

frmColourSelSafe::frmColourSelSafe(ProgramContext &context) : Form(context, QStringLiteral("frmColourSelSafe"))
{
    setCaption(QStringLiteral("Colour Selection Palette"));
}

void frmColourSelSafe::Form_Load()
{
    picColourSel = ui::colourPalette(QStringLiteral("picColourSel"), safeColours(), SafeColumns,
                                     [this] { leaveWithColour(*this, context(), picColourSel->currentColour()); });
    auto *preview = new ColourPreview;
    const auto showColour = [this, preview] {
        preview->setColour(picColourSel->pointedColour().value_or(picColourSel->currentColour()));
    };
    connect(picColourSel, &ColourPalette::currentChanged, preview, showColour);
    connect(picColourSel, &ColourPalette::pointedChanged, preview, showColour);
    showColour();
    QPushButton *cmdOther =
        ui::button(QStringLiteral("cmdOther"), QStringLiteral("&Other..."), [this] { cmdOther_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    setContent(ui::beside({
        ui::column({ui::under(QStringLiteral("&Safe colours:"), picColourSel), preview}),
        ui::buttons({cmdOther, cmdCancel}),
    }));
    setCancelButton(cmdCancel);
    picColourSel->setFocus();
}

/// The wider choice leaves its colour in the same place; left without one, this palette stays.
void frmColourSelSafe::cmdOther_Click()
{
    context().forms.showModal<frmColourSel>();
    if (!context().state.ColourCode.isEmpty())
        Unload();
}
