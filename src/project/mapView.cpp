#include "project/mapView.h"

#include "project/mapScene.h"
#include "widgets/accessibleRole.h"
#include "widgets/arrowStep.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QShowEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace
{
constexpr qreal ZoomStep = 1.25;
constexpr qreal WheelStep = 120; ///< eighths of a degree in one notch of a wheel
constexpr int Margin = 24;       ///< that is kept in view around a box
constexpr int MostListed = 12;   ///< boxes that a tool tip names
} // namespace

MapView::MapView(QWidget *parent) : QGraphicsView(parent)
{
    setAccessibleRole(*this, QAccessible::Canvas);
    setFrameShape(NoFrame);
    setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    setViewportUpdateMode(MinimalViewportUpdate); // a drag draws no more than what it uncovers
    setOptimizationFlags(DontAdjustForAntialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the form has bars of its own
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(QStringLiteral("Site map"));
    viewport()->setMouseTracking(true);
    m_typing.setSingleShot(true);
    m_typing.setInterval(QApplication::keyboardInputInterval());
    connect(&m_typing, &QTimer::timeout, this, [this] { m_typed.clear(); });
}

void MapView::setMap(MapScene *scene)
{
    m_map = scene;
    setScene(scene);
    connect(scene, &QGraphicsScene::sceneRectChanged, this, &MapView::scrolledOrResized);
    connect(scene, &MapScene::chosenChanged, this, &MapView::describeChosen);
}

void MapView::setZoomAbout(qreal zoom, ViewportAnchor anchor)
{
    const ViewportAnchor before = transformationAnchor();
    setTransformationAnchor(anchor);
    const qreal scale = std::clamp(zoom, LeastZoom, MostZoom);
    setTransform(QTransform::fromScale(scale, scale));
    setTransformationAnchor(before);
    Q_EMIT zoomChanged();
    Q_EMIT scrolledOrResized();
}

void MapView::setZoom(qreal zoom)
{
    setZoomAbout(zoom, AnchorViewCenter);
}

void MapView::zoomIn()
{
    setZoom(zoom() * ZoomStep);
}

void MapView::zoomOut()
{
    setZoom(zoom() / ZoomStep);
}

void MapView::fit()
{
    const QSizeF sheet = sceneRect().size();
    const QSizeF window = viewport()->size();
    if (!sheet.isEmpty())
        setZoom(std::min(window.width() / sheet.width(), window.height() / sheet.height()));
}

QPoint MapView::scrolled() const
{
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void MapView::scrollTo(const QPoint &offset)
{
    const int before = scrolled().x();
    horizontalScrollBar()->setValue(offset.x());
    const int moved = scrolled().x() - before;
    // The strip at the side is drawn by itself: together with the one above or below, all that lies between them, which
    // is the whole window, would be looked through.
    if (moved != 0 && offset.y() != scrolled().y())
        viewport()->repaint(moved > 0 ? viewport()->width() - moved : 0, 0, std::abs(moved), viewport()->height());
    verticalScrollBar()->setValue(offset.y());
}

void MapView::showBox(int box)
{
    ensureVisible(m_map->place(box), Margin, Margin);
}

void MapView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    setZoomAbout(zoom() * std::pow(ZoomStep, event->angleDelta().y() / WheelStep), AnchorUnderMouse);
    event->accept();
}

std::optional<int> MapView::boxUnder(const QPoint &point) const
{
    return m_map ? m_map->boxAt(mapToScene(point)) : std::nullopt;
}

void MapView::choose(std::optional<int> box)
{
    if (!m_map)
        return;
    m_map->choose(box);
    if (box)
        showBox(*box);
}

/// The boxes are drawn, and so the map's own description tells which of them the keyboard is on; a screen reader is
/// told that it has changed.
void MapView::describeChosen()
{
    const std::optional<int> box = m_map->chosen();
    if (!box) {
        setAccessibleDescription({});
        return;
    }
    const MapBox &chosen = m_map->map().boxes()[*box];
    QStringList parts{boxCaption(chosen.name, chosen.folder).replace(QStringLiteral("\r\n"), QStringLiteral(" "))};
    if (m_map->isMissing(*box))
        parts.append(QStringLiteral("not on the disk"));
    parts.append(QStringLiteral("links to %1, linked from %2")
                     .arg(m_map->linksFrom(*box).size())
                     .arg(m_map->linksTo(*box).size()));
    setAccessibleDescription(parts.join(QStringLiteral(", ")));
    QAccessibleEvent described(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&described);
    if (hasFocus()) { // the one event of which all screen readers say what it is about
        QAccessibleEvent focused(this, QAccessible::Focus);
        QAccessible::updateAccessibility(&focused);
    }
}

void MapView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_map)
        return;
    m_map->choose(boxUnder(event->pos()));
    m_grabbed = event->pos();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void MapView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_grabbed) {
        hover(event->pos());
        return;
    }
    scrollTo(scrolled() - (event->pos() - *m_grabbed));
    m_grabbed = event->pos();
}

void MapView::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    m_grabbed.reset();
    viewport()->unsetCursor();
}

