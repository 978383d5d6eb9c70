#pragma once

#include <QList>
#include <QStringList>

class QWidget;

/// What a screen reader would be missing in a window: controls without a role or a name, pictures without a text,
/// groups without a label. A line each, with the control's name; empty for a window in which all is told.
QStringList untold(QWidget &window);

/// The controls that Tab leads through, from the one that has the focus on, until it comes round or gets lost: then
/// the last one is nothing.
QList<QWidget *> tabRound(QWidget &window);

/// The controls on show that take the keyboard; of options that belong together, only the one that Tab leads to.
QList<QWidget *> keyboardStops(const QWidget &window);

/// The steps of a round that lead up within a column or to the left within a line, as nobody reads. A step from the
/// round's end to its start is none of them.
QStringList stepsBackwards(const QList<QWidget *> &round, const QWidget &window);
