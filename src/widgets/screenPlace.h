#pragma once

#include <QList>
#include <QRect>

/// Where a window goes whose place was kept: to that place, as long as enough of its title is on a screen to take hold
/// of; otherwise into the screen that is nearest to it. `rooms` are what the screens have room for, in logical pixels.
QRect reachablePlace(const QRect &place, const QList<QRect> &rooms);
/// Where a window goes that has grown: up and to the left until it is whole within a screen's room, if it fits there.
QRect wholePlace(const QRect &place, const QRect &room);
/// The rooms of all screens that there are.
QList<QRect> screenRooms();
