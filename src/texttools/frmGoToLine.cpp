#include "texttools/frmGoToLine.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "forms/programContext.h"
#include "texttools/goTo.h"
#include "texttools/goToLayout.h"
#include "widgets/numberField.h"
#include "widgets/screenPointer.h"

#include <QPushButton>

frmGoToLine::frmGoToLine(ProgramContext &context) : DialogForm(context, QStringLiteral("frmGoToLine"))
{
    setCaption(QStringLiteral("Go To Line"));
}

void frmGoToLine::Form_Load()
{
    if (Document *document = frmMdi().activeDocument())
        document->UpdateLineInformation();
    GoToControls controls = goToControls(
        QStringLiteral("txtGoToLineNumber"), QStringLiteral("&Line number:"), [this] { cmdGoTo_Click(); },
        [this] { cancel(); });
    txtGoToLineNumber = controls.number;
    setContent(controls.content);
    setDefaultButton(controls.cmdGoTo);
    setCancelButton(controls.cmdCancel);
}

void frmGoToLine::cmdGoTo_Click()
{
    const Document *document = frmMdi().activeDocument();
    const std::optional<qint64> line = numberIn(txtGoToLineNumber->text());
    if (!document || !line)
        return;
    if (*line > document->AvailableDocumentLines)
        tellExceeded(services(), QStringLiteral("Go To Line Number"), *txtGoToLineNumber, QStringLiteral("lines"));
    else if (*line >= 1)
        goTo(*line);
}

void frmGoToLine::goTo(qint64 line)
{
    context().screenPointer.setMousePointer(PointerShape::ArrowHourglass);
    TextSurface &edit = frmMdi().activeDocument()->txtEdit();
    edit.setSelStart(caretOfLine(edit.Text(), line));
    context().screenPointer.setMousePointer(PointerShape::Default);
    Unload();
}
