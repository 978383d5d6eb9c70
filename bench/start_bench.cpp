// From the start of the program's process to its main window at rest.
#include "figures.h"
#include "services/settings.h"
#include "startedProgram.h"
#include "storage/settingsFiles.h"

#include <algorithm>

namespace
{
constexpr int Starts = 7;
constexpr double SplashSeconds = 0.85;
constexpr double Milli = 1000;
constexpr double StartMs = 120; ///< without the codes of HTML and CSS
constexpr double CodesMs = 60;

QProcessEnvironment environmentAt(const QString &home, const QString &platform, const QString &display)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    for (const char *folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment.insert(QString::fromLatin1(folder), home);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    environment.insert(QStringLiteral("DISPLAY"), display);
    return environment;
}

template <class Field>
double median(std::vector<StartFigures> starts, Field StartFigures::*field)
{
    std::sort(starts.begin(), starts.end(),
              [field](const StartFigures &a, const StartFigures &b) { return a.*field < b.*field; });
    return starts[starts.size() / 2].*field;
}

void measureStarts(Figures &figures, const QString &platform, const QString &display)
{
    const QTemporaryDir home;
    const QProcessEnvironment environment = environmentAt(home.path(), platform, display);
    startProgram(environment); // the first start writes the settings and the program's folder
    {
        SettingsFiles store(home.filePath(QStringLiteral("tagwrighter")));
        settings::write(store, settings::WelcomeScreen, QStringLiteral("false"));
    }
    std::vector<StartFigures> starts;
    for (int i = 0; i < Starts; ++i) {
        if (const std::optional<StartFigures> start = startProgram(environment))
            starts.push_back(*start);
    }
    if (starts.empty())
        return;
    const QString name = QStringLiteral("start to rest, %1, less the splash's 850 ms: ").arg(platform);
    figures.add(name + QStringLiteral("wall"), (median(starts, &StartFigures::wall) - SplashSeconds) * Milli,
                QStringLiteral("ms"), StartMs + CodesMs);
    figures.add(name + QStringLiteral("processor"), median(starts, &StartFigures::processor) * Milli,
                QStringLiteral("ms"), StartMs + CodesMs);
    figures.add(name + QStringLiteral("memory"), median(starts, &StartFigures::memory) / 1024 / 1024,
                QStringLiteral("MiB"), 60);
}
} // namespace

void startFigures(Figures &figures)
{
    measureStarts(figures, QStringLiteral("offscreen"), QString());
    const VirtualDisplay display;
    if (!display.name().isEmpty())
        measureStarts(figures, QStringLiteral("xcb"), display.name());
}
