#include "figures.h"
#include "pictures/pictureReader.h"

#include <QApplication>

namespace
{
struct Group {
    const char *name;
    void (*measure)(Figures &);
};

constexpr Group groups[] = {
    {"surface-mapping", surfaceMapping},
    {"surface-setting", surfaceSetting},
    {"surface-typing", surfaceTyping},
    {"surface-colouring", surfaceColouring},
    {"surface-single-line", surfaceSingleLine},
    {"document", documentFigures},
    {"codes", codeFigures},
    {"preview", previewFigures},
    {"transfers", transferFigures},
    {"tables", tableFigures},
    {"texttools", textToolFigures},
    {"project", projectFigures},
    {"dialogs", dialogFigures},
    {"designers", designerFigures},
    {"templates", templateFigures},
    {"printing", printFigures},
    {"opening", openingFigures},
    {"idle", idleFigures},
    {"start", startFigures},
};
} // namespace

// Measures the program's figures and prints them, or those only whose group's name holds the one argument; ends with 1
// if a limit was exceeded.
int main(int argc, char **argv)
{
    if (const std::optional<int> status = readPictureIfAsked(argc, argv))
        return *status;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == QStringLiteral("--surface-memory"))
        return printSurfaceMemory(arguments[2].toLongLong());
    if (arguments.size() == 2 && arguments[1] == QStringLiteral("--opening-memory"))
        return printOpeningMemory();
    if (arguments.size() == 2 && arguments[1] == QStringLiteral("--container-memory"))
        return printContainerMemory();
    Figures figures;
    for (const Group &group : groups) {
        const auto name = QString::fromLatin1(group.name);
        if (arguments.size() < 2 || name.contains(arguments[1]))
            group.measure(figures);
    }
    const bool held = figures.print();
    runServiceBenchmarks(arguments.value(1));
    return held ? 0 : 1;
}
