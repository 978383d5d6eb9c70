#pragma once

#include <QGraphicsView>
#include <QTimer>
#include <optional>

class MapScene;

/// The window on the sheet of a site map: zoom, dragging, and the way from box to box by mouse and keyboard.
class MapView final : public QGraphicsView
{
    Q_OBJECT
public:
    static constexpr qreal LeastZoom = 0.02;
    static constexpr qreal MostZoom = 4;

    explicit MapView(QWidget *parent = nullptr);

    void setMap(MapScene *scene);
    MapScene *map() const { return m_map; }

    qreal zoom() const { return transform().m11(); }
    void setZoom(qreal zoom); ///< about the middle of what is in view
    void zoomIn();
    void zoomOut();
    void fit(); ///< the whole sheet in view

    /// Pixels by which the sheet is moved to the left and up.
    QPoint scrolled() const;
    void scrollTo(const QPoint &offset);
    void showBox(int box); ///< scrolls until it is in view
    /// The whole path, what the box links to and what links to it, as marked-up text.
    QString toolTipOf(int box) const;

Q_SIGNALS:
    void zoomChanged();
    void scrolledOrResized();
    void openWanted(int box);
    void escapePressed();

protected:
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    std::optional<int> boxUnder(const QPoint &point) const;
    void hover(const QPoint &point);
    void setZoomAbout(qreal zoom, ViewportAnchor anchor);
    bool walk(const QKeyEvent &event);
    bool step(int key);
    void find(const QString &typed);
    void choose(std::optional<int> box);
    void describeChosen();
    QString listed(const QString &title, const QList<int> &boxes) const;

    MapScene *m_map = nullptr;
    std::optional<QPoint> m_grabbed; ///< where the mouse is on its way with the sheet
    QString m_typed;                 ///< the beginning of a name that is looked for
    QTimer m_typing;
};
