#pragma once

#include <QWidget>

class EditSurface;

/// The numbers of the source lines, left of an edit surface's text. It is kept in its place, and told to paint, by the
/// surface.
class LineMargin final : public QWidget
{
    Q_OBJECT
public:
    explicit LineMargin(EditSurface *surface);
    /// The width that the highest number of the surface needs, in pixels.
    int widthNeeded() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override; ///< gives the surface the focus
    void wheelEvent(QWheelEvent *event) override;      ///< scrolls the surface

private:
    EditSurface *m_surface;
};
