#pragma once

#include <QList>
#include <QRect>

/// Where a window goes whose place was kept: to that place, as long as enough of its title is on a screen to take hold
/// of; otherwise into the screen that is nearest to it. `rooms` are what the screens have room for, in logical pixels.
QRect reachablePlace(const QRect &place, const QList<QRect> &rooms);
/// The rooms of all screens that there are.
QList<QRect> screenRooms();
