#pragma once

#include <QRect>

class QMdiArea;

/// How the windows in the area are arranged.
enum class MdiArrangement {
    TileHorizontally, ///< one below the other, each as wide as the area
    TileVertically,   ///< side by side, each as high as the area
    Cascade,          ///< one behind the other, each a little lower and further right
    ArrangeIcons,     ///< the minimised ones in rows along the bottom
};

/// Where a window of the area stands that its user has not placed: three quarters of the area in either direction, each
/// a title bar lower and further right than the one before, and from the top again where there is no room left.
QRect usualPlace(const QMdiArea &area, int number);

/// Arranges the visible windows in the order of their making. The first three restore maximised windows and leave the
/// minimised ones alone; the last one touches none but those.
void arrangeWindows(QMdiArea &area, MdiArrangement arrangement);
