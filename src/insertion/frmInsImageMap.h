#pragma once

#include "insertion/areaDrawing.h"
#include "insertion/boardFigure.h"
#include "insertion/browseDialog.h"
#include "insertion/insertionForm.h"
#include "widgets/layout.h"

#include <optional>

class DrawingBoard;
class ListView;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QScrollBar;
class QToolBar;

/// Writes an image map, whose areas are drawn over the picture.
///
/// The areas outlive a dialog that is left without inserting them: they go into the next map, in which they are not
/// seen, unless each use is to begin anew.
class frmInsImageMap final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsImageMap(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;
    void forgetLastUse() override { m_drawing.clear(); }

private:
    ui::Node sourceRows();
    ui::Node toolLine();
    QToolBar *toolBar();
    void addTool(AreaShape tool, const char *key, const char *caption, const char *icon, const QKeySequence &shortcut);
    ui::Node drawingPlace();
    ui::Node areaColumn();
    DrawingBoard *board();
    void makeFigures();
    void listImages();

    void cmdBrowseSrc_Click();
    void cboSrc_LostFocus();
    void takeSource();
    std::optional<QString> pictureFile(const QString &path) const;
    void showPicture(const QString &file);
    void enableDrawing(bool enabled);

    void tbrMain_ButtonClick(AreaShape tool);
    void picImage_MouseDown(const QPointF &at);
    void picImage_MouseMove(const QPointF &at, bool held);
    void picImage_MouseUp(const QPointF &at);
    void picImage_Resize();
    void scroll();
    void scrollBy(const QPoint &steps);
    void scrollTo(const QPoint &place);
    void moveCross(const QPoint &to);
    void setCorner(const QPoint &at);
    void takeBackCorner();
    void cmdTakeBack_Click();
    void setZoom(int zoom);

    void showBands();
    void showAreas();
    void showPlace(const QPointF &at);

    AreaDrawing m_drawing;
    QString LoadedImage; ///< the path loaded last; leaving the box with it does nothing
    BrowseDialog cdlImageFile;
    QComboBox *cboSrc = nullptr;
    QLineEdit *txtImgName = nullptr;
    QToolBar *tbrMain = nullptr;
    QComboBox *cboZoom = nullptr;
    QLabel *lblPlace = nullptr;
    QWidget *picBack = nullptr;
    DrawingBoard *picImage = nullptr;
    QScrollBar *hsbHorizontal = nullptr;
    QScrollBar *vsbVertical = nullptr;
    ListView *lstAreas = nullptr;
    QPushButton *cmdTakeBack = nullptr;
    BoardFigure *linTop = nullptr;
    BoardFigure *linRight = nullptr;
    BoardFigure *linBottom = nullptr;
    BoardFigure *linLeft = nullptr;
    BoardFigure *linRect = nullptr;
    BoardFigure *linCirc = nullptr;
    BoardFigure *shpCirc = nullptr;
    BoardFigure *linPoly = nullptr;
};
