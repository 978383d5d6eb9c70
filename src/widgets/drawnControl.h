#pragma once

#include <QObject>
#include <QRect>

class QWidget;

/// A control that is drawn on a widget instead of being one, as the boxes of a drawing are: it has a name, and its
/// properties can be read, but mouse and keyboard go to the widget. Lengths are logical pixels.
class DrawnControl : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    ~DrawnControl() override;

    virtual QWidget *surface() const = 0; ///< what it is drawn on
    virtual QRect area() const = 0;       ///< its place there, seen or not
    /// Scrolls the surface until it is in view.
    virtual void reveal() {}
};
