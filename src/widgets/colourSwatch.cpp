#include "widgets/colourSwatch.h"

#include "common/colourText.h"
#include "widgets/themeColour.h"

ColourSwatch::ColourSwatch(ColourValue colour, QWidget *parent) : QFrame(parent)
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setBackColor(colour);
}

ColourValue ColourSwatch::BackColor() const
{
    return backColor(*this);
}

void ColourSwatch::setBackColor(ColourValue colour)
{
    ::setBackColor(*this, colour);
    setAccessibleDescription(colourText(colourValue(shownColour(colour, palette()))));
}

QSize ColourSwatch::sizeHint() const
{
    return QSize(fontMetrics().height() * 3, fontMetrics().height() * 3 / 2);
}
