// The drawing of areas: where the picture is looked at, what the mouse and the keys do, and what is shown of it.
#include "insertion/frmInsImageMap.h"

#include "insertion/drawingBoard.h"
#include "widgets/listView.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

namespace
{
constexpr int PixelsOfAStep = 5; // of the scroll bars

/// A box between two opposite corners, as a line has them.
QLineF boxAround(const QLineF &radius)
{
    const QPointF half(radius.length(), radius.length());
    return {radius.p1() - half, radius.p1() + half};
}

ListRow rowOf(const MapArea &area, int number)
{
    ListRow row;
    row.text = area.open ? QStringLiteral("\u2013") : QString::number(number);
    row.subItems = {shapeName(area.shape), coordinatesText(area)};
    return row;
}

QString placeText(const QPointF &at)
{
    const QPoint place = at.toPoint();
    return QStringLiteral("%1, %2").arg(place.x()).arg(place.y());
}
} // namespace

/// They run well past the picture's end: a step is more than a pixel.
void frmInsImageMap::picImage_Resize()
{
    vsbVertical->setMaximum(picImage->height());
    hsbHorizontal->setMaximum(picImage->width());
    vsbVertical->setPageStep(std::max(1, picBack->height() / PixelsOfAStep));
    hsbHorizontal->setPageStep(std::max(1, picBack->width() / PixelsOfAStep));
}

void frmInsImageMap::scroll()
{
    picImage->move(-hsbHorizontal->value() * PixelsOfAStep, -vsbVertical->value() * PixelsOfAStep);
}

void frmInsImageMap::scrollBy(const QPoint &steps)
{
    constexpr int stepsOfALine = 4;
    hsbHorizontal->setValue(hsbHorizontal->value() + steps.x() * stepsOfALine);
    vsbVertical->setValue(vsbVertical->value() + steps.y() * stepsOfALine);
}

/// Scrolls no more than is needed to see that place of the picture.
void frmInsImageMap::scrollTo(const QPoint &place)
{
    constexpr int margin = 12;
    const auto seen = [](QScrollBar &bar, int at, int room) {
        const int least = (at + margin - room + PixelsOfAStep - 1) / PixelsOfAStep;
        const int most = std::max(0, (at - margin) / PixelsOfAStep);
        bar.setValue(std::clamp(bar.value(), std::min(least, most), most));
    };
    seen(*hsbHorizontal, place.x() * picImage->zoom(), picBack->width());
    seen(*vsbVertical, place.y() * picImage->zoom(), picBack->height());
}

void frmInsImageMap::setZoom(int zoom)
{
    picImage->setZoom(zoom);
    picImage_Resize();
    scrollTo(picImage->cross());
}

void frmInsImageMap::tbrMain_ButtonClick(AreaShape tool)
{
    m_drawing.choose(tool);
    showBands();
    showAreas();
}

void frmInsImageMap::picImage_MouseDown(const QPointF &at)
{
    m_drawing.press(at);
    showBands();
    showPlace(at);
}

void frmInsImageMap::picImage_MouseMove(const QPointF &at, bool held)
{
    m_drawing.move(at, held);
    showBands();
    showPlace(at);
}

void frmInsImageMap::picImage_MouseUp(const QPointF &at)
{
    m_drawing.release(at);
    showBands();
    showAreas();
}

void frmInsImageMap::moveCross(const QPoint &to)
{
    scrollTo(to);
    picImage_MouseMove(to, true);
    picImage->setAccessibleDescription(lblPlace->text());
}

/// A rectangle and a circle are begun by one corner and done by the next; each corner of a polygon is done at once.
void frmInsImageMap::setCorner(const QPoint &at)
{
    const bool begins = m_drawing.tool() == AreaShape::Polygon || !m_drawing.isDrawing();
    if (begins)
        picImage_MouseDown(at);
    if (!begins || m_drawing.tool() == AreaShape::Polygon)
        picImage_MouseUp(at);
}

void frmInsImageMap::takeBackCorner()
{
    if (!m_drawing.takeBackCorner())
        return;
    showBands();
    showAreas();
}

void frmInsImageMap::cmdTakeBack_Click()
{
    m_drawing.takeBackArea();
    showBands();
    showAreas();
}

void frmInsImageMap::showBands()
{
    const QLineF box = m_drawing.rectangle().line;
    const QPointF right(box.x2(), box.y1());
    const QPointF left(box.x1(), box.y2());
    const bool sides = m_drawing.sidesVisible();
    linRect->place(box, m_drawing.rectangle().visible);
    linTop->place({box.p1(), right}, sides);
    linRight->place({box.p2(), right}, sides);
    linBottom->place({box.p2(), left}, sides);
    linLeft->place({box.p1(), left}, sides);
    linCirc->place(m_drawing.circle().line, m_drawing.circle().visible);
    shpCirc->place(boxAround(m_drawing.circle().line), m_drawing.ovalVisible());
    linPoly->place(m_drawing.polygon().line, m_drawing.polygon().visible);
}

void frmInsImageMap::showAreas()
{
    picImage->update();
    lstAreas->clearRows();
    int number = 0;
    for (const MapArea &area : m_drawing.areas()) {
        lstAreas->addRow(rowOf(area, number));
        number += area.open ? 0 : 1;
    }
    lstAreas->scrollToBottom();
    cmdTakeBack->setEnabled(!m_drawing.areas().isEmpty());
}

/// Where the pointer is; while it draws, from where it came as well.
void frmInsImageMap::showPlace(const QPointF &at)
{
    const RubberBand *const bands[] = {&m_drawing.rectangle(), &m_drawing.circle(), &m_drawing.polygon()};
    QString text = placeText(at);
    for (const RubberBand *band : bands)
        if (band->visible)
            text = placeText(band->line.p1()) + QStringLiteral(" \u2192 ") + text;
    lblPlace->setText(text);
}
