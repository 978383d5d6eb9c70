#pragma once

#include <QPoint>
#include <Qt>

/// The step that an arrow key takes in a picture or a grid, whose rows count downwards; none for other keys.
inline QPoint arrowStep(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}
