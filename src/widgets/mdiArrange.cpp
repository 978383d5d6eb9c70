#include "widgets/mdiArrange.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>

namespace
{
QList<QMdiSubWindow *> windowsOf(const QMdiArea &area, bool minimised)
{
    QList<QMdiSubWindow *> windows;
    for (QMdiSubWindow *window : area.subWindowList(QMdiArea::CreationOrder))
        if (window->isVisible() && window->isMinimized() == minimised)
            windows.append(window);
    return windows;
}

/// The edge between two neighbours of `count` shares of a length; the last one takes what the division leaves over.
int edge(int length, qsizetype share, qsizetype count)
{
    return static_cast<int>(length * share / count);
}

void tile(const QList<QMdiSubWindow *> &windows, const QSize &room, Qt::Orientation stack)
{
    for (qsizetype i = 0; i < windows.size(); ++i) {
        QRect place(QPoint(), room);
        if (stack == Qt::Vertical) {
            place.setTop(edge(room.height(), i, windows.size()));
            place.setBottom(edge(room.height(), i + 1, windows.size()) - 1);
        } else {
            place.setLeft(edge(room.width(), i, windows.size()));
            place.setRight(edge(room.width(), i + 1, windows.size()) - 1);
        }
        windows[i]->setGeometry(place);
    }
}

void cascade(const QMdiArea &area, const QList<QMdiSubWindow *> &windows)
{
    for (int number = 0; number < windows.size(); ++number) {
        windows[number]->setGeometry(usualPlace(area, number));
        windows[number]->raise();
    }
}

void lineUpIcons(const QList<QMdiSubWindow *> &windows, const QSize &room)
{
    QPoint corner(0, room.height());
    for (QMdiSubWindow *window : windows) {
        if (corner.x() > 0 && corner.x() + window->width() > room.width())
            corner = QPoint(0, corner.y() - window->height());
        window->move(corner.x(), corner.y() - window->height());
        corner.rx() += window->width();
    }
}
} // namespace

QRect usualPlace(const QMdiArea &area, int number)
{
    const QSize room = area.viewport()->size();
    const QSize size = room * 3 / 4;
    const int step = qMax(1, area.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const int rows = qMax(1, qMin(room.width() - size.width(), room.height() - size.height()) / step + 1);
    return {QPoint(step, step) * (number % rows), size};
}

void arrangeWindows(QMdiArea &area, MdiArrangement arrangement)
{
    const QSize room = area.viewport()->size();
    if (arrangement == MdiArrangement::ArrangeIcons) {
        lineUpIcons(windowsOf(area, true), room);
        return;
    }
    const QList<QMdiSubWindow *> windows = windowsOf(area, false);
    QMdiSubWindow *active = area.activeSubWindow();
    for (QMdiSubWindow *window : windows)
        window->showNormal();
    if (arrangement == MdiArrangement::Cascade)
        cascade(area, windows);
    else
        tile(windows, room, arrangement == MdiArrangement::TileHorizontally ? Qt::Vertical : Qt::Horizontal);
    if (active)
        area.setActiveSubWindow(active);
}
