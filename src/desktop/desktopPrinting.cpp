#include "desktop/desktopPrinting.h"

#include "widgets/printedPage.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QMarginsF>
#include <QPainter>

namespace
{
constexpr qreal PointsPerInch = 72;

qreal pixelsPerPoint(const QPaintDevice &device)
{
    return device.logicalDpiY() / PointsPerInch;
}

QSizeF paperSize(const QPagedPaintDevice &device)
{
    return device.pageLayout().paintRect(QPageLayout::Point).size();
}

std::optional<PrintError> printOn(PaperPrinter &printer, const PrintJob &job, const std::function<bool(int)> &goOn)
{
    if (!printer.isValid())
        return PrintError{.number = PrintError::NoDriver};
    printer.setTitle(job.title);
    QPagedPaintDevice &device = printer.device();
    QPainter painter;
    if (!painter.begin(&device))
        return PrintError{.number = PrintError::Failed};
    const int pages = static_cast<int>(job.pages.size());
    for (int page = 0; page < pages * job.copies; ++page) {
        if (!goOn(page)) {
            painter.end();
            printer.abort();
            return std::nullopt;
        }
        if (page > 0 && !device.newPage())
            return PrintError{.number = PrintError::Failed};
        printed::drawPage(painter, job, page % pages, paperSize(device), pixelsPerPoint(device));
    }
    const bool ended = painter.end();
    if (!ended || printer.hasFailed())
        return PrintError{.number = PrintError::Failed};
    return std::nullopt;
}

std::optional<PrintError> printPictureOn(PaperPrinter &printer, const PictureJob &job)
{
    if (!printer.isValid())
        return PrintError{.number = PrintError::NoDriver};
    QPagedPaintDevice &device = printer.device();
    const QPageLayout::Orientation before = device.pageLayout().orientation();
    printer.setTitle(job.title);
    device.setPageOrientation(job.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPainter painter;
    bool done = painter.begin(&device);
    for (int copy = 0; done && copy < job.copies; ++copy) {
        if (copy > 0)
            done = device.newPage();
        job.draw(painter, QRectF(QPointF(), device.pageLayout().paintRectPixels(device.logicalDpiY()).size()));
    }
    done = done && painter.end() && !printer.hasFailed();
    device.setPageOrientation(before);
    return done ? std::nullopt : std::optional(PrintError{.number = PrintError::Failed});
}
/// What the toolkit wrote, as a file that can be read again: it takes a title and controls within texts as they are.
QByteArray wellFormed(QByteArray svg, const QString &title)
{
    const qsizetype root = svg.indexOf('>', svg.indexOf("<svg")) + 1;
    svg.insert(root, "\n<title>" + title.toHtmlEscaped().toUtf8() + "</title>");
    const auto isForbidden = [](char c) { return c >= 0 && c < ' ' && c != '\t' && c != '\n' && c != '\r'; };
    svg.removeIf(isForbidden);
    return svg;
}
} // namespace

DesktopPrinting::DesktopPrinting(const QStringList &folders) : m_part(folders, QStringLiteral("tagwrighter-papers.so"))
{
}

PaperPrinter *DesktopPrinting::printer()
{
    auto *engine = m_printer ? nullptr : m_part.engine<PaperEngine>();
    if (engine) {
        m_printer = engine->newPrinter();
        // Without a printer to ask, the toolkit would print to within 3 mm of the edges.
        constexpr qreal Margin = printed::Margin;
        m_printer->device().setPageMargins(QMarginsF(Margin, Margin, Margin, Margin), QPageLayout::Point);
    }
    return m_printer.get();
}

PrintError DesktopPrinting::withoutModule() const
{
    return {.number = PrintError::Unexpected, .description = m_part.reason()};
}

Paper DesktopPrinting::paper(const QFont &font)
{
    PaperPrinter *chosen = printer();
    if (!chosen)
        return printed::usualPaper(font);
    QPagedPaintDevice &device = chosen->device();
    return printed::measuredPaper(paperSize(device), QFontMetricsF(font, &device), pixelsPerPoint(device));
}

std::optional<PrintError> DesktopPrinting::print(const PrintJob &job, const std::function<bool(int)> &goOn)
{
    PaperPrinter *device = printer();
    return device ? printOn(*device, job, goOn) : withoutModule();
}

std::optional<PrintError> DesktopPrinting::printPicture(const PictureJob &job)
{
    PaperPrinter *device = printer();
    return device ? printPictureOn(*device, job) : withoutModule();
}

SvgFile DesktopPrinting::svg(const SvgJob &job)
{
    auto *engine = m_part.engine<PaperEngine>();
    if (!engine)
        return {.bytes = {}, .reason = m_part.reason()};
    QBuffer buffer;
    const std::unique_ptr<QPaintDevice> device = engine->newSvg(buffer, job.size);
    QPainter painter(device.get());
    job.draw(painter, QRectF(QPointF(), job.size));
    painter.end();
    return {.bytes = wellFormed(buffer.data(), job.title)};
}
