#pragma once

#include "common/colour.h"
#include "insertion/insertionForm.h"
#include "insertion/menuMarkup.h"
#include "insertion/menuRows.h"
#include "widgets/layout.h"

class ColourSwatch;
class ListView;
class MenuPreview;
class NumberField;
class PictureBox;
class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QScrollArea;

/// Writes a navigation bar from which lists of links drop down, and what it needs in the page's head.
class frmInsertDHTMLMenu final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsertDHTMLMenu(ProgramContext &context);

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    std::optional<QString> markup() override;
    void afterInsertion(TextSurface &edit) override;

private:
    /// A colour of the menu with all that shows it.
    struct Colour {
        ColourValue value = 0;
        QLabel *text = nullptr;
        ColourSwatch *swatch = nullptr;
        ColourSwatch *preview = nullptr;
    };

    struct ColourNames {
        const char *swatch;
        const char *text;
        const char *button;
    };

    ui::Node layoutPage();
    ui::Node rowFields();
    ui::Node rowButtons();
    ui::Node stylePage();
    ui::Node cursorLine();
    ui::Node colourLine(Colour &colour, const ColourNames &names, const QString &label);
    QWidget *styleSample();
    ui::Node previewGroup();

    void lstReport_ItemClick();
    void txtMenuCaption_Change();
    void txtMenuLink_Change();
    void optMenuItem_Click();
    void refuse(const MenuRows::Refusal &refusal);
    void changeColour(Colour &colour);
    void chkUseHandPointer_Click();
    void txtWidth_Change();
    bool agreesToClose();

    void showColour(Colour &colour, ColourValue value);
    void showRows();
    void showFields();
    void showMenu();
    void pickCaption(int caption, int item);
    MenuStyle style() const;

    MenuRows m_rows;
    bool m_showing = false;   ///< the program fills the controls: their changes are none of the user's
    bool m_confirmed = false; ///< the menu is being inserted
    QString m_head;
    ListView *lstReport = nullptr;
    QLineEdit *txtMenuCaption = nullptr;
    QLineEdit *txtMenuLink = nullptr;
    QRadioButton *optMenuCaption = nullptr;
    QRadioButton *optMenuItem = nullptr;
    QCheckBox *chkUseHandPointer = nullptr;
    PictureBox *imgCursorType = nullptr;
    PictureBox *imgCursorHand = nullptr;
    PictureBox *imgCursorArrow = nullptr;
    NumberField *txtWidth = nullptr;
    QCheckBox *chkPlainMenu = nullptr;
    Colour m_bar;
    Colour m_dropDown;
    MenuPreview *picPreview = nullptr;
    QScrollArea *m_previewFrame = nullptr;
};
