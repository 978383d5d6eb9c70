#pragma once

#include "common/markedRange.h"

#include <QPoint>
#include <QString>
#include <QStringList>
#include <functional>

/// A key as it goes down or up. A Tab with Shift is `Qt::Key_Tab` with the Shift modifier.
struct SurfaceKey {
    int key = 0; ///< a value of Qt::Key
    Qt::KeyboardModifiers modifiers;
    bool discard = false; ///< set by a handler: the surface does nothing with the key, and no keyPress follows
};

/// The character that a key gives (also "\r" for Enter, "\t", "\b", Escape and the control characters of Ctrl+letter),
/// or the text that an input method commits.
struct SurfaceCharacter {
    QString text;
    bool committed = false; ///< by an input method: no key went down for it
    bool discard = false;   ///< set by a handler: the character does not go into the text
};

struct SurfaceMouse {
    QPoint position;             ///< in the surface's own coordinates
    Qt::MouseButton button = {}; ///< the one that was pressed or released; none for a move
    Qt::MouseButtons buttons;    ///< those that are down
    Qt::KeyboardModifiers modifiers;
    bool discard = false; ///< set by a handler: the surface does nothing of its own
};

/// What the owner of an edit surface wants to see before the surface handles it, Locked or not. Each may be left empty.
struct SurfaceHooks {
    std::function<void(SurfaceKey &)> keyDown;
    std::function<void(SurfaceCharacter &)> keyPress; ///< behind keyDown, unless that discarded the key
    std::function<void(SurfaceKey &)> keyUp;          ///< not while the key repeats
    std::function<void(SurfaceMouse &)> mouseDown;
    std::function<void(SurfaceMouse &)> mouseMove; ///< with or without a button down
    std::function<void(SurfaceMouse &)> mouseUp;
    /// Native paths, and the position that they were dropped at; without it files cannot be dropped.
    std::function<void(const QStringList &, qsizetype)> filesDropped;
    /// Whether these files go to the place that they are dropped at, which is shown on their way; without it none do.
    std::function<bool(const QStringList &)> filesHavePlace;
    /// Text from elsewhere than this surface; without it, it goes in where it is dropped.
    std::function<void(const QString &)> textDropped;
    std::function<void(const MarkedRange &)> squareClicked; ///< the square of a Colour mark, with the left button
};

/// Shows an event to the owner's handler; true if that discards it.
template <typename Event>
bool discards(const std::function<void(Event &)> &hook, Event event)
{
    if (hook)
        hook(event);
    return event.discard;
}
