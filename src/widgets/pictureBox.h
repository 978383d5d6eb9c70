#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

/// Where the mouse was and what was held. Positions are logical pixels from the picture's top left corner.
struct PointerState {
    QPointF position;
    Qt::MouseButton button = Qt::NoButton; ///< the one pressed or released; none for a move
    Qt::MouseButtons buttons;              ///< those held
    Qt::KeyboardModifiers modifiers;
};

/// A surface that shows a picture or is painted by its form. A pixel of the picture is a logical pixel, at any scale.
class PictureBox final : public QWidget
{
    Q_OBJECT
public:
    enum class Fit { Plain, Stretch, SizeToPicture };
    using Paint = std::function<void(QPainter &)>;

    explicit PictureBox(QWidget *parent = nullptr);

    void setPicture(const QPixmap &picture);
    const QPixmap &picture() const { return m_picture; }
    void setFit(Fit fit);
    void setPaint(const Paint &paint); ///< runs over background and picture
    void setOutlined(bool outlined);   ///< a thin line around the edge, over all else
    /// Lets the picture have the focus, by mouse and keyboard; Space then clicks it.
    void setClickableByKeyboard(bool on);

    QSize sizeHint() const override;

Q_SIGNALS:
    void mousePressed(const PointerState &state);
    void mouseMoved(const PointerState &state); ///< with and without a button held
    void mouseReleased(const PointerState &state);
    void clicked();
    void doubleClicked(); ///< stands in for the press and the click of its second press
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QSize pictureSize() const;
    void drawPicture(QPainter &painter) const;
    void drawOutline(QPainter &painter) const;

    QPixmap m_picture;
    Paint m_paint;
    Fit m_fit = Fit::Plain;
    bool m_outlined = false;
    bool m_pressed = false;
};
