#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

/// What was measured, printed as a table "figure | measured | limit".
class Figures
{
public:
    /// The limit is in the unit of what was measured; without one the figure is reported, not promised.
    void add(const QString &name, double measured, const QString &unit, std::optional<double> limit = std::nullopt);
    /// Whether every limit held.
    bool print() const;

private:
    struct Figure {
        QString name;
        double measured;
        QString unit;
        std::optional<double> limit;
    };
    std::vector<Figure> m_figures;
};

/// Processor time of this process in seconds.
double processorTime();
/// The processor time of a run in seconds: the median of `runs`. `prepare` goes ahead of each and is not counted.
double medianTime(int runs, const std::function<void()> &run, const std::function<void()> &prepare = {});
/// The memory that this process alone accounts for (its proportional set size), in bytes.
double memoryInUse();
/// The same with that of the processes which it has started, and of theirs.
double memoryOfAll();

// The groups of figures, one for each subject.
void surfaceMapping(Figures &figures);
void surfaceSetting(Figures &figures);
void surfaceTyping(Figures &figures);
void surfaceColouring(Figures &figures);
void surfaceSingleLine(Figures &figures);
void documentFigures(Figures &figures);
void codeFigures(Figures &figures);
void previewFigures(Figures &figures);
void tableFigures(Figures &figures);
void textToolFigures(Figures &figures);
void projectFigures(Figures &figures);
void dialogFigures(Figures &figures);
void designerFigures(Figures &figures);
void templateFigures(Figures &figures);
void printFigures(Figures &figures);
void openingFigures(Figures &figures);
void idleFigures(Figures &figures);
void transferFigures(Figures &figures);
void startFigures(Figures &figures);
/// Runs the benchmarks of the services whose names hold `filter`, and prints them in a table of their own.
void runServiceBenchmarks(const QString &filter);
/// Runs in a process of its own: prints the memory that a text of so many characters costs the surface, in bytes.
int printSurfaceMemory(qsizetype characters);
/// The same for a container of 1 GB that is packed and unpacked; the most that it took meanwhile.
int printContainerMemory();
/// The same for a page of 10 MB that is opened in the program.
int printOpeningMemory();
/// What a process of this program prints when it is started with `arguments`.
double printedByChild(const QStringList &arguments);
