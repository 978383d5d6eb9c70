#include "widgets/coolBar.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <numeric>

namespace
{
constexpr int GripWidth = 8;
constexpr int RowGap = 1;
constexpr int RowPull = 8; ///< how far the mouse leaves a row before its band follows
} // namespace

CoolBar::CoolBar(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

int CoolBar::addBand(QWidget *child, bool newRow)
{
    child->setParent(this);
    m_bands.push_back({.child = child, .newRow = newRow, .shown = true, .width = 0, .place = {}});
    child->setVisible(true);
    updateGeometry();
    return Count();
}

void CoolBar::setNewRow(int band, bool newRow)
{
    at(band).newRow = newRow;
    updateGeometry();
    arrange();
}

double CoolBar::Width(int band) const
{
    return at(band).width > 0 ? at(band).width : naturalWidth(band);
}

void CoolBar::setWidth(int band, double width)
{
    at(band).width = std::max(width, static_cast<double>(smallestWidth(band)));
    arrange();
}

void CoolBar::setBandVisible(int band, bool visible)
{
    at(band).shown = visible;
    at(band).child->setVisible(visible);
    updateGeometry();
    arrange();
}

QRect CoolBar::bandRect(int band) const
{
    return at(band).shown ? at(band).place : QRect();
}

int CoolBar::smallestWidth(int band) const
{
    return GripWidth + at(band).child->minimumSizeHint().width();
}

int CoolBar::naturalWidth(int band) const
{
    return GripWidth + at(band).child->sizeHint().width();
}

int CoolBar::heightOf(const Row &row) const
{
    return std::accumulate(row.begin(), row.end(), 0, [this](int height, int band) {
        return std::max(height, at(band).child->sizeHint().height());
    });
}

/// A band that is hidden leaves its row to the ones behind it.
std::vector<CoolBar::Row> CoolBar::rows() const
{
    std::vector<Row> rows;
    bool start = true;
    for (int band = 1; band <= Count(); ++band) {
        start = start || NewRow(band);
        if (!at(band).shown)
            continue;
        if (start)
            rows.emplace_back();
        rows.back().push_back(band);
        start = false;
    }
    return rows;
}

/// The place in its row of the band that takes the room left over.
size_t CoolBar::stretching(const Row &row) const
{
    const auto found = std::find_if(row.begin(), row.end(), [this](int band) {
        return at(band).child->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    });
    return static_cast<size_t>((found == row.end() ? std::prev(found) : found) - row.begin());
}

/// The widths wanted; where the row is too narrow for them, the last bands give way first, down to their smallest.
std::vector<int> CoolBar::widthsIn(const Row &row) const
{
    std::vector<int> widths;
    for (const int band : row)
        widths.push_back(qRound(Width(band)));
    const int total = std::accumulate(widths.begin(), widths.end(), 0);
    int excess = total - width();
    for (size_t i = widths.size(); i-- > 0 && excess > 0;) {
        const int give = std::clamp(widths[i] - smallestWidth(row[i]), 0, excess);
        widths[i] -= give;
        excess -= give;
    }
    if (excess < 0)
        widths[stretching(row)] -= excess;
    return widths;
}

void CoolBar::arrange()
{
    int top = 0;
    for (const Row &row : rows()) {
        const int height = heightOf(row);
        placeRow(row, top, height);
        top += height + RowGap;
    }
    update();
}

void CoolBar::placeRow(const Row &row, int top, int height)
{
    const std::vector<int> widths = widthsIn(row);
    int left = 0;
    for (size_t i = 0; i < row.size(); ++i) {
        Band &band = at(row[i]);
        band.place = QRect(left, top, widths[i], height);
        band.child->setGeometry(band.place.adjusted(GripWidth, 0, 0, 0));
        left += widths[i];
    }
}

QSize CoolBar::sizeHint() const
{
    QSize size(0, 0);
    for (const Row &row : rows()) {
        const int width =
            std::accumulate(row.begin(), row.end(), 0, [this](int sum, int band) { return sum + naturalWidth(band); });
        size = QSize(std::max(size.width(), width), size.height() + heightOf(row) + RowGap);
    }
    return size;
}

QSize CoolBar::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

bool CoolBar::event(QEvent *event)
{
    // A band's contents want another size: the rows take their new heights.
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        arrange();
    }
    return QWidget::event(event);
}

void CoolBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

QRect CoolBar::gripOf(int band) const
{
    const QRect place = bandRect(band);
    return place.isEmpty() ? QRect() : QRect(place.left(), place.top(), GripWidth, place.height());
}

void CoolBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    for (int band = 1; band <= Count(); ++band) {
        const QRect grip = gripOf(band);
        if (grip.isEmpty())
            continue;
        QStyleOption option;
        option.initFrom(this);
        option.rect = grip.adjusted(1, 3, -1, -3);
        option.state |= QStyle::State_Horizontal;
        style()->drawPrimitive(QStyle::PE_IndicatorToolBarHandle, &option, &painter, this);
    }
}

int CoolBar::bandOfGrip(const QPoint &point) const
{
    for (int band = 1; band <= Count(); ++band)
        if (gripOf(band).contains(point))
            return band;
    return 0;
}

void CoolBar::mousePressEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    m_dragged = event->button() == Qt::LeftButton ? bandOfGrip(point) : 0;
    if (m_dragged)
        m_offset = point.x() - bandRect(m_dragged).left();
    else
        QWidget::mousePressEvent(event);
}

void CoolBar::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (m_dragged) {
        // A band that has come into another row is moved on from where it stands there.
        if (dragAcrossRows(m_dragged, point.y()))
            m_offset = point.x() - bandRect(m_dragged).left();
        else
            dragAlongRow(m_dragged, point.x() - m_offset);
    } else {
        setCursor(bandOfGrip(point) ? Qt::SizeAllCursor : Qt::ArrowCursor);
    }
}

void CoolBar::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragged = 0;
    QWidget::mouseReleaseEvent(event);
}

/// The visible band in front of one in its row; 0 for the first of a row.
int CoolBar::before(int band) const
{
    for (const Row &row : rows()) {
        const auto found = std::find(row.begin(), row.end(), band);
        if (found != row.end())
            return found == row.begin() ? 0 : *std::prev(found);
    }
    return 0;
}

/// Whether the band has left its row.
bool CoolBar::dragAcrossRows(int band, int y)
{
    const QRect place = bandRect(band);
    const bool down = before(band) && y > place.bottom() + RowPull;
    const bool up = !before(band) && place.top() > 0 && y < place.top() - RowPull;
    if (down || up)
        setNewRow(band, down);
    return down || up;
}

void CoolBar::dragAlongRow(int band, int x)
{
    const int neighbour = before(band);
    if (!neighbour)
        return;
    // Every band in front of the neighbour keeps the width that it is seen to have.
    for (int other = before(neighbour); other; other = before(other))
        at(other).width = bandRect(other).width();
    setWidth(neighbour, x - bandRect(neighbour).left());
}
