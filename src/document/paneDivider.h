#pragma once

#include <QWidget>

/// The line between two panes one above the other, which the mouse can drag, and with the keyboard on it the arrow
/// keys.
class PaneDivider final : public QWidget
{
    Q_OBJECT
public:
    explicit PaneDivider(QWidget *parent);

Q_SIGNALS:
    void dragged(int y); ///< where its middle is to go, in the parent's coordinates
    void reset();        ///< a double click: back to where it stands at first

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int m_grabbed = 0; ///< where the mouse took it, from its middle
};
