#pragma once

#include <QRect>
#include <QSize>
#include <functional>

/// Where the code assistant's pop-up and tip stand, in pixels of the source's pane: over the preview beside it, a
/// browser of its own would hide them.
struct AssistantGround {
    QSize area;         ///< the whole pane
    QRect edit;         ///< the text's part of it, without the margin of line numbers
    QPoint caret;       ///< the top of the caret's line, at the caret
    int lineHeight = 0; ///< of the text
};

/// The pop-up of that size: to the right of the caret and below; on the other side, or above the line, where it would
/// pass the area. What is larger than the area is cut to it.
QRect placeOfList(const AssistantGround &ground, const QSize &wanted);

/// How the tip measures its text.
struct TipText {
    int width = 0;                      ///< of the whole text in one row
    int widest = 0;                     ///< as wide as a row may be, for the eye to find its way back
    int rowHeight = 0;                  ///< of a row
    std::function<int(int width)> rows; ///< how many it takes in a tip so wide
};

/// The rows that a tip shows at most; what is longer scrolls in it.
constexpr int MostTipRows = 4;

/// The tip: below the caret's line, above it where there is no room; one row, or up to MostTipRows of a text that is
/// wider than a row may be, or than the area. It never stands over the caret's line.
QRect placeOfTip(const AssistantGround &ground, const TipText &text);