void MapView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const std::optional<int> box = boxUnder(event->pos());
    if (event->button() == Qt::LeftButton && box)
        Q_EMIT openWanted(*box);
}

/// A box under the mouse grows to its text; only over the bare sheet do all boxes shrink again.
void MapView::hover(const QPoint &point)
{
    if (const std::optional<int> box = boxUnder(point))
        m_map->enlarge(*box);
    else if (m_map && m_map->BoxEnlarged())
        m_map->shrinkAll();
}

void MapView::keyPressEvent(QKeyEvent *event)
{
    if (!m_map || m_map->map().boxes().isEmpty() || !walk(*event)) {
        if (event->key() == Qt::Key_Escape && !(m_map && m_map->chosen()))
            Q_EMIT escapePressed();
        else if (event->key() == Qt::Key_Escape)
            m_map->choose(std::nullopt);
        else
            event->ignore();
    }
}

bool MapView::walk(const QKeyEvent &event)
{
    const bool plain = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (event.text().isEmpty() || !event.text().front().isPrint())
        m_typed.clear(); // another name begins behind any other key
    if (const QPointF way = arrowStep(event.key()); !way.isNull()) {
        const std::optional<int> from = m_map->chosen();
        const std::optional<int> next = from ? m_map->nextAlongLines(*from, way) : 0;
        if (next)
            choose(next);
        return true;
    }
    if (step(event.key()))
        return true;
    if ((event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) && m_map->chosen()) {
        Q_EMIT openWanted(*m_map->chosen());
        return true;
    }
    const QString text = event.text();
    if (!plain || text.isEmpty() || !text.front().isPrint() || (m_typed.isEmpty() && text.front() == u' '))
        return false;
    find(text);
    return true;
}

/// The boxes one after the other, as they were put down: there is a way to those that nothing is joined to.
bool MapView::step(int key)
{
    const int last = static_cast<int>(m_map->map().boxes().size()) - 1;
    const std::optional<int> from = m_map->chosen();
    if (key == Qt::Key_Home)
        choose(0);
    else if (key == Qt::Key_End)
        choose(last);
    else if (key == Qt::Key_PageDown)
        choose(from ? std::min(*from + 1, last) : 0);
    else if (key == Qt::Key_PageUp)
        choose(from ? std::max(*from - 1, 0) : last);
    else
        return false;
    return true;
}

/// The next box whose name begins with what was typed in one go.
void MapView::find(const QString &typed)
{
    m_typed += typed;
    m_typing.start();
    const QList<MapBox> &boxes = m_map->map().boxes();
    const int start = m_map->chosen().value_or(-1) + (m_typed.size() == 1 ? 1 : 0);
    for (qsizetype i = 0; i < boxes.size(); ++i) {
        const qsizetype box = (std::max(start, 0) + i) % boxes.size();
        if (boxes[box].name.startsWith(m_typed, Qt::CaseInsensitive)) {
            choose(static_cast<int>(box));
            return;
        }
    }
}

bool MapView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QGraphicsView::viewportEvent(event);
    const auto &help = static_cast<const QHelpEvent &>(*event);
    if (const std::optional<int> box = boxUnder(help.pos()))
        QToolTip::showText(help.globalPos(), toolTipOf(*box), viewport());
    else
        QToolTip::hideText();
    return true;
}

QString MapView::listed(const QString &title, const QList<int> &boxes) const
{
    if (boxes.isEmpty())
        return {};
    QStringList lines{title};
    for (qsizetype i = 0; i < boxes.size() && i < MostListed; ++i)
        lines.append(QStringLiteral("    ") + m_map->map().boxes()[boxes[i]].name.left(80));
    if (boxes.size() > MostListed)
        lines.append(QStringLiteral("    and %1 more").arg(boxes.size() - MostListed));
    return lines.join(u'\n');
}

QString MapView::toolTipOf(int box) const
{
    constexpr qsizetype LongestPath = 400;
    const MapBox &shown = m_map->map().boxes()[box];
    QStringList parts{(shown.folder + shown.name).left(LongestPath)};
    if (m_map->isMissing(box))
        parts.append(QStringLiteral("This file of the project is not on the disk."));
    parts.append(listed(QStringLiteral("Links to:"), m_map->linksFrom(box)));
    parts.append(listed(QStringLiteral("Linked from:"), m_map->linksTo(box)));
    parts.removeAll(QString());
    // As marked-up text, for names may look like it.
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(parts.join(u'\n').toHtmlEscaped());
}

void MapView::scrollContentsBy(int dx, int dy)
{
    QGraphicsView::scrollContentsBy(dx, dy);
    Q_EMIT scrolledOrResized();
}

void MapView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    Q_EMIT scrolledOrResized();
}

void MapView::showEvent(QShowEvent *event)
{
    QGraphicsView::showEvent(event);
    if (!event->spontaneous())
        scrollTo({}); // the sheet begins at its corner; the view itself would begin in its middle
}

void MapView::changeEvent(QEvent *event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_map)
        m_map->setLook(MapLook::ofTheme(palette()));
}
