#include "surface/signMargin.h"

#include "common/plainTip.h"
#include "surface/editSurface.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

namespace
{
constexpr int barWidth = 3; // pixels

void paintSign(QPainter &painter, MarkKind kind, const QColor &colour, const QRectF &cell)
{
    if (kind == MarkKind::Changed) {
        painter.fillRect(QRectF(cell.right() - barWidth + 1, cell.top(), barWidth, cell.height()), colour);
        return;
    }
    constexpr qreal part = 0.26; // of the cell's width
    const qreal radius = cell.width() * part;
    // A ring and a disc are told apart by those who see no colours, too.
    painter.setPen(QPen(colour, 2));
    painter.setBrush(kind == MarkKind::Error ? QBrush(colour) : QBrush());
    painter.drawEllipse(cell.center(), radius, radius);
}
} // namespace

SignMargin::SignMargin(EditSurface *surface) : QWidget(surface), m_surface(surface)
{
    setObjectName(QStringLiteral("picSigns"));
    setAccessibleName(tr("Marks"));
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_OpaquePaintEvent); // nothing behind it is to be painted with it
}

bool SignMargin::shows(MarkKind kind)
{
    return kind == MarkKind::Error || kind == MarkKind::Hint || kind == MarkKind::Changed;
}

int SignMargin::widthNeeded() const
{
    return fontMetrics().height();
}

void SignMargin::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().window());
    painter.setRenderHint(QPainter::Antialiasing);
    for (const EditSurface::VisibleLine &line : m_surface->visibleLines()) {
        const QRect cell(0, line.top, width(), line.rowHeight);
        if (!cell.intersects(event->rect()))
            continue;
        QList<MarkKind> kinds;
        for (const MarkedRange &mark : m_surface->marksOfLine(line.line)) {
            if (shows(mark.kind) && !kinds.contains(mark.kind))
                kinds.append(mark.kind);
        }
        if (kinds.contains(MarkKind::Error)) // of both, the worse one
            kinds.removeAll(MarkKind::Hint);
        for (const MarkKind kind : kinds)
            paintSign(painter, kind, m_surface->markColour(kind), cell);
    }
}

/// The marks with a sign of the line whose first row is there.
QList<MarkedRange> SignMargin::marksAt(int y) const
{
    QList<MarkedRange> marks;
    for (const EditSurface::VisibleLine &line : m_surface->visibleLines()) {
        if (y >= line.top && y < line.top + line.rowHeight)
            marks = m_surface->marksOfLine(line.line);
    }
    marks.removeIf([](const MarkedRange &mark) { return !shows(mark.kind); });
    return marks;
}

bool SignMargin::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), plainTip(tipOf(marksAt(help->pos().y()))), this);
    return true;
}

void SignMargin::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    m_surface->SetFocus();
    const QList<MarkedRange> marks = marksAt(event->pos().y());
    if (marks.isEmpty())
        return;
    m_surface->setSelStart(marks.first().start);
    m_surface->setSelLength(marks.first().length);
}

void SignMargin::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(m_surface->verticalScrollBar(), event);
}
