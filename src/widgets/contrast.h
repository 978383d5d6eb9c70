#pragma once

#include <QColor>
#include <QList>

/// How much two colours differ in brightness, as the accessibility guidelines count it: from 1 (not at all) to 21.
double contrast(const QColor &a, const QColor &b);

/// The colour that lies between two: the first one at a share of 0, the second one at 1. It is opaque.
QColor mixed(const QColor &a, const QColor &b, double share);

/// The colour, moved towards another one just as far as it takes to have that contrast to each of the grounds; the
/// other one itself where nothing between them has it.
QColor toldApart(const QColor &colour, const QColor &towards, const QList<QColor> &grounds, double least);
