#pragma once

#include "services/printing.h"

#include <QByteArray>
#include <QString>

class MapScene;
class QPainter;
class QRectF;

// The map for paper and files: all of it, on white, whatever the theme and however much of it is in view.

void drawMap(MapScene &scene, QPainter &painter, const QRectF &place);
/// A drawing of the map as a file. The scene outlives it.
SvgJob mapAsSvg(MapScene &scene, const QString &title);
/// Two pixels to one of the screen's, fewer where the picture would grow too large.
QByteArray mapAsPng(MapScene &scene);
