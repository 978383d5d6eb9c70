#include "document/modClipboard.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "document/pictureHands.h"
#include "forms/programContext.h"
#include "services/clipboard.h"
#include "services/services.h"
#include "widgets/layout.h"

#include <QApplication>
#include <QLineEdit>

namespace
{
/// The text field of a pane that has the focus; nothing if the document is in use.
QLineEdit *fieldInUse()
{
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

/// Replaces what is selected in the document and takes the step into its history.
void replaceSelection(Document &document, const QString &text)
{
    document.txtEdit().setSelText(text);
    document.UndoRedoChange();
}

void copyText(ProgramContext &context, const QString &text)
{
    if (!text.isEmpty()) // an empty selection leaves what the user copied before
        context.services.clipboard.setText(text);
}
} // namespace

QString PasteFromClipboard(ProgramContext &context)
{
    return context.services.clipboard.text();
}

void CopyToClipboard(ProgramContext &context)
{
    if (const QLineEdit *field = fieldInUse())
        copyText(context, field->selectedText());
    else if (Document *document = context.mainWindow->activeDocument())
        copyText(context, document->txtEdit().SelText());
}

void CutToClipboard(ProgramContext &context)
{
    CopyToClipboard(context);
    if (QLineEdit *field = fieldInUse())
        field->insert({});
    else if (Document *document = context.mainWindow->activeDocument())
        replaceSelection(*document, {});
}

void PasteToDocument(ProgramContext &context)
{
    const QString text = PasteFromClipboard(context);
    if (QLineEdit *field = fieldInUse()) {
        field->insert(text);
    } else if (PasteAsPicture(context)) {
        return;
    } else if (Document *document = context.mainWindow->activeDocument()) {
        if (text.isEmpty())
            document->UndoRedoChange();
        else
            replaceSelection(*document, text);
    }
}

void SelectAllInActiveControl(ProgramContext &context)
{
    if (QLineEdit *field = fieldInUse()) {
        SelectAllText(field);
    } else if (Document *document = context.mainWindow->activeDocument()) {
        document->txtEdit().setSelStart(0);
        document->txtEdit().setSelLength(document->txtEdit().textLength());
    }
}
