#pragma once

#include "insertion/boardFigure.h"

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <optional>

/// A picture that is drawn on, by mouse or by a cross that the keys move. What a press means is its user's business: it
/// tells where presses, moves and releases are, in pixels of the picture and never outside of it, and shows what it is
/// told to show over the picture.
class DrawingBoard final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int LargestZoom = 8;
    using Marks = std::function<void(QPainter &, int zoom)>;

    explicit DrawingBoard(QWidget *parent = nullptr);

    /// Shows the picture at `size` pixels, however many it has itself; a null one makes the board blank again and
    /// leaves its size.
    void setPicture(const QPixmap &picture, const QSize &size);
    QSize pictureSize() const { return m_size; }
    /// Board pixels for a pixel of the picture, 1 to LargestZoom.
    void setZoom(int zoom);
    int zoom() const { return m_zoom; }

    /// What is drawn over the picture and under the figures; `update` shows a change.
    void setMarks(const Marks &marks);
    /// A figure over all else, which is shown as it is placed.
    void addFigure(BoardFigure *figure);

    QPoint cross() const { return m_cross; } ///< where the keys draw, in pixels of the picture
    QSize sizeHint() const override { return m_size * m_zoom; }

Q_SIGNALS:
    void pressed(const QPointF &at);
    void moved(const QPointF &at, bool held);
    void released(const QPointF &at); ///< each follows a press
    void crossMoved(const QPoint &to);
    void cornerSet(const QPoint &at);   ///< Enter
    void cornerTakenBack();             ///< Backspace
    void zoomAsked(int zoom);           ///< by plus, minus, or the wheel with Ctrl; within the limits
    void scrolled(const QPoint &steps); ///< by the wheel: to the right and down, in steps of its own

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QPointF pictureAt(const QPointF &at) const;
    QPointF within(const QPointF &point) const;
    void sizeToPicture();
    void moveCross(const QPoint &to);
    void showCross(bool shown);
    QRect crossRect() const;
    bool moveCrossBy(int key, Qt::KeyboardModifiers modifiers);
    bool askForZoom(int key);
    void drawPicture(QPainter &painter, const QRect &part) const;
    void drawCross(QPainter &painter) const;

    QPixmap m_picture;
    QSize m_size; ///< of the picture
    int m_zoom = 1;
    Marks m_marks;
    QList<BoardFigure *> m_figures;
    QPoint m_cross;
    bool m_crossShown = false;
    QPoint m_turned;     ///< of the wheel, what no step has used up yet
    bool m_held = false; ///< a button was pressed here and is not yet released
};
