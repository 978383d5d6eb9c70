#pragma once

#include "common/markedRange.h"

#include <QWidget>

class EditSurface;

/// The signs of marks beside the lines of an edit surface, left of their numbers: a disc for an error, a ring for a
/// hint, a bar for changed text. It is kept in its place, and told to paint, by the surface.
class SignMargin final : public QWidget
{
    Q_OBJECT
public:
    explicit SignMargin(EditSurface *surface);
    /// Whether marks of this kind have a sign.
    static bool shows(MarkKind kind);
    int widthNeeded() const; ///< in pixels

protected:
    bool event(QEvent *event) override; ///< tells the tips of a line's marks
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override; ///< selects what the line's first mark marks
    void wheelEvent(QWheelEvent *event) override;      ///< scrolls the surface

private:
    QList<MarkedRange> marksAt(int y) const;

    EditSurface *m_surface;
};
