#include "widgets/printedSheet.h"

#include "widgets/printedPage.h"

#include <QPainter>

#include <algorithm>

namespace
{
using printed::Margin;
constexpr qreal MetresPerInch = 0.0254;
constexpr qreal PointsPerInch = 72;

/// The page as a picture of the given pixels a point. Fonts take their size from the picture's resolution.
QImage drawn(const PrintJob &job, int page, const QSizeF &size, qreal pixels)
{
    const QSizeF sheet = (size + QSizeF(2 * Margin, 2 * Margin)) * pixels;
    QImage picture(sheet.toSize().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    const int resolution = qRound(pixels * PointsPerInch / MetresPerInch);
    picture.setDotsPerMeterX(resolution);
    picture.setDotsPerMeterY(resolution);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.translate(Margin * pixels, Margin * pixels);
    printed::drawPage(painter, job, page, size, pixels);
    return picture;
}
} // namespace

PrintedSheet::PrintedSheet(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PrintedSheet::setJob(const PrintJob &job, const QSizeF &size)
{
    m_job = job;
    m_size = size;
    setPage(m_page);
}

void PrintedSheet::setPage(int page)
{
    m_page = std::clamp(page, 0, std::max(static_cast<int>(m_job.pages.size()) - 1, 0));
    update();
}

QSize PrintedSheet::sizeHint() const
{
    return {480, 620};
}

QSize PrintedSheet::minimumSizeHint() const
{
    return {240, 320};
}

void PrintedSheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    if (m_page >= m_job.pages.size())
        return;
    const QSizeF sheet = m_size + QSizeF(2 * Margin, 2 * Margin);
    const qreal perPoint = std::min(width() / sheet.width(), height() / sheet.height());
    QImage picture = drawn(m_job, m_page, m_size, perPoint * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    const QSizeF shown = picture.deviceIndependentSize();
    painter.drawImage(QPointF((width() - shown.width()) / 2, (height() - shown.height()) / 2), picture);
}
