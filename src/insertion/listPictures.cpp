#include "insertion/listPictures.h"

#include <QPainter>
#include <QWidget>

namespace
{
constexpr int Lines = 3;
constexpr int LineWidth = 3;

ListPicture numbering(const char *type, const char *name, const char *markers)
{
    return {QLatin1String(type), QLatin1String(name), QString::fromLatin1(markers).split(u' ')};
}

ListPicture bullets(const char *type, const char *name)
{
    return {QLatin1String(type), QLatin1String(name), {}};
}

/// A bullet of that type, as pages show it: a full disc, an empty circle, a full square.
void drawBullet(QPainter &painter, const QPointF &middle, qreal size, const QString &type)
{
    const QColor colour = painter.pen().color();
    const QRectF place(middle - QPointF(size / 2, size / 2), QSizeF(size, size));
    painter.setPen(QPen(colour, 1.5));
    painter.setBrush(type == u"circle" ? QBrush() : QBrush(colour));
    if (type == u"square")
        painter.drawRect(place);
    else
        painter.drawEllipse(place);
    painter.setBrush({});
    painter.setPen(colour);
}

void drawMarker(QPainter &painter, const QRectF &place, const ListPicture &picture, int line)
{
    if (picture.markers.isEmpty())
        drawBullet(painter, place.center(), place.height() * 0.35, picture.type);
    else
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, picture.markers[line]);
}
} // namespace

const QList<ListPicture> &listPictures()
{
    static const QList<ListPicture> pictures{
        bullets("disc", "Discs"),
        bullets("circle", "Circles"),
        bullets("square", "Squares"),
        numbering("1", "Numbers", "1. 2. 3."),
        numbering("a", "Small letters", "a. b. c."),
        numbering("A", "Capital letters", "A. B. C."),
        numbering("i", "Small Roman numbers", "i. ii. iii."),
        numbering("I", "Capital Roman numbers", "I. II. III."),
    };
    return pictures;
}

QSize listPictureSize(const QWidget &widget)
{
    const int line = widget.fontMetrics().lineSpacing();
    return {line * 4, line * 7 / 2};
}

void drawListPicture(QPainter &painter, const QWidget &widget, const ListPicture &picture)
{
    const QPalette &palette = widget.palette();
    const QRectF page = QRectF(widget.rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette.color(QPalette::Mid));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRect(page);
    const qreal height = page.height() / Lines * 0.9;
    const qreal markers = page.width() * 0.4;
    for (int line = 0; line < Lines; ++line) {
        const qreal top = page.center().y() + (line - Lines / 2.0) * height;
        const qreal middle = top + height / 2;
        painter.setPen(palette.color(QPalette::Text));
        drawMarker(painter, {page.left() + LineWidth, top, markers - LineWidth, height}, picture, line);
        painter.setPen(QPen(palette.color(QPalette::Mid), LineWidth));
        painter.drawLine(QPointF(markers + 2.0 * LineWidth, middle), QPointF(page.right() - 3.0 * LineWidth, middle));
    }
}
