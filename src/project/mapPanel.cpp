#include "project/mapPanel.h"

#include "project/mapView.h"
#include "project/waitSign.h"
#include "widgets/controls.h"
#include "widgets/programIcon.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>

namespace
{
constexpr int Margin = 60 / 15; ///< left of the view and above it, and of the bars
constexpr int BarSize = 255 / 15;
constexpr int ScrollUnit = 5; ///< pixels that one step of a bar stands for
} // namespace

MapPanel::MapPanel(QPushButton *cmdCancel, QWidget *parent) : QWidget(parent)
{
    picContainer = new MapView(this);
    picContainer->setObjectName(QStringLiteral("picContainer"));
    hsbHorizontal = ui::scrollBar(QStringLiteral("hsbHorizontal"), Qt::Horizontal, [this] { followBars(); });
    vsbVertical = ui::scrollBar(QStringLiteral("vsbVertical"), Qt::Vertical, [this] { followBars(); });
    hsbHorizontal->setParent(this);
    vsbVertical->setParent(this);
    m_buttons = makeButtons();
    m_waitSign = new WaitSign(cmdCancel, this);
    connect(picContainer, &MapView::scrolledOrResized, this, &MapPanel::setBars);
    connect(picContainer, &MapView::zoomChanged, this, &MapPanel::showZoom);
    picContainer->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(picContainer, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &point) { Q_EMIT menuWanted(picContainer->mapToGlobal(point)); });
    showZoom();
}

QToolButton *MapPanel::button(const QString &name, const QString &toolTip, const QString &icon, void (MapView::*run)())
{
    auto *made = new QToolButton;
    made->setObjectName(name);
    made->setAutoRaise(true);
    made->setFixedHeight(BarSize);
    made->setIconSize(QSize(BarSize - 4, BarSize - 4));
    made->setIcon(programIcon(icon));
    made->setToolTip(toolTip);
    made->setAccessibleName(toolTip);
    made->setFocusPolicy(Qt::TabFocus);
    if (run)
        connect(made, &QToolButton::clicked, picContainer, run);
    return made;
}

QWidget *MapPanel::makeButtons()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    cmdActualSize = button(QStringLiteral("cmdActualSize"), QStringLiteral("Actual size (Ctrl+0)"), {}, nullptr);
    connect(cmdActualSize, &QToolButton::clicked, picContainer, [this] { picContainer->setZoom(1); });
    QFont small = font();
    small.setPixelSize(BarSize - 6);
    cmdActualSize->setFont(small);
    cmdActualSize->setFixedWidth(QFontMetrics(small).horizontalAdvance(QStringLiteral("400 %")) + 10);
    QToolButton *cmdMenu = button(QStringLiteral("cmdMenu"), QStringLiteral("Commands of the map"),
                                  QStringLiteral("square-menu"), nullptr);
    connect(cmdMenu, &QToolButton::clicked, this,
            [this, cmdMenu] { Q_EMIT menuWanted(cmdMenu->mapToGlobal(cmdMenu->rect().topLeft())); });
    for (QToolButton *each : {button(QStringLiteral("cmdZoomOut"), QStringLiteral("Zoom out (Ctrl+-)"),
                                     QStringLiteral("zoom-out"), &MapView::zoomOut),
                              cmdActualSize,
                              button(QStringLiteral("cmdZoomIn"), QStringLiteral("Zoom in (Ctrl++)"),
                                     QStringLiteral("zoom-in"), &MapView::zoomIn),
                              button(QStringLiteral("cmdFit"), QStringLiteral("Fit the whole map (Ctrl+9)"),
                                     QStringLiteral("map"), &MapView::fit),
                              cmdMenu})
        layout->addWidget(each);
    return row;
}

void MapPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const QSize window(std::max(width() - BarSize - Margin, 0), std::max(height() - BarSize - Margin, 0));
    picContainer->setGeometry(QRect(QPoint(Margin, Margin), window));
    const int buttons = std::min(m_buttons->sizeHint().width(), window.width());
    hsbHorizontal->setGeometry(Margin, Margin + window.height(), window.width() - buttons, BarSize);
    m_buttons->setGeometry(Margin + window.width() - buttons, Margin + window.height(), buttons, BarSize);
    vsbVertical->setGeometry(Margin + window.width(), Margin, BarSize, window.height());
    m_waitSign->setGeometry(rect());
    setBars();
}

/// A step of a bar is five pixels, so that a large sheet keeps to small numbers.
void MapPanel::followBars()
{
    picContainer->scrollTo(QPoint(hsbHorizontal->value(), vsbVertical->value()) * ScrollUnit);
}

void MapPanel::setBars()
{
    const auto set = [](QScrollBar &bar, qreal sheet, int window, int scrolled) {
        const QSignalBlocker quiet(bar);
        bar.setMaximum(std::max((qRound(sheet) - window) / ScrollUnit, 0));
        bar.setPageStep(std::max(window / ScrollUnit, 1));
        bar.setSingleStep(4);
        bar.setValue(scrolled / ScrollUnit);
    };
    const QSizeF sheet = picContainer->sceneRect().size() * picContainer->zoom();
    const QPoint scrolled = picContainer->scrolled();
    set(*hsbHorizontal, sheet.width(), picContainer->width(), scrolled.x());
    set(*vsbVertical, sheet.height(), picContainer->height(), scrolled.y());
}

void MapPanel::showZoom()
{
    cmdActualSize->setText(QStringLiteral("%1 %").arg(qRound(picContainer->zoom() * 100)));
}
