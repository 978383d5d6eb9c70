#include "insertion/frmInsImageMap.h"

#include "common/mainWindow.h"
#include "common/paths.h"
#include "insertion/drawingBoard.h"
#include "insertion/imageFilter.h"
#include "insertion/tagValues.h"
#include "pictures/pictureLoader.h"
#include "project/modProjectFileCtrl.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/yielder.h"
#include "widgets/listView.h"
#include "widgets/programIcon.h"
#include "widgets/themeColour.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QToolBar>

namespace
{
constexpr int MostImages = 100;
constexpr int DesignMaximum = 100;
constexpr QSize LargestPixels(5000, 5000);
constexpr QSize LeastPlace(360, 240);
constexpr QSize UsualWindow(900, 640);
constexpr int CharactersOfAreas = 30; // the largest place there is, "9999, 9999" twice, fits in
constexpr ColourValue DarkBlue = colourOf(0, 0, 0x80);
constexpr ColourValue Blue = colourOf(0, 0, 0xFF);
constexpr ColourValue White = colourOf(0xFF, 0xFF, 0xFF);
const QString TimesSign = QStringLiteral("\u00D7");

void drawMark(QPainter &painter, const DrawnMark &mark, int zoom)
{
    const QLine line = QLineF(mark.line.p1() * zoom, mark.line.p2() * zoom).toLine();
    const int radius = static_cast<int>(mark.radius * zoom);
    switch (mark.kind) {
    case DrawnMark::Kind::Line:
        painter.drawLine(line);
        break;
    case DrawnMark::Kind::Box:
        painter.drawRect(std::min(line.x1(), line.x2()), std::min(line.y1(), line.y2()), std::abs(line.dx()),
                         std::abs(line.dy()));
        break;
    case DrawnMark::Kind::Circle:
        painter.drawEllipse(line.p1(), radius, radius);
        break;
    }
}

} // namespace

frmInsImageMap::frmInsImageMap(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsImageMap"),
                              .caption = QStringLiteral("Insert Image Map Coordinates "),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_ImageMap.htm"),
                              .okCaption = QStringLiteral("&Insert")})
{
}

void frmInsImageMap::Form_Load()
{
    setContent(ui::beside({
        ui::beside({ui::column({sourceRows(), toolLine(), drawingPlace().stretched()}), areaColumn()}),
        dialogButtons(),
    }));
    window()->resize(UsualWindow.boundedTo(window()->screen()->availableSize()));
    m_drawing.begin();
    makeFigures();
    cdlImageFile = BrowseDialog(imageFilter(context(), QStringLiteral("All Supported Images")));
    LoadedImage.clear(); // the controls are new: whatever was loaded is to be loaded again
    enableDrawing(false);
    showAreas();
    listImages();
    if (!isLoaded())
        return;
    FillProjectFileList(context(), ProjectFiles::Images, *cboSrc);
    cmdBrowseSrc_Click();
}

ui::Node frmInsImageMap::sourceRows()
{
    cboSrc = ui::combo(QStringLiteral("cboSrc"));
    takesPath(cboSrc);
    ui::onLostFocus(cboSrc, [this] { cboSrc_LostFocus(); });
    QPushButton *cmdBrowseSrc =
        ui::button(QStringLiteral("cmdBrowseSrc"), QStringLiteral("Browse..."), [this] { cmdBrowseSrc_Click(); });
    txtImgName = ui::text(QStringLiteral("txtImgName"));
    return ui::rows({
        ui::row(QStringLiteral("Image Path:"), cboSrc, {cmdBrowseSrc}),
        ui::row(QStringLiteral("Image Map Name:"), txtImgName),
    });
}

ui::Node frmInsImageMap::toolLine()
{
    QStringList zooms;
    for (int zoom = 1; zoom <= DrawingBoard::LargestZoom; ++zoom)
        zooms.append(QString::number(zoom) + TimesSign);
    cboZoom = ui::dropList(QStringLiteral("cboZoom"), zooms, [this] { setZoom(cboZoom->currentIndex() + 1); });
    cboZoom->setAccessibleName(QStringLiteral("Zoom"));
    QLabel *lblZoom = ui::label(QStringLiteral("lblZoom"), QStringLiteral("&Zoom:"));
    lblZoom->setBuddy(cboZoom);
    return ui::line({toolBar(), lblZoom, cboZoom, ui::space()});
}

