#pragma once

#include <Qt>

/// How many rows a key takes the selection of a list down, the focus being in the text that the list belongs to: an
/// arrow one, a page key ten, up less than none; 0 for other keys.
inline int rowStep(int key)
{
    constexpr int rowsOfAPage = 10;
    switch (key) {
    case Qt::Key_Down:
        return 1;
    case Qt::Key_Up:
        return -1;
    case Qt::Key_PageDown:
        return rowsOfAPage;
    case Qt::Key_PageUp:
        return -rowsOfAPage;
    default:
        return 0;
    }
}
