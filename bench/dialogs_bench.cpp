#include "figures.h"
#include "insertion/insertionForms.h"
#include "opening.h"
#include "pictures/pictureLoader.h"
#include "runningProgram.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QTemporaryDir>
#include <QWidget>

namespace
{
constexpr int Runs = 9;
constexpr double Milli = 1000;

/// Knows whether a window has been painted.
class PaintWatch final : public QObject
{
public:
    bool painted = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

void openUntilPainted(Form &form)
{
    PaintWatch watch;
    form.Load();
    form.window()->installEventFilter(&watch);
    form.Show();
    while (!watch.painted)
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
}

/// Real time, since another process does the work.
double loadingTime(const char *format)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture"));
    QImage picture(4000, 3000, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * y % 251, x % 256, y % 256));
    picture.save(path, format);
    std::vector<qint64> times;
    for (int i = 0; i < Runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        LoadPicture(path, QSize(1280, 1024));
        times.push_back(timer.nsecsElapsed());
    }
    std::sort(times.begin(), times.end());
    return static_cast<double>(times[times.size() / 2]) * 1e-9;
}
} // namespace

double formOpeningTime(Form &form)
{
    const double time = medianTime(
        Runs, [&] { openUntilPainted(form); },
        [&] {
            form.Unload();
            RunningProgram::settle();
        });
    form.Unload();
    RunningProgram::settle();
    return time;
}

void dialogFigures(Figures &figures)
{
    RunningProgram running;
    ProgramContext &context = running.program().context();
    for (const std::unique_ptr<Form> &form : insertionForms(context))
        figures.add(form->Name() + QStringLiteral(" from command to painted"),
                    formOpeningTime(*context.forms.find(form->Name())) * Milli, QStringLiteral("ms"), 60);
    for (const char *name : {"frmFind", "frmGoToLine", "frmGoToCharacter", "frmWordCount", "frmChangeCase",
                             "frmChangeRootDirectory", "frmAddToCodeLib"})
        figures.add(QLatin1String(name) + QStringLiteral(" from command to painted"),
                    formOpeningTime(*context.forms.find(QLatin1String(name))) * Milli, QStringLiteral("ms"), 60);
    figures.add(QStringLiteral("preview of a photograph of 12 megapixels"), loadingTime("jpg") * Milli,
                QStringLiteral("ms"), 1000);
    figures.add(QStringLiteral("preview of a PNG of 12 megapixels"), loadingTime("png") * Milli, QStringLiteral("ms"),
                1000);
}
