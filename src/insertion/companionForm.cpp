#include "insertion/companionForm.h"

#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/layout.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>

CompanionForm::CompanionForm(ProgramContext &context, const Design &design)
    : Form(context, design.name), m_design(design)
{
    setCaption(design.caption);
}

void CompanionForm::ask()
{
    const QPointer<QWidget> before = QApplication::activeWindow();
    ShowModal();
    if (before) // the desktop may take the owner of both for the window to go back to
        before->activateWindow();
}

ui::Node CompanionForm::companionButtons()
{
    QPushButton *ok = ui::button(m_design.okName, m_design.okCaption, [this] {
        if (accept())
            Unload();
    });
    QPushButton *cancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    setDefaultButton(ok);
    setCancelButton(cancel);
    return ui::buttons({ok, cancel});
}

bool CompanionForm::refused(const QString &title, const QString &message, QWidget *field)
{
    services().messageBoxes.show({title, message, MessageIcon::Exclamation, MessageButtons::OK});
    field->setFocus(Qt::OtherFocusReason);
    return false;
}