QToolBar *frmInsImageMap::toolBar()
{
    tbrMain = new QToolBar;
    tbrMain->setObjectName(QStringLiteral("tbrMain"));
    tbrMain->setAccessibleName(QStringLiteral("Shapes"));
    tbrMain->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tbrMain->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed); // no tool goes behind an arrow
    new QActionGroup(tbrMain);
    addTool(AreaShape::Rectangle, "Rect", "Rectangle", "rectangle-horizontal", Qt::ALT | Qt::Key_R);
    addTool(AreaShape::Circle, "Circ", "Circle", "circle", Qt::ALT | Qt::Key_C);
    addTool(AreaShape::Polygon, "Poly", "Polygon", "pentagon", Qt::ALT | Qt::Key_P);
    tbrMain->actions().constFirst()->setChecked(true);
    return tbrMain;
}

void frmInsImageMap::addTool(AreaShape tool, const char *key, const char *caption, const char *icon,
                             const QKeySequence &shortcut)
{
    QAction *action = tbrMain->addAction(programIcon(QLatin1String(icon)), QLatin1String(caption));
    action->setData(QLatin1String(key));
    action->setCheckable(true);
    action->setShortcut(shortcut);
    tbrMain->findChild<QActionGroup *>()->addAction(action);
    connect(action, &QAction::triggered, this, [this, tool] { tbrMain_ButtonClick(tool); });
    tbrMain->widgetForAction(action)->setFocusPolicy(Qt::TabFocus); // by keyboard alone, too
}

ui::Node frmInsImageMap::drawingPlace()
{
    hsbHorizontal = ui::scrollBar(QStringLiteral("hsbHorizontal"), Qt::Horizontal, [this] { scroll(); });
    vsbVertical = ui::scrollBar(QStringLiteral("vsbVertical"), Qt::Vertical, [this] { scroll(); });
    hsbHorizontal->setAccessibleName(QStringLiteral("Across the picture"));
    vsbVertical->setAccessibleName(QStringLiteral("Down the picture"));
    for (QScrollBar *bar : {hsbHorizontal, vsbVertical})
        bar->setRange(0, DesignMaximum);
    picBack = new QWidget;
    picBack->setObjectName(QStringLiteral("picBack"));
    picBack->setMinimumSize(LeastPlace);
    picBack->setAutoFillBackground(true);
    picBack->setBackgroundRole(QPalette::Mid);
    picImage = board();
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    grid->addWidget(picBack, 0, 0);
    grid->addWidget(vsbVertical, 0, 1);
    grid->addWidget(hsbHorizontal, 1, 0);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(0, 1);
    return ui::Node(grid);
}

DrawingBoard *frmInsImageMap::board()
{
    auto *made = new DrawingBoard(picBack);
    made->setObjectName(QStringLiteral("picImage"));
    made->setAccessibleName(QStringLiteral("Picture to draw on"));
    setBackColor(*made, White);
    made->setMarks([this](QPainter &painter, int zoom) {
        painter.setPen(Qt::red);
        painter.setBrush({});
        for (const DrawnMark &mark : m_drawing.marks())
            drawMark(painter, mark, zoom);
    });
    connect(made, &DrawingBoard::pressed, this, &frmInsImageMap::picImage_MouseDown);
    connect(made, &DrawingBoard::moved, this, &frmInsImageMap::picImage_MouseMove);
    connect(made, &DrawingBoard::released, this, &frmInsImageMap::picImage_MouseUp);
    connect(made, &DrawingBoard::crossMoved, this, &frmInsImageMap::moveCross);
    connect(made, &DrawingBoard::cornerSet, this, &frmInsImageMap::setCorner);
    connect(made, &DrawingBoard::cornerTakenBack, this, &frmInsImageMap::takeBackCorner);
    connect(made, &DrawingBoard::zoomAsked, this, [this](int zoom) { cboZoom->setCurrentIndex(zoom - 1); });
    connect(made, &DrawingBoard::scrolled, this, &frmInsImageMap::scrollBy);
    return made;
}

ui::Node frmInsImageMap::areaColumn()
{
    lstAreas = ui::listView(QStringLiteral("lstAreas"),
                            {QStringLiteral("Link"), QStringLiteral("Shape"), QStringLiteral("Coordinates")});
    lstAreas->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    lstAreas->header()->setStretchLastSection(false);                      // many corners are scrolled to, not cut
    lstAreas->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding); // the room is the picture's
    lstAreas->setMinimumWidth(lstAreas->fontMetrics().averageCharWidth() * CharactersOfAreas);
    cmdTakeBack =
        ui::button(QStringLiteral("cmdTakeBack"), QStringLiteral("&Take Last Back"), [this] { cmdTakeBack_Click(); });
    cmdTakeBack->setToolTip(QStringLiteral("Takes the area back that was drawn last"));
    lblPlace = ui::label(QStringLiteral("lblPlace"), {});
    lblPlace->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a longer text moves nothing
    return ui::column({ui::under(QStringLiteral("&Areas:"), lstAreas).stretched(), lblPlace, cmdTakeBack});
}

