#include "widgets/screenPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace
{
constexpr QSize Grip(100, 30); ///< of a title, to be taken hold of

bool isReachable(const QRect &place, const QRect &room)
{
    const QRect title(place.topLeft(), QSize(place.width(), Grip.height()));
    const QRect seen = title & room;
    return seen.height() == Grip.height() && seen.width() >= std::min(Grip.width(), place.width());
}

int distance(const QRect &place, const QRect &room)
{
    return (place.center() - room.center()).manhattanLength();
}

/// The start of a length within a range; at the range's own where it does not fit.
int startWithin(int start, int length, int first, int last)
{
    return std::max(first, std::min(start, last + 1 - length));
}
} // namespace

QRect reachablePlace(const QRect &place, const QList<QRect> &rooms)
{
    const bool reachable =
        std::any_of(rooms.begin(), rooms.end(), [&](const QRect &room) { return isReachable(place, room); });
    if (reachable || rooms.isEmpty())
        return place;
    const QRect room = *std::min_element(rooms.begin(), rooms.end(), [&](const QRect &one, const QRect &other) {
        return distance(place, one) < distance(place, other);
    });
    return wholePlace(place, room);
}

QRect wholePlace(const QRect &place, const QRect &room)
{
    return {QPoint(startWithin(place.left(), place.width(), room.left(), room.right()),
                   startWithin(place.top(), place.height(), room.top(), room.bottom())),
            place.size()};
}

QList<QRect> screenRooms()
{
    QList<QRect> rooms;
    for (const QScreen *screen : QGuiApplication::screens())
        rooms.append(screen->availableGeometry());
    return rooms;
}
