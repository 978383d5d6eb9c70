#include "drive/printing.h"

#include "drive/told.h"
#include "widgets/printedPage.h"

#include <QImage>
#include <QPainter>

namespace drive
{
QString PrintedJob::told() const
{
    return QStringLiteral("%1 of %2: %3").arg(copies).arg(quoted(title), quotedList(lines));
}

Paper ScriptedPrinting::paper(const QFont &font)
{
    return printed::usualPaper(font);
}

std::optional<PrintError> ScriptedPrinting::failure()
{
    if (m_failures.isEmpty())
        return std::nullopt;
    const int number = m_failures.takeFirst();
    return PrintError{.number = number, .description = QStringLiteral("Error %1").arg(number)};
}

std::optional<PrintError> ScriptedPrinting::printPicture(const PictureJob &job)
{
    if (auto error = failure())
        return error;
    QImage paper(595, 842, QImage::Format_RGB32);
    QPainter painter(&paper);
    job.draw(painter, paper.rect());
    painter.end();
    printed.add({job.copies, job.title, {}});
    return std::nullopt;
}

SvgFile ScriptedPrinting::svg(const SvgJob &job)
{
    return m_real->svg(job);
}

std::optional<PrintError> ScriptedPrinting::print(const PrintJob &job, const std::function<bool(int)> &goOn)
{
    if (auto error = failure())
        return error;
    for (int page = 0; page < job.pages.size() * job.copies; ++page)
        if (!goOn(page))
            return std::nullopt;
    PrintedJob done{job.copies, job.title, {}};
    for (const PrintedPage &page : job.pages)
        for (const PrintedLine &line : page.lines)
            done.lines.append(line.text);
    printed.add(done);
    return std::nullopt;
}
} // namespace drive
