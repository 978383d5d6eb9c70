#include "desktop/desktopPrinting.h"

#include "widgets/printedPage.h"

#include <QFontMetricsF>
#include <QMarginsF>
#include <QPainter>
#include <QPrinter>

namespace
{
constexpr qreal PointsPerInch = 72;

qreal pixelsPerPoint(const QPrinter &printer)
{
    return printer.logicalDpiY() / PointsPerInch;
}

QSizeF paperSize(const QPrinter &printer)
{
    return printer.pageLayout().paintRect(QPageLayout::Point).size();
}
} // namespace

DesktopPrinting::DesktopPrinting() = default;

DesktopPrinting::~DesktopPrinting() = default;

QPrinter &DesktopPrinting::printer()
{
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        // Without a printer to ask, the toolkit would print to within 3 mm of the edges.
        constexpr qreal Margin = printed::Margin;
        m_printer->setPageMargins(QMarginsF(Margin, Margin, Margin, Margin), QPageLayout::Point);
    }
    return *m_printer;
}

Paper DesktopPrinting::paper(const QFont &font)
{
    QPrinter &device = printer();
    const QFontMetricsF metrics(font, &device);
    const qreal pixels = pixelsPerPoint(device);
    return {.size = paperSize(device),
            .lineHeight = metrics.lineSpacing() / pixels,
            .textWidth = [metrics, pixels](const QString &text) { return metrics.horizontalAdvance(text) / pixels; }};
}

std::optional<PrintError> printOn(QPrinter &printer, const PrintJob &job, const std::function<bool(int)> &goOn)
{
    if (!printer.isValid())
        return PrintError{.number = PrintError::NoDriver};
    printer.setDocName(job.title);
    QPainter painter;
    if (!painter.begin(&printer))
        return PrintError{.number = PrintError::Failed};
    const int pages = static_cast<int>(job.pages.size());
    for (int page = 0; page < pages * job.copies; ++page) {
        if (!goOn(page)) {
            painter.end();
            printer.abort();
            return std::nullopt;
        }
        if (page > 0 && !printer.newPage())
            return PrintError{.number = PrintError::Failed};
        printed::drawPage(painter, job, page % pages, paperSize(printer), pixelsPerPoint(printer));
    }
    const bool ended = painter.end();
    if (!ended || printer.printerState() == QPrinter::Error)
        return PrintError{.number = PrintError::Failed};
    return std::nullopt;
}

std::optional<PrintError> DesktopPrinting::print(const PrintJob &job, const std::function<bool(int)> &goOn)
{
    return printOn(printer(), job, goOn);
}

std::optional<PrintError> printPictureOn(QPrinter &printer, const PictureJob &job)
{
    if (!printer.isValid())
        return PrintError{.number = PrintError::NoDriver};
    const QPageLayout::Orientation before = printer.pageLayout().orientation();
    printer.setDocName(job.title);
    printer.setPageOrientation(job.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPainter painter;
    bool done = painter.begin(&printer);
    for (int copy = 0; done && copy < job.copies; ++copy) {
        if (copy > 0)
            done = printer.newPage();
        job.draw(painter, QRectF(QPointF(), printer.pageLayout().paintRectPixels(printer.resolution()).size()));
    }
    done = done && painter.end() && printer.printerState() != QPrinter::Error;
    printer.setPageOrientation(before);
    return done ? std::nullopt : std::optional(PrintError{.number = PrintError::Failed});
}

std::optional<PrintError> DesktopPrinting::printPicture(const PictureJob &job)
{
    return printPictureOn(printer(), job);
}
