#include "surface/lineMargin.h"

#include "surface/editSurface.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace
{
constexpr int gap = 4; // pixels on both sides of a number
}

LineMargin::LineMargin(EditSurface *surface) : QWidget(surface), m_surface(surface)
{
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_OpaquePaintEvent); // nothing behind it is to be painted with it
}

int LineMargin::widthNeeded() const
{
    const auto digits = static_cast<int>(QString::number(m_surface->lineCount()).size());
    return digits * fontMetrics().horizontalAdvance(u'8') + 2 * gap;
}

void LineMargin::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().window());
    painter.setPen(palette().color(QPalette::WindowText));
    for (const EditSurface::VisibleLine &line : m_surface->visibleLines()) {
        const QRect place(0, line.top, width() - gap, line.rowHeight);
        if (place.intersects(event->rect()))
            painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, QString::number(line.line + 1));
    }
}

void LineMargin::mousePressEvent(QMouseEvent *event)
{
    m_surface->SetFocus();
    event->accept();
}

void LineMargin::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(m_surface->verticalScrollBar(), event);
}
