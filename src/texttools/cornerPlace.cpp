#include "texttools/cornerPlace.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

void placeInCorner(QWidget &window)
{
    constexpr int Margin = 24;
    constexpr int BarsHeight = 130; // about that of the menus and toolbars
    const QWidget *owner = window.parentWidget();
    if (!owner || !window.screen())
        return;
    const QRect screen = window.screen()->availableGeometry();
    const QSize size = window.frameGeometry().size();
    const int left = owner->frameGeometry().right() - size.width() - Margin;
    const int top = owner->frameGeometry().top() + BarsHeight;
    window.move(std::clamp(left, screen.left(), std::max(screen.left(), screen.right() - size.width())),
                std::clamp(top, screen.top(), std::max(screen.top(), screen.bottom() - size.height())));
}
