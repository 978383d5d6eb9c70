#include "insertion/modColourProcesses.h"

#include "common/colourText.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "insertion/frmColourSelSafe.h"
#include "widgets/colourSelection.h"
#include "widgets/themeColour.h"

#include <QApplication>
#include <QColor>
#include <QPointer>
#include <QWidget>

namespace
{
constexpr int SafeSteps = 6;
constexpr int SafeStep = 0x33;
constexpr int BlocksAcross = 3;

ColourValue safeColourAt(int row, int column)
{
    const int red = row / SafeSteps * BlocksAcross + column / SafeSteps;
    return colourOf(red * SafeStep, column % SafeSteps * SafeStep, row % SafeSteps * SafeStep);
}

/// A row of the circle's hues in one saturation and lightness, both from 0 to 1.
void appendHues(QList<ColourValue> &colours, double saturation, double lightness)
{
    for (int column = 0; column < WideColumns; ++column) {
        const auto hue = static_cast<float>(column) / WideColumns;
        const QColor colour = QColor::fromHslF(hue, static_cast<float>(saturation), static_cast<float>(lightness));
        colours.append(colourValue(colour));
    }
}

void appendGreys(QList<ColourValue> &colours)
{
    for (int column = 0; column < WideColumns; ++column) {
        const int level = 255 * column / (WideColumns - 1);
        colours.append(colourOf(level, level, level));
    }
}
} // namespace

QList<ColourValue> safeColours()
{
    QList<ColourValue> colours;
    for (int row = 0; row < SafeSteps * SafeSteps / BlocksAcross; ++row)
        for (int column = 0; column < SafeColumns; ++column)
            colours.append(safeColourAt(row, column));
    return colours;
}

QList<ColourValue> wideColours()
{
    QList<ColourValue> colours;
    appendGreys(colours);
    for (const double lightness : {0.9, 0.8, 0.7, 0.6, 0.5, 0.4, 0.3, 0.2, 0.1})
        appendHues(colours, 1, lightness);
    for (const double lightness : {0.8, 0.6, 0.5, 0.4, 0.2})
        appendHues(colours, 0.4, lightness);
    return colours;
}

QString PickColour(ProgramContext &context)
{
    context.state.ColourCode.clear();
    const QPointer<QWidget> before = QApplication::activeWindow();
    context.forms.showModal<frmColourSelSafe>();
    if (before) // the desktop may take the owner of both for the window to go back to
        before->activateWindow();
    return context.state.ColourCode;
}

void InsertColourCode(ProgramContext &context)
{
    const QString colour = PickColour(context);
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    if (!colour.isEmpty())
        document->txtEdit().setSelText(colour);
    document->txtEdit().SetFocus();
}

void leaveWithColour(Form &form, ProgramContext &context, ColourValue colour)
{
    context.state.ColourCode = colourText(colour);
    form.Unload();
    if (Document *document = context.mainWindow->activeDocument())
        document->txtEdit().SetFocus();
}

ColourSelection *colourPicker(ProgramContext &context, const QString &name, const ui::Handler &change)
{
    const auto pick = [&context](ColourValue) { return colourFromText(PickColour(context)); };
    return ui::colourSelection(name, pick, change);
}
