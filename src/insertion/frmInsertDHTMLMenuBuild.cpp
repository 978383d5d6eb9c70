// The pages of the menu designer.
#include "insertion/frmInsertDHTMLMenu.h"

#include "insertion/frmInsertDHTMLMenuSizes.h"
#include "insertion/menuPreview.h"
#include "widgets/colourSwatch.h"
#include "widgets/listView.h"
#include "widgets/numberField.h"
#include "widgets/pictureBox.h"
#include "widgets/programIcon.h"
#include "widgets/spinButton.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

namespace
{
constexpr int LongestWidth = 10;
constexpr int LargestWidth = 9999;
constexpr int CursorSide = 24;
const QString WidestColour = QStringLiteral("#DDDDDD");
} // namespace

ui::Node frmInsertDHTMLMenu::layoutPage()
{
    lstReport = ui::listView(QStringLiteral("lstReport"), {QStringLiteral("Menu Name"), QStringLiteral("Link")},
                             {.selection = [this] { lstReport_ItemClick(); }});
    lstReport->setAccessibleName(QStringLiteral("Menu"));
    lstReport->header()->setSectionResizeMode(QHeaderView::Stretch);
    return ui::beside({
        ui::column({ui::Node(lstReport, 1), rowFields()}),
        rowButtons(),
    });
}

ui::Node frmInsertDHTMLMenu::rowFields()
{
    txtMenuCaption = ui::text(QStringLiteral("txtMenuCaption"), [this] { txtMenuCaption_Change(); });
    txtMenuLink = ui::text(QStringLiteral("txtMenuLink"), [this] { txtMenuLink_Change(); });
    optMenuCaption = ui::option(QStringLiteral("optMenuCaption"), QStringLiteral("New Menu Caption"), [this] {
        m_rows.makeCaption();
        showRows();
    });
    optMenuItem = ui::option(QStringLiteral("optMenuItem"), QStringLiteral("Menu Dropdown List Item"),
                             [this] { optMenuItem_Click(); });
    return ui::rows({
        ui::row(QStringLiteral("Caption:"), txtMenuCaption),
        ui::row(QStringLiteral("Link:"), txtMenuLink),
        ui::row({}, ui::options({optMenuCaption, optMenuItem}, Qt::Horizontal)),
    });
}

ui::Node frmInsertDHTMLMenu::rowButtons()
{
    const auto button = [](const char *name, const char *caption, const char *tip, auto act) {
        QPushButton *made = ui::button(QLatin1String(name), QLatin1String(caption), [act] { act(); });
        made->setToolTip(QLatin1String(tip));
        made->setAutoDefault(false);
        return made;
    };
    const auto adds = [this](void (MenuRows::*add)()) {
        return [this, add] {
            (m_rows.*add)();
            showRows();
            focusOn(txtMenuCaption);
        };
    };
    const auto tries = [this](MenuRows::Refusal (MenuRows::*change)()) {
        return [this, change] { refuse((m_rows.*change)()); };
    };
    QPushButton *mnuMoveUp = button("mnuMoveUp", "", "Move Item Up", tries(&MenuRows::moveUp));
    QPushButton *mnuMoveDown = button("mnuMoveDown", "", "Move Item Down", tries(&MenuRows::moveDown));
    mnuMoveUp->setIcon(programIcon(QStringLiteral("arrow-up")));
    mnuMoveDown->setIcon(programIcon(QStringLiteral("arrow-down")));
    for (QPushButton *arrow : {mnuMoveUp, mnuMoveDown})
        arrow->setAccessibleName(arrow->toolTip());
    return ui::buttons({
        button("mnuNext", "Add &New", "Insert a new menu item below", adds(&MenuRows::addNew)),
        button("cmdMenu", "&Insert Above", "Insert a new menu item above", adds(&MenuRows::insertAbove)),
        button("cmdDelete", "Delete Item", "Delete menu item", tries(&MenuRows::remove)),
        mnuMoveUp,
        mnuMoveDown,
    });
}

