#pragma once

class QMdiArea;

/// How the windows in the area are arranged.
enum class MdiArrangement {
    TileHorizontally, ///< one below the other, each as wide as the area
    TileVertically,   ///< side by side, each as high as the area
    Cascade,          ///< one behind the other, each a little lower and further right
    ArrangeIcons,     ///< the minimised ones in rows along the bottom
};

/// Arranges the visible windows in the order of their making. The first three restore maximised windows and leave the
/// minimised ones alone; the last one touches none but those.
void arrangeWindows(QMdiArea &area, MdiArrangement arrangement);
