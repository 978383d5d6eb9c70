#pragma once

#include <QIcon>
#include <QString>

/// An icon of the program's own set, by the name of its drawing. Nothing is read before it is first drawn; it is drawn
/// in the theme's text colour of that moment, from its lines, so that it is sharp at any size and scale. Empty if there
/// is no such drawing.
QIcon programIcon(const QString &name);

/// The same in a colour of its own, as long as it is enabled; for the few pictures that tell things apart by colour.
QIcon programIcon(const QString &name, const QColor &light, const QColor &dark);

/// The program's own icon, in colours, for its windows.
QIcon applicationIcon();
