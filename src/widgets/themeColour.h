#pragma once

#include "common/colour.h"

#include <QPalette>

class QWidget;

/// What of a palette a colour of the theme stands for; the text's for one that the theme does not have.
QPalette::ColorRole themeRole(ColourValue colour);
/// The colour as it is drawn under that palette: the theme's colours come from it.
QColor shownColour(ColourValue colour, const QPalette &palette);
ColourValue colourValue(const QColor &colour);

/// Fills a control's background. A colour of the theme follows when the theme changes.
void setBackColor(QWidget &control, ColourValue colour);
/// The background that was set; else the theme's for its kind: the window's for what is read and edited, the button
/// face's for all other controls.
ColourValue backColor(const QWidget &control);
