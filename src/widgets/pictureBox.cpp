#include "widgets/pictureBox.h"

#include "widgets/accessibleRole.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionFocusRect>

namespace
{
PointerState stateOf(const QMouseEvent &event)
{
    const bool move = event.type() == QEvent::MouseMove;
    return {event.position(), move ? Qt::NoButton : event.button(), event.buttons(), event.modifiers()};
}
} // namespace

PictureBox::PictureBox(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    setAccessibleRole(*this, QAccessible::Graphic);
}

void PictureBox::setPicture(const QPixmap &picture)
{
    m_picture = picture;
    if (m_fit == Fit::SizeToPicture)
        setFixedSize(pictureSize());
    updateGeometry();
    update();
}

void PictureBox::setFit(Fit fit)
{
    m_fit = fit;
    setPicture(m_picture);
}

void PictureBox::setPaint(const Paint &paint)
{
    m_paint = paint;
    update();
}

void PictureBox::setOutlined(bool outlined)
{
    m_outlined = outlined;
    update();
}

void PictureBox::setClickableByKeyboard(bool on)
{
    setFocusPolicy(on ? Qt::StrongFocus : Qt::NoFocus);
    setAccessibleRole(*this, on ? QAccessible::Button : QAccessible::Graphic);
}

QSize PictureBox::pictureSize() const
{
    return m_picture.deviceIndependentSize().toSize();
}

QSize PictureBox::sizeHint() const
{
    const QSize least(fontMetrics().height() * 2, fontMetrics().height() * 2);
    return m_picture.isNull() ? least : pictureSize();
}

void PictureBox::drawPicture(QPainter &painter) const
{
    if (m_fit == Fit::Stretch) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), m_picture);
    } else {
        painter.drawPixmap(0, 0, m_picture);
    }
}

void PictureBox::drawOutline(QPainter &painter) const
{
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush({});
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5)); // a pen draws around the line that it is given
}

void PictureBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!m_picture.isNull())
        drawPicture(painter);
    if (m_paint)
        m_paint(painter);
    if (m_outlined)
        drawOutline(painter);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void PictureBox::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton;
    Q_EMIT mousePressed(stateOf(*event));
}

void PictureBox::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT mouseMoved(stateOf(*event));
}

void PictureBox::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<PictureBox> alive(this); // a handler may take the whole form away
    const bool click = m_pressed && rect().contains(event->position().toPoint());
    m_pressed = m_pressed && event->button() != Qt::LeftButton;
    Q_EMIT mouseReleased(stateOf(*event));
    if (alive && click && event->button() == Qt::LeftButton)
        Q_EMIT clicked();
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

void PictureBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space)
        Q_EMIT clicked();
    else
        QWidget::keyPressEvent(event);
}

void PictureBox::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}
