#pragma once

#include <QWidget>

/// A pane at the left or the right of the main window, with an edge towards the documents that the user can drag;
/// the arrow keys move it, too, while the pane itself has the focus.
class SidePane final : public QWidget
{
    Q_OBJECT
public:
    enum class Side { Left, Right };
    static constexpr int EdgeWidth = 5; ///< logical pixels that can be grabbed

    explicit SidePane(QWidget *parent = nullptr);

    Side side() const { return m_side; }
    void setSide(Side side);
    int paneWidth() const { return m_width; }
    /// In logical pixels; kept between a smallest width and what leaves room for the documents.
    void setPaneWidth(int width);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void resized();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool isOverEdge(int x) const;

    Side m_side = Side::Left;
    int m_width = 0;
    bool m_dragging = false;
    int m_grabbed = 0; ///< where the mouse took the edge, from the pane's outer edge
    int m_before = 0;  ///< the width at that moment
};
