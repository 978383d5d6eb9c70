#pragma once

#include "common/colour.h"
#include "widgets/drawnControl.h"

#include <QString>

class MapScene;
class MapView;

/// A box of the map as a control; the template of all boxes where it is none of the map's.
class MapBoxControl final : public DrawnControl
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption)
    Q_PROPERTY(int Left READ Left)
    Q_PROPERTY(int Top READ Top)
    Q_PROPERTY(int Width READ Width)
    Q_PROPERTY(int Height READ Height)
    Q_PROPERTY(uint BackColor READ BackColor)
    Q_PROPERTY(bool Visible READ Visible)
    Q_PROPERTY(bool Focus READ Focus)
    Q_PROPERTY(QString ToolTipText READ ToolTipText)
public:
    /// `index` counts from 1; 0 is the template.
    MapBoxControl(MapView &view, int index, QObject *parent);

    QString Caption() const;
    int Left() const { return place().left(); }
    int Top() const { return place().top(); }
    int Width() const { return place().width(); }
    int Height() const { return place().height(); }
    ColourValue BackColor() const;
    bool Visible() const { return m_index > 0; }
    bool Focus() const; ///< it is the one that was chosen
    QString ToolTipText() const;

    QWidget *surface() const override;
    QRect area() const override;
    void reveal() override;

private:
    QRect place() const; ///< on the sheet

    MapView &m_view;
    int m_index;
};

/// A line of the map as a control.
class MapLineControl final : public DrawnControl
{
    Q_OBJECT
    Q_PROPERTY(int X1 READ X1)
    Q_PROPERTY(int Y1 READ Y1)
    Q_PROPERTY(int X2 READ X2)
    Q_PROPERTY(int Y2 READ Y2)
    Q_PROPERTY(uint BorderColor READ BorderColor)
    Q_PROPERTY(bool Visible READ Visible)
public:
    MapLineControl(MapView &view, int index, QObject *parent);

    int X1() const { return end(true).x(); } ///< the first end is the target's
    int Y1() const { return end(true).y(); }
    int X2() const { return end(false).x(); }
    int Y2() const { return end(false).y(); }
    ColourValue BorderColor() const; ///< the theme's text colour for a line without a colour of its own
    bool Visible() const { return m_index > 0; }

    QWidget *surface() const override;
    QRect area() const override;

private:
    QPoint end(bool first) const;

    MapView &m_view;
    int m_index;
};

/// The sheet as a control: its place in the window is how far it is scrolled.
class MapSheetControl final : public DrawnControl
{
    Q_OBJECT
    Q_PROPERTY(int Left READ Left)
    Q_PROPERTY(int Top READ Top)
    Q_PROPERTY(int Width READ Width)
    Q_PROPERTY(int Height READ Height)
    Q_PROPERTY(bool Visible READ Visible)
public:
    MapSheetControl(MapView &view, QObject *parent);

    int Left() const { return area().left(); }
    int Top() const { return area().top(); }
    int Width() const { return area().width(); }
    int Height() const { return area().height(); }
    bool Visible() const;

    QWidget *surface() const override;
    QRect area() const override;

private:
    MapView &m_view;
};

/// The control of the map with that name, "lblDocName(3)", "linConnection(0)" or "picProject"; nothing if there is
/// none. It belongs to the view.
QObject *mapControl(MapView &view, const QString &name);
