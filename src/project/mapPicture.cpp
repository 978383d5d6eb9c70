#include "project/mapPicture.h"

#include "project/mapScene.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

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

QByteArray mapAsSvg(MapScene &scene, const QString &title)
{
    QBuffer buffer;
    QSvgGenerator generator;
    const QRectF place(QPointF(), shownPart(scene).size());
    generator.setOutputDevice(&buffer);
    generator.setTitle(title);
    generator.setDescription({});
    generator.setSize(place.size().toSize());
    generator.setViewBox(place);
    QPainter painter(&generator);
    drawMap(scene, painter, place);
    painter.end();
    return buffer.data();
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