ui::Node frmInsertDHTMLMenu::stylePage()
{
    txtWidth = ui::number(QStringLiteral("txtWidth"), LongestWidth, [this] { txtWidth_Change(); });
    SpinButton *updWidth = ui::spin(QStringLiteral("updWidth"), txtWidth, 0, LargestWidth);
    chkPlainMenu =
        ui::check(QStringLiteral("chkPlainMenu"),
                  QStringLiteral("Write &Plain HTML and CSS, for the Browsers of Today"), [this] { showMenu(); });
    const ui::Node rows = ui::rows({
        ui::row(QStringLiteral("Menu Width:"), ui::counted(txtWidth, updWidth),
                {ui::label(QStringLiteral("lblPixels"), QStringLiteral("pixels"))}),
        ui::row(QStringLiteral("Menu Bar Colour:"),
                colourLine(m_bar, {"shpMenuBarColour", "lblMenuBarColour", "cmdMenuBarColour"},
                           QStringLiteral("Menu bar colour"))),
        ui::row(QStringLiteral("Drop-Down Colour:"),
                colourLine(m_dropDown, {"shpDropDownMenuColour", "lblDropDownMenuColour", "cmdDropDownColour"},
                           QStringLiteral("Drop-down colour"))),
        ui::row({}, styleSample()),
    });
    txtWidth->setText(MenuStyle().width);
    return ui::column({cursorLine(), rows, chkPlainMenu, ui::space()});
}

ui::Node frmInsertDHTMLMenu::cursorLine()
{
    chkUseHandPointer =
        ui::check(QStringLiteral("chkUseHandPointer"), QStringLiteral("Menu Is Selected with Hand Mouse Pointer"),
                  [this] { chkUseHandPointer_Click(); });
    const auto cursor = [](const char *name, const char *icon) {
        PictureBox *picture = ui::picture(QLatin1String(name));
        picture->setPicture(programIcon(QLatin1String(icon)).pixmap(CursorSide));
        picture->setFixedSize(CursorSide, CursorSide);
        return picture;
    };
    imgCursorType = cursor("imgCursorType", "mouse-pointer");
    imgCursorHand = cursor("imgCursorHand", "pointer");
    imgCursorArrow = cursor("imgCursorArrow", "mouse-pointer");
    imgCursorType->setAccessibleName(QStringLiteral("Mouse pointer over the menu"));
    return ui::line(
        {chkUseHandPointer, imgCursorType, ui::hidden(imgCursorHand), ui::hidden(imgCursorArrow), ui::space()});
}

ui::Node frmInsertDHTMLMenu::colourLine(Colour &colour, const ColourNames &names, const QString &label)
{
    colour.swatch = ui::swatch(QLatin1String(names.swatch));
    colour.swatch->setAccessibleName(label);
    colour.text = ui::label(QLatin1String(names.text), {});
    colour.text->setMinimumWidth(colour.text->fontMetrics().horizontalAdvance(WidestColour)); // nothing moves with it
    QPushButton *change = ui::button(QLatin1String(names.button), QStringLiteral("Change Colour..."),
                                     [this, &colour] { changeColour(colour); });
    change->setAutoDefault(false);
    return ui::line({colour.swatch, colour.text, change, ui::space()});
}

/// A small bar with a list below it, as wide as the list is to be in its proportion.
QWidget *frmInsertDHTMLMenu::styleSample()
{
    auto *sample = new QWidget;
    sample->setFixedSize(SampleSize);
    sample->setAccessibleName(QStringLiteral("Sample of the colours"));
    const auto shape = [sample](const char *name, const QString &label) {
        ColourSwatch *made = ui::swatch(QLatin1String(name));
        made->setParent(sample);
        made->setAccessibleName(label);
        return made;
    };
    m_bar.preview = shape("shpMenuBar", QStringLiteral("Menu bar"));
    m_dropDown.preview = shape("shpDropDownMenu", QStringLiteral("Drop-down list"));
    m_bar.preview->setGeometry(0, 0, SampleSize.width(), SampleBarHeight);
    m_dropDown.preview->move(SampleBarHeight, SampleBarHeight - 1);
    return sample;
}

ui::Node frmInsertDHTMLMenu::previewGroup()
{
    picPreview = new MenuPreview;
    picPreview->setObjectName(QStringLiteral("picPreview"));
    picPreview->setAccessibleName(QStringLiteral("Preview of the menu"));
    connect(picPreview, &MenuPreview::captionPicked, this, [this](int caption) { pickCaption(caption, -1); });
    connect(picPreview, &MenuPreview::itemPicked, this, &frmInsertDHTMLMenu::pickCaption);
    m_previewFrame = new QScrollArea;
    m_previewFrame->setAccessibleName(QStringLiteral("Preview of the menu"));
    m_previewFrame->setFocusPolicy(Qt::NoFocus); // it follows the row that is selected
    m_previewFrame->setWidgetResizable(true);
    m_previewFrame->setWidget(picPreview);
    m_previewFrame->setMinimumSize(PreviewSize);
    return ui::group(QStringLiteral("Preview"), m_previewFrame);
}
