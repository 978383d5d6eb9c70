#pragma once

#include <QWidget>

class MapView;
class QHBoxLayout;
class QPushButton;
class QScrollBar;
class QToolButton;
class WaitSign;

/// All of the map's window: the view with its bars, the buttons beside the lower bar, and the wait sign over it all.
class MapPanel final : public QWidget
{
    Q_OBJECT
public:
    explicit MapPanel(QPushButton *cmdCancel, QWidget *parent = nullptr);

    MapView &view() { return *picContainer; }
    WaitSign &waitSign() { return *m_waitSign; }

Q_SIGNALS:
    void menuWanted(const QPoint &position); ///< at a point of the screen

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeButtons();
    QToolButton *button(const QString &name, const QString &toolTip, const QString &icon, void (MapView::*run)());
    void followBars();
    void setBars();
    void showZoom();

    MapView *picContainer = nullptr;
    QScrollBar *hsbHorizontal = nullptr;
    QScrollBar *vsbVertical = nullptr;
    QWidget *m_buttons = nullptr;
    QToolButton *cmdActualSize = nullptr;
    WaitSign *m_waitSign = nullptr;
};
