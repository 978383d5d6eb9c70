#include "texttools/frmGoToCharacter.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "forms/programContext.h"
#include "texttools/goTo.h"
#include "texttools/goToLayout.h"
#include "widgets/numberField.h"

#include <QPushButton>

frmGoToCharacter::frmGoToCharacter(ProgramContext &context) : DialogForm(context, QStringLiteral("frmGoToCharacter"))
{
    setCaption(QStringLiteral("Go To Character"));
}

void frmGoToCharacter::Form_Load()
{
    GoToControls controls = goToControls(
        QStringLiteral("txtGoToCharNumber"), QStringLiteral("&Character number:"), [this] { cmdGoTo_Click(); },
        [this] { cancel(); });
    txtGoToCharNumber = controls.number;
    setContent(controls.content);
    setDefaultButton(controls.cmdGoTo);
    setCancelButton(controls.cmdCancel);
}

void frmGoToCharacter::cmdGoTo_Click()
{
    Document *document = frmMdi().activeDocument();
    const std::optional<qint64> number = numberIn(txtGoToCharNumber->text());
    if (!document || !number)
        return;
    if (*number > document->txtEdit().textLength()) {
        tellExceeded(services(), QStringLiteral("Go To Character Number"), *txtGoToCharNumber,
                     QStringLiteral("characters"));
    } else if (*number >= 1) {
        document->txtEdit().setSelStart(*number);
        document->txtEdit().setSelLength(0);
        Unload();
    }
}
