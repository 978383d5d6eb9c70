// What of the edit surface is seen: painting, scrolling, the caret's blinking, the margin.
#include "surface/editSurface.h"
#include "surface/lineMargin.h"
#include "surface/signMargin.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QPointingDevice>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QStyleHints>
#include <QTimerEvent>
#include <QWheelEvent>
#include <algorithm>
#include <climits>
#include <cmath>

namespace
{
int inBar(double value)
{
    return static_cast<int>(std::clamp(value, 0.0, double(INT_MAX)));
}

constexpr int longestBlinking = 10'000; // milliseconds behind the last key
constexpr qsizetype keptAround = 60;    // lines above and below the view whose layouts stay
} // namespace

void EditSurface::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
    if (event->type() == QEvent::PaletteChange) {
        keepSelectionColours();
        followGround();
    }
}

void EditSurface::showEvent(QShowEvent *event)
{
    QAbstractScrollArea::showEvent(event);
    m_view.setShown(true);
    m_view.setSize(viewport()->size());
    followView();
}

void EditSurface::hideEvent(QHideEvent *event)
{
    QAbstractScrollArea::hideEvent(event);
    m_view.setShown(false);
}

void EditSurface::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    m_view.setSize(viewport()->size());
    placeMargin();
    followView();
    updateAll();
    tellScrolling();
}

/// Has the scroll bars tell what is on view. A bar that comes or goes changes the view's size.
void EditSurface::followView()
{
    if (m_following)
        return;
    const QScopedValueRollback<bool> following(m_following, true);
    constexpr int most = 3; // of bars that come and go for each other's sake
    for (int i = 0; i < most; ++i) {
        const QSizeF size = m_view.size();
        QScrollBar *down = verticalScrollBar();
        down->setRange(0, inBar(static_cast<double>(m_view.lastTopRow())));
        down->setPageStep(m_view.rowsOnView());
        if (!down->isSliderDown())
            down->setValue(inBar(static_cast<double>(m_view.rowNumber())));
        QScrollBar *across = horizontalScrollBar();
        across->setRange(0, inBar(std::ceil(m_view.widest()) - viewport()->width()));
        across->setPageStep(viewport()->width());
        across->setSingleStep(static_cast<int>(std::ceil(m_view.layouts().advance())) * 3);
        across->setValue(inBar(m_view.left()));
        m_view.setLeft(across->value());
        if (size == m_view.size())
            break;
    }
    if (lineCount() != std::exchange(m_toldLines, lineCount()))
        placeMargin();
    tellScrolling();
}

void EditSurface::scrollContentsBy(int, int)
{
    if (m_following)
        return;
    const Step step(this);
    const int row = verticalScrollBar()->value();
    if (row != inBar(static_cast<double>(m_view.rowNumber())))
        m_view.scrollToRow(row);
    m_view.setLeft(horizontalScrollBar()->value());
    m_goalY.reset();
    updateAll();
    followView();
}

void EditSurface::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() == Qt::ControlModifier && event->angleDelta().y() != 0) {
        event->accept();
        return zoomByWheel(*event);
    }
    const bool byPixels = event->device() && event->device()->type() == QInputDevice::DeviceType::TouchPad &&
                          event->pixelDelta().y() != 0 && event->modifiers() == Qt::NoModifier;
    if (!byPixels)
        return QAbstractScrollArea::wheelEvent(event);
    const Step step(this);
    m_view.scrollByPixels(-event->pixelDelta().y());
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - event->pixelDelta().x());
    updateAll();
    followView();
    event->accept();
}

void EditSurface::zoomByWheel(const QWheelEvent &event)
{
    m_zoomTurned += event.angleDelta().y();
    const int steps = m_zoomTurned / QWheelEvent::DefaultDeltasPerStep;
    m_zoomTurned -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        setZoom(m_zoom + steps);
}

void EditSurface::setZoom(int points)
{
    constexpr int smallest = 4; // points of a font that can still be read
    constexpr int largest = 96;
    const int size = qRound(QFontInfo(font()).pointSizeF());
    points = std::clamp(points, std::min(smallest - size, 0), std::max(largest - size, 0));
    if (points == std::exchange(m_zoom, points))
        return;
    const Step step(this);
    followFont();
}

QFont EditSurface::shownFont() const
{
    QFont shown = font();
    if (m_zoom != 0)
        shown.setPointSizeF(std::max(QFontInfo(shown).pointSizeF() + m_zoom, 1.0));
    return shown;
}

