#include "project/mapPicture.h"

#include "project/mapScene.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

namespace
{
constexpr qreal Margin = 16;

QRectF shownPart(const MapScene &scene)
{
    const QRectF all = scene.itemsBoundingRect();
    return all.isEmpty() ? scene.sceneRect() : all.adjusted(-Margin, -Margin, Margin, Margin);
}

QSize pictureSize(const QSizeF &part)
{
    constexpr qreal Scale = 2;
    constexpr qreal Largest = 12'000; ///< pixels of a side
    const qreal scale = std::min({Scale, Largest / part.width(), Largest / part.height()});
    return (part * scale).toSize().expandedTo(QSize(1, 1));
}
} // namespace

void drawMap(MapScene &scene, QPainter &painter, const QRectF &place)
{
    const MapLook before = scene.look();
    scene.setLook(MapLook::onPaper());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    scene.render(&painter, place, shownPart(scene));
    scene.setLook(before);
}

SvgJob mapAsSvg(MapScene &scene, const QString &title)
{
    return {.title = title, .size = shownPart(scene).size(), .draw = [&scene](QPainter &painter, const QRectF &place) {
                drawMap(scene, painter, place);
            }};
}

QByteArray mapAsPng(MapScene &scene)
{
    QImage image(pictureSize(shownPart(scene).size()), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawMap(scene, painter, image.rect());
    painter.end();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}
