#include "figures.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <algorithm>
#include <cstdio>
#include <ctime>

void Figures::add(const QString &name, double measured, const QString &unit, std::optional<double> limit)
{
    m_figures.push_back({name, measured, unit, limit});
}

bool Figures::print() const
{
    bool held = true;
    std::printf("%-62s | %-14s | %s\n", "figure", "measured", "limit");
    for (const Figure &figure : m_figures) {
        const bool over = figure.limit && figure.measured > *figure.limit;
        const QString measured = QString::number(figure.measured, 'g', 3) + u' ' + figure.unit;
        const QString limit = figure.limit ? QString::number(*figure.limit) + u' ' + figure.unit : QStringLiteral("-");
        std::printf("%-62s | %-14s | %s%s\n", qUtf8Printable(figure.name), qUtf8Printable(measured),
                    qUtf8Printable(limit), over ? "  EXCEEDED" : "");
        held = held && !over;
    }
    return held;
}

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double medianTime(int runs, const std::function<void()> &run, const std::function<void()> &prepare)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        if (prepare)
            prepare();
        const double start = processorTime();
        run();
        times.push_back(processorTime() - start);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

namespace
{
double memoryOf(const QString &process)
{
    QFile rollup(QStringLiteral("/proc/%1/smaps_rollup").arg(process));
    if (!rollup.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : rollup.readAll().split('\n')) {
        if (line.startsWith("Pss:"))
            return line.mid(4).simplified().split(' ').first().toDouble() * 1024;
    }
    return 0;
}

/// The process that started this one; empty if it has ended.
QString parentOf(const QString &process)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(process));
    if (!stat.open(QIODevice::ReadOnly))
        return {};
    const QByteArray fields = stat.readAll();
    // The name, in brackets, may hold anything.
    return QString::fromLatin1(fields.mid(fields.lastIndexOf(')') + 2).split(' ').value(1));
}
} // namespace

double memoryInUse()
{
    return memoryOf(QStringLiteral("self"));
}

double memoryOfAll()
{
    QStringList family{QString::number(QCoreApplication::applicationPid())};
    double memory = 0;
    for (qsizetype i = 0; i < family.size(); ++i) {
        memory += memoryOf(family[i]);
        for (const QString &process : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs))
            if (process.toLongLong() > 0 && parentOf(process) == family[i])
                family.append(process);
    }
    return memory;
}

double printedByChild(const QStringList &arguments)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), arguments);
    child.waitForFinished(-1);
    return child.readAllStandardOutput().trimmed().toDouble();
}
