#pragma once

#include <QAccessible>

class QWidget;

/// Says what a control that draws itself is to those who cannot see it. A pressed button, by a screen reader too, is
/// one that gets the key Space.
void setAccessibleRole(QWidget &control, QAccessible::Role role);
