#include "document/assistantPlacing.h"

#include <algorithm>

namespace
{
// In pixels of 15 twips.
constexpr int listGapX = 16;
constexpr int listGapY = 8;
constexpr int tipGap = 8;
constexpr int tipStep = 200; ///< how far a tip goes back that would pass the right edge
constexpr int tipEdge = 4;

/// A row, and half a row of air.
int oneRow(const TipText &text)
{
    return text.rowHeight + text.rowHeight / 2;
}

QSize sizeOfTip(const AssistantGround &ground, const TipText &text)
{
    const int width = tipGap + text.width;
    if (width <= std::min(ground.area.width(), tipGap + text.widest))
        return {width, oneRow(text)};
    const int room = std::max(std::min(ground.edit.width(), tipGap + text.widest) - tipGap, 1);
    const int rows = std::clamp(text.rows(room), 1, MostTipRows);
    return {room, oneRow(text) + (rows - 1) * text.rowHeight};
}

int leftOfTip(const AssistantGround &ground, int width)
{
    int left = ground.caret.x();
    if (left + width > ground.area.width())
        left -= tipStep;
    const bool outside = left < ground.edit.left() || left + width > ground.edit.right() + 1;
    return outside ? ground.edit.left() + tipEdge : left;
}
} // namespace

QRect placeOfList(const AssistantGround &ground, const QSize &wanted)
{
    const QSize size = wanted.boundedTo(ground.area);
    QRect place(ground.caret + QPoint(listGapX, listGapY), size);
    if (place.right() >= ground.area.width()) {
        // On that side it must leave the word to be seen.
        place.moveLeft(std::max(ground.caret.x() - size.width(), 0));
        place.moveTop(ground.caret.y() + std::max(listGapY, ground.lineHeight));
    }
    if (place.bottom() >= ground.area.height())
        place.moveTop(ground.caret.y() + listGapY - size.height() - ground.lineHeight);
    place.moveTop(std::max(place.top(), 0));
    return place;
}

QRect placeOfTip(const AssistantGround &ground, const TipText &text)
{
    QSize size = sizeOfTip(ground, text);
    const int below = ground.caret.y() + std::max(oneRow(text), ground.lineHeight);
    const int roomBelow = ground.area.height() - below;
    const int roomAbove = ground.caret.y();
    const bool goesAbove = size.height() > roomBelow && roomAbove > roomBelow;
    size.setHeight(std::min(size.height(), std::max(goesAbove ? roomAbove : roomBelow, oneRow(text))));
    const int top = goesAbove ? ground.caret.y() - size.height() : below;
    return {QPoint(leftOfTip(ground, size.width()), top), size};
}
