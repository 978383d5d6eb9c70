#include "browser/webBrowser.h"
#include "figures.h"
#include "forms/form.h"
#include "pages.h"
#include "runningProgram.h"
#include "services/timer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QTest>
#include <algorithm>

namespace
{
constexpr int Runs = 9;
constexpr qsizetype PageSize = 60000;
constexpr int Longest = 20000; ///< milliseconds after which a page is given up
constexpr double MiB = 1024.0 * 1024.0;

/// The preview of a running program's document.
class Preview
{
public:
    explicit Preview(RunningProgram &program)
        : m_edit(program.document()->txtEdit()), m_form(dynamic_cast<Form &>(*program.document()))
    {
    }

    /// Milliseconds of real time from the live timer until a page with a square of that colour in its corner is
    /// painted.
    double timeToPaint(const QColor &colour)
    {
        m_edit.setText(QStringLiteral("<div style=\"position:fixed;left:0;top:0;width:40px;height:40px;background:%1\">"
                                      "</div>")
                           .arg(colour.name()) +
                       page(PageSize, 1));
        auto &timer = dynamic_cast<Timer &>(*m_form.control(QStringLiteral("tmrUpdateLiveSplitPreview")));
        QElapsedTimer clock;
        clock.start();
        timer.fire();
        auto &browser = dynamic_cast<WebBrowser &>(*m_form.control(QStringLiteral("brwWebBrowser")));
        const auto isPainted = [&] { return browser.grab(QRect(20, 20, 1, 1)).toImage().pixelColor(0, 0) == colour; };
        while (!isPainted() && !clock.hasExpired(Longest))
            QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 5);
        return static_cast<double>(clock.nsecsElapsed()) * 1e-6;
    }

private:
    TextSurface &m_edit;
    Form &m_form;
};
} // namespace

void previewFigures(Figures &figures)
{
    RunningProgram program;
    Preview preview(program);
    const double own = memoryInUse();
    const double all = memoryOfAll();
    figures.add(QStringLiteral("live timer to the first painted page of 60 KB"), preview.timeToPaint(Qt::red),
                QStringLiteral("ms"), 1500);
    QTest::qWait(1000);
    figures.add(QStringLiteral("the first preview adds to this process"), (memoryInUse() - own) / MiB,
                QStringLiteral("MiB"));
    figures.add(QStringLiteral("the first preview adds to this and the page's processes"), (memoryOfAll() - all) / MiB,
                QStringLiteral("MiB"));
    std::vector<double> times;
    for (int i = 0; i < Runs; ++i) {
        times.push_back(preview.timeToPaint(i % 2 == 0 ? Qt::blue : Qt::red));
        QTest::qWait(100); // the page's load may still have something to do
    }
    std::sort(times.begin(), times.end());
    figures.add(QStringLiteral("live timer to a painted page of 60 KB, afterwards"), times[Runs / 2],
                QStringLiteral("ms"), 250);
    figures.add(QStringLiteral("the slowest of those"), times.back(), QStringLiteral("ms"));
}
