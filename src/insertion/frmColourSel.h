#pragma once

#include "forms/form.h"
#include "widgets/controls.h"

#include <QList>

class ColourPreview;

/// The wider choice of colours: hues and greys, and a row of slots for the user's own colours, which are kept. It
/// leaves the colour's text in the program's ColourCode and does not touch that if it goes without one.
class frmColourSel final : public Form
{
    Q_OBJECT
public:
    explicit frmColourSel(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    QWidget *customRow();
    PictureBox *customSlot(const QString &name, int slot);
    void picCustomColour_Click(int slot);
    void chooseSlot(int slot);
    void moveAmongSlots(int slot);
    void choose(ColourValue colour);

    ColourPalette *picColour = nullptr;
    QList<PictureBox *> picCustomColour;
    ColourPreview *m_preview = nullptr;
    ColourValue m_chosen = 0; ///< what OK leaves with
};