void EditSurface::ensureCaretVisible()
{
    if (m_view.show(m_view.rowOf(m_selection.caret)))
        updateAll();
    const QRect caret = caretRect().toRect();
    const QRect shown = viewport()->rect();
    if (!m_wrap && (caret.left() < shown.left() || caret.right() > shown.right())) {
        const int middle = shown.width() / 2;
        m_view.setLeft(std::max(caret.center().x() + m_view.left() - middle, 0.0));
        updateAll();
    }
    followView();
    showBlink(hasFocus());
    updateMicroFocus();
}

QRectF EditSurface::caretRect() const
{
    QRectF caret = m_view.caretRect(m_selection.caret, m_preeditCaret);
    caret.setWidth(style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this));
    return caret;
}

void EditSurface::updateAll()
{
    viewport()->update();
    updateMargins();
}

void EditSurface::updateMargins()
{
    m_marginsHeld = m_held;
    if (m_held)
        return;
    m_margin->update();
    m_signs->update();
}

/// Has the margins drawn anew where rows came to stand elsewhere, as those in another font may.
void EditSurface::followRows(const std::vector<ShownRow> &rows)
{
    const auto isSame = [](const ShownRow &one, const ShownRow &other) {
        return one.place == other.place && one.top == other.top && one.height == other.height;
    };
    if (std::equal(rows.begin(), rows.end(), m_painted.begin(), m_painted.end(), isSame))
        return;
    m_painted = rows;
    updateMargins();
}

void EditSurface::updateLines(qsizetype first, qsizetype last)
{
    for (const ShownRow &row : m_view.rows()) {
        if (row.place.line < first || row.place.line > last)
            continue;
        const bool didReach = std::find(m_reaching.begin(), m_reaching.end(), row.place.line) != m_reaching.end();
        const qreal reach = didReach ? m_view.layouts().farthestReach() : reachOf(row);
        viewport()->update(
            QRectF(0, row.top, viewport()->width(), row.height).adjusted(0, -reach, 0, reach).toAlignedRect());
    }
}

/// How far what is drawn of a row may stand out of it, above and below, in pixels.
qreal EditSurface::reachOf(const ShownRow &row) const
{
    return m_view.layouts().reachOf(row.place.line, devicePixelRatioF());
}

void EditSurface::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    const std::vector<ShownRow> rows = m_view.rows();
    for (const ShownRow &row : rows)
        paintGround(painter, row);
    RowPlace drawn{-1, 0, 0};
    m_reaching.clear();
    for (const ShownRow &row : rows) {
        const bool sameLayout = row.place.line == drawn.line && row.place.piece == drawn.piece;
        const auto reach = static_cast<int>(reachOf(row));
        if (reach > 0)
            m_reaching.push_back(row.place.line);
        const QRect seen = event->rect().adjusted(0, -reach, 0, reach);
        const bool isHit = row.top <= seen.bottom() && row.top + row.height >= seen.top();
        if (sameLayout || !isHit)
            continue;
        paintRow(painter, row, seen);
        drawn = row.place;
    }
    paintSelectedBreaks(painter, rows);
    paintSquares(painter);
    followRows(rows);
    m_view.layouts().keepOnly(rows.front().place.line - keptAround, rows.back().place.line + keptAround);
    if (m_dropPlace)
        painter.fillRect(m_view.caretRect(*m_dropPlace), palette().color(QPalette::Text));
}

/// Draws the layouts that a row is part of, with all of their rows that are to be drawn.
void EditSurface::paintRow(QPainter &painter, const ShownRow &row, const QRect &clip)
{
    LineLayouts &layouts = m_view.layouts();
    const qsizetype line = row.place.line;
    int number = row.place.piece;
    if (!m_wrap)
        number = layouts.pieceAtPixel(line, -m_view.pieceX(line, 0));
    const int end = m_wrap ? number + 1 : layouts.pieceCount(line);
    for (; number < end; ++number) {
        const qreal x = m_view.pieceX(line, number);
        if (x > clip.right())
            break;
        const LinePiece &piece = layouts.piece(line, number);
        const QPointF origin(x, row.top - piece.layout->lineAt(row.place.row).y());
        piece.layout->draw(&painter, origin, drawnOver(line, piece), clip);
        const qsizetype caret = m_selection.caret - m_text.lineStart(line) - piece.start;
        const bool holdsCaret = caret >= 0 && caret <= piece.length && m_text.lineAt(m_selection.caret) == line &&
                                layouts.pieceOf(line, caret + piece.start) == number;
        if (m_caretShown && holdsCaret && !m_preeditCaretHidden) {
            const bool composes = piece.preeditAt == caret;
            const int place = piece.inLayout(caret) + static_cast<int>(composes ? m_preeditCaret : 0);
            piece.layout->drawCursor(&painter, origin, place,
                                     style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this));
        }
    }
}

