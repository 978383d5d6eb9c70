#pragma once

class QSize;
class QWidget;

/// Makes a dialog that is not yet on show fit a room, in logical pixels. One whose controls need more scrolls; the
/// buttons at its side or at its foot stay in sight, unless they have no room by themselves. Where all fits, nothing is
/// changed.
void fitInto(QWidget &window, const QSize &room);

/// Makes a window that was given no size as high as its wrapped texts need at the width that it is to have; by itself,
/// it would be as high as they need at a smaller one.
void takeNaturalHeight(QWidget &window);

/// The room that the window's screen has for it, without the frame that the desktop draws around it.
QSize roomFor(const QWidget &window);
