#pragma once

#include "common/colour.h"

#include <QList>
#include <QString>

/// A value in the source that names a colour. Positions count from 0.
struct ColourPlace {
    qsizetype start = 0;
    qsizetype length = 0;
    ColourValue colour = 0; ///< without its transparency
    bool operator==(const ColourPlace &) const = default;
};

/// The colours of a page, or with `isStyleSheet` of a style sheet: in the declarations of styles, and in attributes
/// that take a colour. They are written as "#" with 3, 4, 6 or 8 digits, by name, or as rgb() and hsl() with numbers.
QList<ColourPlace> colourPlaces(QStringView text, bool isStyleSheet);

/// Another colour in the manner of an old text: with the transparency that it has, as "#" with digits in their case, or
/// as rgb() in the place of a function.
QString recoloured(const QString &old, ColourValue colour);