/// A line break that is selected is seen behind its line, so that an empty line is no gap in a selection.
void EditSurface::paintSelectedBreaks(QPainter &painter, const std::vector<ShownRow> &rows)
{
    LineLayouts &layouts = m_view.layouts();
    const qsizetype to = m_hideSelection ? 0 : m_selection.to();
    for (const ShownRow &row : rows) {
        const qsizetype line = row.place.line;
        const qsizetype end = m_text.lineEnd(line);
        const bool longLine = !m_wrap && layouts.pieceCount(line) > 1; // whose end is rarely in sight
        if (end < m_selection.from() || end >= to || longLine || m_view.rowOf(end) != row.place)
            continue;
        const qreal width = layouts.advance() / 2;
        const qreal x = m_view.caretRect(end).left() - (m_view.rightToLeft(end) ? width : 0);
        painter.fillRect(QRectF(x, row.top, width, row.height), palette().highlight());
    }
}

/// What is drawn over a piece's own look: marks, and over them what is selected.
QList<QTextLayout::FormatRange> EditSurface::drawnOver(qsizetype line, const LinePiece &piece) const
{
    QList<QTextLayout::FormatRange> drawn;
    const qsizetype first = m_text.lineStart(line) + piece.start;
    const auto draw = [&](qsizetype rangeStart, qsizetype rangeEnd, const QTextCharFormat &format) {
        const qsizetype from = std::clamp(rangeStart - first, qsizetype(0), piece.length);
        const qsizetype to = std::clamp(rangeEnd - first, qsizetype(0), piece.length);
        const int start = piece.inLayout(from);
        if (from < to)
            drawn.append({start, piece.inLayout(to) - start, format});
    };
    m_marks.forEachAt(first, first + piece.length, [&](const MarkedRange &mark) {
        draw(mark.start, mark.start + mark.length, formatOf(mark.kind));
    });
    QTextCharFormat selected;
    selected.setBackground(palette().highlight());
    selected.setForeground(palette().highlightedText());
    if (!m_hideSelection)
        draw(m_selection.from(), m_selection.to(), selected);
    return drawn;
}

/// Shows the caret now, and lets it blink as the desktop has it; or hides it.
void EditSurface::showBlink(bool on)
{
    const int flash = QGuiApplication::styleHints()->cursorFlashTime();
    if (on && flash >= 2) {
        m_blinksLeft = longestBlinking / (flash / 2);
        m_blink.start(flash / 2, this);
    } else {
        m_blink.stop();
    }
    if (m_caretShown != std::exchange(m_caretShown, on))
        viewport()->update(caretRect().toAlignedRect().adjusted(-3, 0, 3, 0));
}

void EditSurface::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_blink.timerId()) {
        m_caretShown = !m_caretShown;
        if (--m_blinksLeft <= 0 && m_caretShown)
            m_blink.stop();
        viewport()->update(caretRect().toAlignedRect().adjusted(-3, 0, 3, 0));
    } else if (event->timerId() == m_autoScroll.timerId()) {
        const int beyond = m_dragPoint.y() < 0 ? m_dragPoint.y() : std::max(m_dragPoint.y() - viewport()->height(), 0);
        const auto rows = static_cast<int>(beyond / m_view.layouts().rowHeight()) + (beyond > 0) - (beyond < 0);
        verticalScrollBar()->setValue(verticalScrollBar()->value() + rows);
        dragTo(m_dragPoint);
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

void EditSurface::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    showBlink(true);
    Q_EMIT gotFocus();
}

void EditSurface::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    showBlink(false);
    Q_EMIT lostFocus();
}

void EditSurface::followFont()
{
    m_view.setSize(viewport()->size());
    const QFont shown = shownFont();
    m_view.setStyle(shown, m_tabWidth * QFontMetricsF(shown).horizontalAdvance(u' '), m_wrap);
    m_margin->setFont(shown);
    m_signs->setFont(shown);
    placeMargin();
    updateAll();
    followView();
}

void EditSurface::setTabWidth(int characters)
{
    m_tabWidth = characters;
    followFont();
}

void EditSurface::setLineNumbers(bool shown)
{
    m_margin->setVisible(shown);
    placeMargin();
}

bool EditSurface::lineNumbers() const
{
    return !m_margin->isHidden();
}

void EditSurface::placeMargin()
{
    const int signs = m_signs->isHidden() ? 0 : m_signs->widthNeeded();
    const int width = lineNumbers() ? m_margin->widthNeeded() : 0;
    if (viewportMargins().left() != signs + width)
        setViewportMargins(signs + width, 0, 0, 0);
    const QRect inside = contentsRect();
    m_signs->setGeometry(QRect(inside.left(), inside.top(), signs, viewport()->height()));
    m_margin->setGeometry(QRect(inside.left() + signs, inside.top(), width, viewport()->height()));
}
