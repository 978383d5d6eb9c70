#include "testForm.h"

#include "services/commonDialogs.h"
#include "services/services.h"
#include "services/timer.h"
#include "surface/editSurface.h"
#include "widgets/characterGrid.h"
#include "widgets/checkList.h"
#include "widgets/colourSelection.h"
#include "widgets/colourSwatch.h"
#include "widgets/fileControls.h"
#include "widgets/layout.h"
#include "widgets/listView.h"
#include "widgets/nodeTree.h"
#include "widgets/numberField.h"
#include "widgets/pictureBox.h"
#include "widgets/spinButton.h"
#include "widgets/tabStrip.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

QIcon dot(Qt::GlobalColor colour)
{
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setBrush(colour);
    painter.drawEllipse(2, 2, 11, 11);
    return picture;
}
} // namespace

frmTestModal::frmTestModal(ProgramContext &context) : Form(context, QStringLiteral("frmTestModal")) {}

void frmTestModal::Form_Load()
{
    setCaption(str("A modal form"));
    answer.clear();
    auto *cmdOK = ui::button(str("cmdOK"), str("&OK"), [this] { cmdOK_Click(); });
    auto *cmdCancel = ui::button(str("cmdCancel"), str("Cancel"), [this] { Unload(); });
    setContent(ui::beside(
        {ui::rows({ui::row(str("&Answer:"), ui::text(str("txtAnswer")))}), ui::buttons({cmdOK, cmdCancel})}));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmTestModal::cmdOK_Click()
{
    answer = qobject_cast<QLineEdit *>(control(str("txtAnswer")))->text();
    Unload();
}

frmTestControls::frmTestControls(ProgramContext &context)
    : Form(context, QStringLiteral("frmTestControls")), m_modal(context)
{
}

frmTestControls::~frmTestControls() = default;

void frmTestControls::Form_Load()
{
    setCaption(str("One control of each kind"));
    txtEvents = ui::textArea(str("txtEvents"));
    txtEvents->setReadOnly(true);
    auto *tabs =
        ui::tabStrip(str("tabPages"), {str("&Text"), str("&Lists"), str("T&rees"), str("C&hoices"), str("&Pictures")},
                     recorder(str("tabPages"), str("Click")));
    auto *cmdOK = ui::button(str("cmdOK"), str("&OK"), recorder(str("cmdOK"), str("Click")));
    auto *cmdCancel = ui::button(str("cmdCancel"), str("Cancel"), [this] { Unload(); });
    auto *cmdModal = ui::button(str("cmdModal"), str("&Modal..."), [this] { cmdModal_Click(); });
    auto *cmdClear = ui::button(str("cmdClear"), str("Clear &Events"), [this] { txtEvents->clear(); });
    setContent(ui::beside({ui::column({ui::pages(tabs, str("picContainer"),
                                                 {textPage(), listPage(), treePage(), choicePage(), picturePage()})
                                           .stretched(),
                                       ui::under(str("E&vents:"), txtEvents)}),
                           ui::buttons({cmdOK, cmdCancel, cmdModal, cmdClear})}));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
    tmrTick = new Timer(
        services().timers, str("tmrTick"), [this] { tmrTick_Timer(); }, window());
    tmrTick->setInterval(500);
    watchFocus();
}

void frmTestControls::Form_Unload()
{
    txtEvents = nullptr;
    tmrTick = nullptr;
}

void frmTestControls::record(const QString &control, const QString &event)
{
    if (txtEvents)
        txtEvents->appendPlainText(control + u' ' + event);
}

std::function<void()> frmTestControls::recorder(const QString &control, const QString &event)
{
    return [this, control, event] { record(control, event); };
}

std::function<void(int)> frmTestControls::indexRecorder(const QString &control, const QString &event)
{
    return [this, control, event](int index) { record(control, QStringLiteral("%1 %2").arg(event).arg(index)); };
}

ui::Node frmTestControls::textPage()
{
    auto *txtText = ui::text(str("txtText"), recorder(str("txtText"), str("Change")));
    ui::onKeyDown(txtText, [this](const QKeyEvent &key) {
        record(QStringLiteral("txtText"), QStringLiteral("KeyDown %1").arg(key.key()));
        return key.key() == Qt::Key_F1; // used up
    });
    auto *txtNumber = ui::number(str("txtNumber"), 3, recorder(str("txtNumber"), str("Change")));
    auto *cmdBrowse = ui::button(str("cmdBrowse"), str("B&rowse..."), recorder(str("cmdBrowse"), str("Click")));
    auto *txtDisabled = ui::text(str("txtDisabled"));
    txtDisabled->setEnabled(false);
    return ui::column(
        {ui::rows({ui::row(str("&File:"), txtText, {cmdBrowse}),
                   ui::row(str("&Number:"), txtNumber,
                           {ui::spin(str("updNumber"), txtNumber, 1, 20), ui::label(str("lblUnit"), str("pieces"))},
                           str("lblNumber")),
                   ui::row(str("&Disabled:"), txtDisabled), ui::row(QString(), ui::hidden(ui::text(str("txtHidden")))),
                   ui::row(str("&Colour:"),
                           ui::colourSelection(
                               str("clrColour"),
                               [this](ColourValue colour) { return services().commonDialogs.showColour(colour); },
                               recorder(str("clrColour"), str("Change")))),
                   ui::row(str("Comb&o:"), ui::combo(str("cboEdit"), {str("one"), str("two"), str("three")},
                                                     recorder(str("cboEdit"), str("Change")),
                                                     recorder(str("cboEdit"), str("Click"))))}),
         ui::under(str("&Area:"), ui::textArea(str("txtArea"), recorder(str("txtArea"), str("Change")))),
         ui::under(str("&Surface:"), surface())});
}

QWidget *frmTestControls::surface()
{
    auto *edit = new EditSurface;
    edit->setObjectName(QStringLiteral("txtEdit"));
    connect(edit, &EditSurface::Change, this, recorder(str("txtEdit"), str("Change")));
    return edit;
}

ui::Node frmTestControls::listPage()
{
    auto *lstSingle = ui::list(str("lstSingle"), recorder(str("lstSingle"), str("Click")),
                               recorder(str("lstSingle"), str("DblClick")));
    lstSingle->addItems({str("Arial"), str("Courier"), str("Times")});
    auto *lstMulti = ui::multiList(str("lstMulti"), recorder(str("lstMulti"), str("Click")));
    lstMulti->addItems({str("first"), str("second"), str("third"), str("fourth")});
    auto *lstTicks = ui::checkList(str("lstTicks"), indexRecorder(str("lstTicks"), str("Tick")));
    lstTicks->addRow(str("Save window settings"), true);
    lstTicks->addRow(str("Word-wrap text"));
    return ui::column({ui::line({ui::under(str("&Single:"), lstSingle), ui::under(str("Mult&iple:"), lstMulti),
                                 ui::under(str("Tic&ks:"), lstTicks)}),
                       ui::under(str("Ro&ws:"), rowsList())});
}

QWidget *frmTestControls::rowsList()
{
    auto *rows =
        ui::listView(str("lvwRows"), {str("Name"), str("Size"), str("Kind")},
                     {recorder(str("lvwRows"), str("Selection")), indexRecorder(str("lvwRows"), str("DblClick")),
                      indexRecorder(str("lvwRows"), str("Enter")), indexRecorder(str("lvwRows"), str("Tick"))});
    rows->setSmallIcons({dot(Qt::blue), dot(Qt::darkGreen)});
    rows->setCheckBoxes(true);
    rows->setMultiSelect(true);
    rows->addRow({str("/site/a.htm"), str("a.htm"), 1, {str("3KB"), str("Editor File")}, str("tag"), true});
    rows->addRow({str("/site/b.gif"), str("b.gif"), 2, {str("12KB"), str("Other File")}, {}, false});
    return rows;
}

ui::Node frmTestControls::treePage()
{
    auto *dirFolders = ui::folderList(str("dirFolders"), services().files, recorder(str("dirFolders"), str("Change")));
    auto *filNames = ui::fileList(str("filNames"), services().files, recorder(str("filNames"), str("PathChange")));
    connect(dirFolders, &FolderList::pathChanged, filNames, [=] { filNames->setPath(dirFolders->Path()); });
    auto *drvPlaces = ui::driveList(str("drvPlaces"), services().files);
    connect(drvPlaces, &QComboBox::currentIndexChanged, dirFolders, [=] { dirFolders->setPath(drvPlaces->Drive()); });
    dirFolders->setPath(drvPlaces->Drive());
    return ui::column({keyedTabs(), ui::line({ui::under(str("&Nodes:"), nodeTree()).stretched(),
                                              ui::column({ui::under(str("&Place:"), drvPlaces),
                                                          ui::under(str("&Folders:"), dirFolders),
                                                          ui::under(str("F&iles:"), filNames)})
                                                  .stretched()})});
}

QWidget *frmTestControls::nodeTree()
{
    auto *tree = ui::tree(str("treNodes"), {indexRecorder(str("treNodes"), str("NodeClick")),
                                            indexRecorder(str("treNodes"), str("DblClick")),
                                            indexRecorder(str("treNodes"), str("Enter"))});
    tree->setImages({{str("Element"), dot(Qt::darkCyan)}, {str("Value"), dot(Qt::darkYellow)}});
    tree->addNode({str("HyperText"), str("html"), str("Element"), -1});
    tree->addNode({str("a"), {}, str("Element"), 0});
    tree->addNode({str("href="), {}, str("Value"), 1});
    tree->addNode({str("b>c"), {}, str("Element"), 0});
    tree->addNode({str("Cascading"), str("css"), {}, -1});
    tree->addNode({str("a"), str("second a"), {}, 4});
    return tree;
}

QWidget *frmTestControls::keyedTabs()
{
    auto *tabs = ui::keyedTabs(str("tabKeyed"), indexRecorder(str("tabKeyed"), str("Click")));
    tabs->setAccessibleName(str("Documents"));
    tabs->addKeyedTab(str("1Key"), str("Untitled1"), dot(Qt::darkGreen));
    tabs->addKeyedTab(str("2Key"), str("R&D.htm"));
    tabs->addKeyedTab(str("3Key"), str("Untitled3"));
    return tabs;
}

ui::Node frmTestControls::choicePage()
{
    auto *chkTick = ui::check(str("chkTick"), str("Use Syntax &Colouring"), recorder(str("chkTick"), str("Click")));
    auto *optLeft = ui::option(str("optLeft"), str("Le&ft"), recorder(str("optLeft"), str("Click")));
    auto *optRight = ui::option(str("optRight"), str("Ri&ght"), recorder(str("optRight"), str("Click")));
    auto *optPercent = ui::option(str("optPercent"), str("P&ercent"));
    auto *optPixels = ui::option(str("optPixels"), str("Pi&xels"));
    optLeft->setChecked(true);
    optPercent->setChecked(true);
    auto *cboDrop = ui::dropList(str("cboDrop"), {str("left"), str("center"), str("right")},
                                 recorder(str("cboDrop"), str("Click")));
    auto *monDate = ui::calendar(str("monDate"), recorder(str("monDate"), str("Change")));
    auto *grdCharacters = ui::characterGrid(str("grdCharacters"), recorder(str("grdCharacters"), str("Click")),
                                            recorder(str("grdCharacters"), str("DblClick")));
    QString characters;
    for (char16_t code = 32; code < 127; ++code)
        characters += QChar(code);
    grdCharacters->setCharacters(characters, 19);
    return ui::column(
        {ui::beside({ui::column({ui::group(str("Side"), ui::column({chkTick, ui::options({optLeft, optRight})}),
                                           str("fraSide")),
                                 ui::options({optPercent, optPixels}, Qt::Horizontal),
                                 ui::rows({ui::row(str("A&lignment:"), cboDrop)})}),
                     ui::under(str("&Date:"), monDate)}),
         ui::under(str("C&haracters:"), grdCharacters)});
}

ui::Node frmTestControls::picturePage()
{
    auto *shpColour = ui::swatch(str("shpColour"));
    shpColour->setBackColor(colourOf(0, 0, 128));
    auto *hsbScroll = ui::scrollBar(str("hsbScroll"), Qt::Horizontal, recorder(str("hsbScroll"), str("Change")));
    auto *vsbScroll = ui::scrollBar(str("vsbScroll"), Qt::Vertical, recorder(str("vsbScroll"), str("Change")));
    QList<ui::Node> bullets;
    for (PictureBox *box :
         ui::array(str("picBullet"), 4, [this](const QString &name, int at) { return bullet(name, at); }))
        bullets.append(box);
    return ui::column({ui::line(bullets + QList<ui::Node>{ui::space(), shpColour}),
                       ui::line({ui::Node(drawing(), 1), vsbScroll}), hsbScroll,
                       ui::label(str("lblClick"), str("Click here"), recorder(str("lblClick"), str("Click")))});
}

QWidget *frmTestControls::drawing()
{
    const auto pointer = [this](const QString &event) {
        return [this, event](const PointerState &state) {
            record(QStringLiteral("picSurface"),
                   QStringLiteral("%1 %2 %3").arg(event).arg(state.position.x()).arg(state.position.y()));
        };
    };
    auto *picture = ui::picture(str("picSurface"), {.click = recorder(str("picSurface"), str("Click")),
                                                    .dblClick = recorder(str("picSurface"), str("DblClick")),
                                                    .mouseDown = pointer(str("MouseDown")),
                                                    .mouseMove = pointer(str("MouseMove")),
                                                    .mouseUp = pointer(str("MouseUp"))});
    picture->setAccessibleName(str("Drawing"));
    picture->setCursor(Qt::CrossCursor);
    picture->setMinimumSize(200, 120);
    picture->setPaint([picture](QPainter &painter) {
        painter.setPen(picture->palette().color(QPalette::WindowText));
        painter.drawRect(10, 10, 80, 40);
        painter.drawEllipse(110, 10, 60, 60);
    });
    return picture;
}

PictureBox *frmTestControls::bullet(const QString &name, int index)
{
    auto *box = ui::picture(name, {.click = recorder(name, str("Click"))});
    box->setAccessibleName(str("Bullet %1").arg(index));
    box->setPaint([box, index](QPainter &painter) {
        painter.setPen(box->palette().color(QPalette::WindowText));
        painter.drawText(box->rect(), Qt::AlignCenter, QString::number(index + 1));
    });
    box->setFixedSize(box->sizeHint());
    return box;
}

void frmTestControls::watchFocus()
{
    for (QWidget *control : window()->findChildren<QWidget *>()) {
        const QString name = control->objectName();
        if (control == txtEvents || control->focusPolicy() == Qt::NoFocus || name.isEmpty() || name.startsWith(u"qt_"))
            continue;
        ui::onGotFocus(control, recorder(name, str("GotFocus")));
        ui::onLostFocus(control, recorder(name, str("LostFocus")));
    }
}

void frmTestControls::cmdModal_Click()
{
    m_modal.ShowModal();
    record(QStringLiteral("frmTestModal"), QStringLiteral("answered \"%1\"").arg(m_modal.answer));
}

void frmTestControls::tmrTick_Timer()
{
    record(QStringLiteral("tmrTick"), QStringLiteral("Timer"));
}
