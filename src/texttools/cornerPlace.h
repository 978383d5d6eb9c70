#pragma once

class QWidget;

/// Puts a window that stands beside the text into the upper right corner of the window that owns it, where it hides the
/// least of what it shows there.
void placeInCorner(QWidget &window);