void frmInsImageMap::makeFigures()
{
    const auto figure = [this](const char *name, ColourValue colour, BoardFigure::Kind kind = BoardFigure::Kind::Line) {
        auto *made = new BoardFigure(QLatin1String(name), kind, colour, picImage);
        picImage->addFigure(made);
        return made;
    };
    linRect = figure("linRect", Blue);
    linTop = figure("linTop", DarkBlue);
    linRight = figure("linRight", DarkBlue);
    linBottom = figure("linBottom", DarkBlue);
    linLeft = figure("linLeft", DarkBlue);
    linCirc = figure("linCirc", DarkBlue);
    shpCirc = figure("shpCirc", DarkBlue, BoardFigure::Kind::Oval);
    linPoly = figure("linPoly", DarkBlue);
}

void frmInsImageMap::listImages()
{
    const Document *document = frmMdi().activeDocument();
    if (!document)
        return;
    services().yielder.beginPass();
    for (const QString &image :
         tagValues(document->txtEdit().Text(), QStringLiteral("<img "), QStringLiteral("src"), MostImages)) {
        ui::addRows(*cboSrc, {image});
        services().yielder.yield();
        if (!isLoaded())
            return;
    }
}

/// The designer is on show before the dialog comes up over it.
void frmInsImageMap::cmdBrowseSrc_Click()
{
    presentWindow();
    const std::optional<QString> chosen = cdlImageFile.browse(context());
    if (!isLoaded() || !chosen)
        return;
    cboSrc->setEditText(*chosen);
    enableDrawing(!chosen->isEmpty());
    takeSource();
}

void frmInsImageMap::cboSrc_LostFocus()
{
    if (isLoaded()) // closing the dialog leaves the box, too
        takeSource();
}

void frmInsImageMap::takeSource()
{
    const QString path = cboSrc->currentText();
    if (path != LoadedImage) {
        m_drawing.clearMarks();
        picImage->update();
        LoadedImage = path;
        const std::optional<QString> file = pictureFile(path);
        if (!file && !path.isEmpty()) {
            services().messageBoxes.show(
                {QStringLiteral("Image Not Found"),
                 QStringLiteral(
                     "The image file \"%1\" could not be found. You might need to specify the full image path.")
                     .arg(path),
                 MessageIcon::Information, MessageButtons::OK});
            return;
        }
        showPicture(file.value_or(QString()));
    }
    enableDrawing(!path.isEmpty());
}

/// A relative path is looked for beside the document first, as a browser takes it; nothing if there is no such file.
std::optional<QString> frmInsImageMap::pictureFile(const QString &path) const
{
    if (path.isEmpty())
        return std::nullopt;
    for (const QString &file : {path.startsWith(u'/') ? path : documentFolder() + path, path})
        if (services().files.exists(file))
            return file;
    return std::nullopt;
}

/// Without a file, the picture goes and nothing is told.
void frmInsImageMap::showPicture(const QString &file)
{
    picImage->setPicture({}, {});
    if (file.isEmpty())
        return;
    showBusy(true);
    const std::optional<LoadedPicture> loaded = LoadPicture(file, LargestPixels);
    showBusy(false);
    if (!loaded || loaded->pixels.isNull()) {
        services().messageBoxes.show({QStringLiteral("Error Opening File"),
                                      QStringLiteral("An error occurred while trying to open the image file"),
                                      MessageIcon::Exclamation, MessageButtons::OK});
        return;
    }
    picImage->setPicture(QPixmap::fromImage(loaded->pixels), loaded->size);
    picImage_Resize();
}

void frmInsImageMap::enableDrawing(bool enabled)
{
    picImage->setEnabled(enabled);
    okButton()->setEnabled(enabled);
}

std::optional<QString> frmInsImageMap::markup()
{
    m_drawing.finishPolygon();
    QString text = imageMapMarkup(txtImgName->text(), m_drawing.areas());
    m_drawing.clear();
    return text;
}
