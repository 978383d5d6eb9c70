// From the start of the program's process to its main window at rest, and keys of the display: measured from outside.
#include "figures.h"

#include <QProcess>
#include <cstdio>
#include <map>
#include <utility>

namespace
{
constexpr int Longest = 600'000; // ms of all the starts

struct Goal {
    const char *file;   ///< as outside/own.py calls it
    const char *figure; ///< likewise
    const char *name;
    const char *unit;
    std::optional<double> limit;
};

// A caret blinks for some seconds after the last key, and "at rest" is behind them.
constexpr Goal goals[] = {
    {"no file", "wall", "start to rest, less the splash's wait", "ms", 75},
    {"no file", "processor", "start to rest, processor time", "ms", {}},
    {"no file", "memory", "start to rest, memory", "MiB", 32},
    {"no file", "wakings", "wakings a second at rest", "times", 0},
    {"64,000 characters", "wall", "start with 64,000 characters, coloured", "ms", 80},
    {"64,000 characters", "key", "a typed letter in 64,000 characters, processor time", "ms", 0.7},
    {"64,000 characters", "paint", "the same, from key to painting", "ms", 1.5},
    {"1 MB", "wall", "start with 1 MB", "ms", 95},
    {"1 MB", "memory", "start with 1 MB, memory", "MiB", 38},
    {"1 MB", "key", "a typed letter in 1 MB, processor time", "ms", 0.7},
    {"1 MB", "paint", "the same, from key to painting", "ms", 1.5},
    {"10 MB", "wall", "start with 10 MB", "ms", 120},
    {"10 MB", "memory", "start with 10 MB, memory", "MiB", 70},
    {"10 MB", "key", "a typed letter in 10 MB, processor time", "ms", 0.7},
    {"10 MB", "paint", "the same, from key to painting", "ms", 1.5},
    {"a line of 1 MB", "wall", "start with a single line of 1 MB", "ms", 110},
    {"a line of 1 MB", "key", "a typed letter in a single line of 1 MB, processor time", "ms", 5},
};

using Measured = std::map<std::pair<QString, QString>, double>;

/// The lines "FILE|FIGURE|VALUE" of what measures.
Measured measuredFromOutside()
{
    QProcess outside;
    outside.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    outside.start(QStringLiteral("python3"), {QStringLiteral("-B"), QStringLiteral(TAGWRIGHTER_OUTSIDE "/own.py"),
                                              QStringLiteral(TAGWRIGHTER_PROGRAM)});
    outside.waitForFinished(Longest);
    Measured measured;
    for (const QString &line : QString::fromUtf8(outside.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList cells = line.split(u'|');
        if (cells.size() == 3)
            measured[{cells[0], cells[1]}] = cells[2].toDouble();
    }
    return measured;
}
} // namespace

void startFigures(Figures &figures)
{
    const Measured measured = measuredFromOutside();
    for (const Goal &goal : goals) {
        const auto found = measured.find({QString::fromLatin1(goal.file), QString::fromLatin1(goal.figure)});
        if (found != measured.end())
            figures.add(QString::fromLatin1(goal.name), found->second, QString::fromLatin1(goal.unit), goal.limit);
        else
            std::fprintf(stderr, "Not measured: %s\n", goal.name);
    }
}
