#include "texttools/frmWordCount.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/programContext.h"
#include "texttools/wordCount.h"
#include "widgets/layout.h"
#include "widgets/screenPointer.h"

#include <QLabel>
#include <QPushButton>

namespace
{
QLabel *numberLabel(const QString &name)
{
    QLabel *label = ui::label(name, QStringLiteral("0"));
    label->setAlignment(Qt::AlignRight);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}
} // namespace

frmWordCount::frmWordCount(ProgramContext &context) : DialogForm(context, QStringLiteral("frmWordCount"))
{
    setCaption(QStringLiteral("Word Count"));
}

void frmWordCount::Form_Load()
{
    lblWords = numberLabel(QStringLiteral("lblWords"));
    lblCharTotal = numberLabel(QStringLiteral("lblCharTotal"));
    lblElements = numberLabel(QStringLiteral("lblElements"));
    lblHyperlinks = numberLabel(QStringLiteral("lblHyperlinks"));
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Close"), [this] { cancel(); });
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Words:"), lblWords),
            ui::row(QStringLiteral("Characters without tags:"), lblCharTotal),
            ui::row(QStringLiteral("Elements:"), lblElements),
            ui::row(QStringLiteral("Hyperlinks:"), lblHyperlinks),
        }),
        ui::buttons({cmdCancel}),
    }));
    setDefaultButton(cmdCancel);
    setCancelButton(cmdCancel);
    count();
}

/// A colouring pass that is due is left out, so that none runs under the counting.
void frmWordCount::count()
{
    Document *document = frmMdi().activeDocument();
    if (!document)
        return;
    document->setRefreshEnabled(false);
    context().screenPointer.setMousePointer(PointerShape::ArrowHourglass);
    const TextSurface &edit = document->txtEdit();
    const TextCounts counts = countText(edit.SelLength() != 0 ? edit.SelText() : edit.Text());
    lblHyperlinks->setText(QString::number(counts.hyperlinks));
    lblWords->setText(QString::number(counts.words));
    lblCharTotal->setText(QString::number(counts.characters));
    lblElements->setText(QString::number(counts.elements));
    context().screenPointer.setMousePointer(PointerShape::Default);
}

void frmWordCount::Form_Unload()
{
    context().state.DialogCancelled = true;
    DialogForm::Form_Unload();
}
