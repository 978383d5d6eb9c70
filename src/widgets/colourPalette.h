#pragma once

#include "common/colour.h"

#include <QList>
#include <QWidget>
#include <optional>

/// A grid of colours to pick one from, by a click or with the arrow keys and Enter or Space. Cells are numbered from 0,
/// row by row, and leave no gap between them. The current colour is the palette's accessible description.
class ColourPalette final : public QWidget
{
    Q_OBJECT
public:
    /// At least one colour; the rows are `columns` long.
    ColourPalette(const QList<ColourValue> &colours, int columns, QWidget *parent = nullptr);

    void setCurrentCell(int cell); ///< nothing for a cell that is not there
    ColourValue currentColour() const { return m_colours[m_current]; }
    /// The colour under the mouse; nothing away from it.
    std::optional<ColourValue> pointedColour() const;

    /// The cell at a place of the widget, -1 outside; and a cell's place.
    int cellAt(const QPoint &place) const;
    QRect rectOf(int cell) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void picked(); ///< the current colour was chosen
    void currentChanged();
    void pointedChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    int rows() const;
    QSize gridOf(int cellSize) const;
    void point(int cell);
    void drawMark(QPainter &painter, int cell) const;

    QList<ColourValue> m_colours;
    int m_columns;
    int m_current = 0;
    int m_pointed = -1;
    int m_pressed = -1;
};
