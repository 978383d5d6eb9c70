#include "insertion/frmInsertDHTMLMenu.h"

#include "common/colourText.h"
#include "common/numbers.h"
#include "common/programState.h"
#include "common/textSurface.h"
#include "insertion/frmInsertDHTMLMenuSizes.h"
#include "insertion/menuPreview.h"
#include "insertion/readableColour.h"
#include "insertion/writtenMarkup.h"
#include "services/commonDialogs.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/colourSwatch.h"
#include "widgets/listView.h"
#include "widgets/numberField.h"
#include "widgets/pictureBox.h"
#include "widgets/themeColour.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QTabBar>
#include <QTextDocumentFragment>

namespace
{
const QString Break = QStringLiteral("\r\n");
constexpr int LargestShownWidth = 4000;
constexpr int PlainPadding = 4;
constexpr int TwipsOfAPixel = 15;
constexpr qint64 TwipsOfWidth = 5; // the sample shows a third of the size
constexpr qint64 LeastSampleWidth = 120;
const QColor LinkColour(0, 0, 0xEE);

/// Captions and items go into the page as they are: a preview shows what a browser makes of their markup.
QString shownByBrowsers(const QString &text)
{
    const bool plain = !text.contains(u'<') && !text.contains(u'&');
    return plain ? text : QTextDocumentFragment::fromHtml(text).toPlainText();
}

QList<MenuPicture::Caption> captionsOf(const QList<MenuRow> &rows)
{
    QList<MenuPicture::Caption> captions;
    for (const MenuRow &row : rows) {
        if (row.item)
            captions.last().items.append(shownByBrowsers(row.text));
        else
            captions.append({shownByBrowsers(row.text), {}});
    }
    return captions;
}

/// The caption that a row belongs to, counted from 0.
int captionOf(const QList<MenuRow> &rows, int row)
{
    int caption = -1;
    for (int i = 0; i <= row; ++i)
        caption += rows[i].item ? 0 : 1;
    return caption;
}

ListRow listRow(const MenuRow &row)
{
    ListRow shown;
    shown.text = shownText(row);
    shown.subItems = {row.link};
    return shown;
}

MessageBox closeBox()
{
    return {.title = QStringLiteral("Close DHTML Menu Designer"),
            .text = QStringLiteral("This will close the DHTML Menu Designer. You will lose any menu layout that you "
                                   "have designed.\r\n\r\n"
                                   "Do you wish to continue?\r\n\r\n"
                                   "\u00B7 Choose 'No' or 'Cancel' to return to the DHTML Menu Designer.\r\n"
                                   "\u00B7 Choose 'Yes' to close the DHTML Menu Designer without saving your menu "
                                   "layout."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNoCancel,
            .byEnter = MessageAnswer::No};
}
} // namespace

frmInsertDHTMLMenu::frmInsertDHTMLMenu(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsertDHTMLMenu"),
                              .caption = QStringLiteral("DHTML Navigation Menu Designer"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_DHTMLMenu.htm"),
                              .okName = QStringLiteral("cmdInsert"),
                              .okCaption = QStringLiteral("&Insert")})
{
}

void frmInsertDHTMLMenu::Form_Load()
{
    m_rows = MenuRows();
    m_confirmed = false;
    picPreview = nullptr; // made last: until then there is nothing to show the menu in
    QTabBar *tabProperties =
        ui::tabStrip(QStringLiteral("tabProperties"), {QStringLiteral("Layout"), QStringLiteral("Style")});
    tabProperties->setAccessibleName(QStringLiteral("What to design"));
    setContent(ui::beside({
        ui::column({
            ui::pages(tabProperties, QStringLiteral("picContainer"), {layoutPage(), stylePage()}).stretched(),
            previewGroup(),
        }),
        dialogButtons(),
    }));
    showColour(m_bar, colourFromText(MenuStyle().barColour).value_or(0));
    showColour(m_dropDown, colourFromText(MenuStyle().dropDownColour).value_or(0));
    chkUseHandPointer_Click();
    txtWidth_Change();
    showRows();
    txtMenuCaption->setFocus(); // what every menu begins with
}

/// A list view can lose its selection by a click with Ctrl; the menu always has a row that the fields are about.
void frmInsertDHTMLMenu::lstReport_ItemClick()
{
    if (m_showing)
        return;
    if (const std::optional<int> row = lstReport->selectedRow())
        m_rows.select(*row);
    showRows();
}

void frmInsertDHTMLMenu::txtMenuCaption_Change()
{
    if (m_showing)
        return;
    m_rows.setText(txtMenuCaption->text());
    lstReport->setRow(m_rows.selected(), listRow(m_rows.row()));
    showMenu();
}

void frmInsertDHTMLMenu::txtMenuLink_Change()
{
    if (m_showing)
        return;
    m_rows.setLink(txtMenuLink->text());
    lstReport->setRow(m_rows.selected(), listRow(m_rows.row()));
}

void frmInsertDHTMLMenu::optMenuItem_Click()
{
    refuse(m_rows.makeItem());
}

/// Shows what has changed, or tells why nothing has; then the controls go back to what they were.
void frmInsertDHTMLMenu::refuse(const MenuRows::Refusal &refusal)
{
    if (refusal)
        services().messageBoxes.show(
            {QStringLiteral("Menu Caption Required"), *refusal, MessageIcon::Exclamation, MessageButtons::OK});
    showRows();
}

void frmInsertDHTMLMenu::showRows()
{
    const QScopedValueRollback<bool> showing(m_showing, true);
    const QList<MenuRow> &rows = m_rows.rows();
    while (lstReport->rowCount() > rows.size())
        lstReport->removeRow(lstReport->rowCount() - 1);
    for (int row = 0; row < rows.size(); ++row) {
        if (row < lstReport->rowCount())
            lstReport->setRow(row, listRow(rows[row]));
        else
            lstReport->addRow(listRow(rows[row]));
    }
    lstReport->selectRow(m_rows.selected());
    showFields();
    showMenu();
}

void frmInsertDHTMLMenu::showFields()
{
    const QScopedValueRollback<bool> showing(m_showing, true);
    const MenuRow &row = m_rows.row();
    (row.item ? optMenuItem : optMenuCaption)->setChecked(true);
    txtMenuCaption->setText(row.text);
    txtMenuLink->setText(row.link);
    txtMenuLink->setEnabled(row.item);
    setBackColor(*txtMenuLink, row.item ? WindowColour : ButtonFaceColour);
}

void frmInsertDHTMLMenu::showMenu()
{
    if (!picPreview)
        return;
    const bool plain = chkPlainMenu->isChecked();
    const auto colour = [](ColourValue value) { return shownColour(value, {}); };
    const qint64 width = wholeNumber(txtWidth->text());
    picPreview->setPicture({.captions = captionsOf(m_rows.rows()),
                            .bar = colour(m_bar.value),
                            .barText = plain ? colour(readableColour(m_bar.value)) : QColor(Qt::black),
                            .box = colour(m_dropDown.value),
                            .itemText = plain ? colour(readableColour(m_dropDown.value)) : LinkColour,
                            .boxWidth = static_cast<int>(std::clamp<qint64>(width, 1, LargestShownWidth)),
                            .itemPadding = plain ? PlainPadding : 0,
                            .itemBlanks = !plain,
                            .hand = chkUseHandPointer->isChecked()});
    const int open = captionOf(m_rows.rows(), m_rows.selected());
    picPreview->setOpen(open);
    const QPoint middle = picPreview->captionRect(open).center();
    m_previewFrame->ensureVisible(middle.x(), middle.y(), PreviewSize.width() / 3, 0);
}

/// The row that was clicked in the preview becomes the selected one.
void frmInsertDHTMLMenu::pickCaption(int caption, int item)
{
    int at = -1;
    for (int row = 0; row < m_rows.rows().size(); ++row) {
        at += m_rows.rows()[row].item ? 0 : 1;
        if (at != caption)
            continue;
        m_rows.select(row + item + 1);
        showRows();
        return;
    }
}

void frmInsertDHTMLMenu::changeColour(Colour &colour)
{
    if (const std::optional<ColourValue> chosen = services().commonDialogs.showColour(colour.value)) {
        showColour(colour, *chosen);
        showMenu();
    }
}

void frmInsertDHTMLMenu::showColour(Colour &colour, ColourValue value)
{
    colour.value = value;
    colour.text->setText(colourText(value));
    colour.swatch->setBackColor(value);
    colour.preview->setBackColor(value);
}

void frmInsertDHTMLMenu::chkUseHandPointer_Click()
{
    imgCursorType->setPicture((chkUseHandPointer->isChecked() ? imgCursorHand : imgCursorArrow)->picture());
    showMenu();
}

void frmInsertDHTMLMenu::txtWidth_Change()
{
    const qint64 width = std::min<qint64>(wholeNumber(txtWidth->text()), LargestShownWidth);
    const qint64 twips = std::max(width, LeastSampleWidth) * TwipsOfWidth;
    m_dropDown.preview->setFixedSize(static_cast<int>(twips / TwipsOfAPixel), SampleSize.height() - SampleBarHeight);
    showMenu();
}

MenuStyle frmInsertDHTMLMenu::style() const
{
    return {.handPointer = chkUseHandPointer->isChecked(),
            .width = txtWidth->text(),
            .barColour = m_bar.text->text(),
            .dropDownColour = m_dropDown.text->text()};
}

std::optional<QString> frmInsertDHTMLMenu::markup()
{
    if (txtWidth->text().isEmpty())
        txtWidth->setText(MenuStyle().width);
    const auto write = chkPlainMenu->isChecked() ? plainMenu : scriptedMenu;
    const MenuMarkup menu = write(m_rows.rows(), style());
    m_head = menu.head + Break + Break;
    m_confirmed = true;
    return Break + Break + menu.bar + Break + Break;
}

/// The caret ends behind the piece in the head, not behind the bar.
void frmInsertDHTMLMenu::afterInsertion(TextSurface &edit)
{
    edit.setSelStart(headPlace(edit.Text()));
    edit.setSelText(writtenMarkup(context(), m_head));
}

bool frmInsertDHTMLMenu::agreesToClose()
{
    return m_rows.rows().size() < 2 || services().messageBoxes.show(closeBox()) == MessageAnswer::Yes;
}

/// The close box asks as Cancel does, and an insertion does not ask.
bool frmInsertDHTMLMenu::Form_QueryUnload()
{
    if (m_confirmed)
        return true;
    const bool closes = agreesToClose();
    context().state.DialogCancelled = closes;
    return closes;
}
