#pragma once

#include <QColor>

class QPalette;

/// The colours that a map is drawn in beside those of its boxes and lines.
struct MapLook {
    QColor ground;
    QColor text;      ///< also of lines without a colour of their own
    QColor highlight; ///< of what is chosen

    static MapLook ofTheme(const QPalette &palette);
    static MapLook onPaper();

    /// The colour, moved towards the text's as far as it takes to be seen on the ground.
    QColor seen(const QColor &colour) const;
    /// The colour of what steps back behind what is chosen. It is opaque, so that nothing shines through.
    QColor faint(const QColor &colour) const;
};

/// Black or white, whichever reads better on the colour.
QColor inkOn(const QColor &colour);
