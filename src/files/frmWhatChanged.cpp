#include "files/frmWhatChanged.h"

#include "common/lineDifference.h"
#include "widgets/layout.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

frmWhatChanged::frmWhatChanged(ProgramContext &context) : DialogForm(context, QStringLiteral("frmWhatChanged"))
{
    setCaption(QStringLiteral("What Changed"));
}

void frmWhatChanged::setTexts(const QString &before, const QString &after)
{
    m_difference = lineDifference(before, after).join(u'\n');
}

void frmWhatChanged::Form_Load()
{
    QPlainTextEdit *txtDifference = ui::textArea(QStringLiteral("txtDifference"));
    txtDifference->setReadOnly(true);
    txtDifference->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtDifference->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtDifference->setPlainText(m_difference);
    QPushButton *cmdClose = ui::button(QStringLiteral("cmdClose"), QStringLiteral("Close"), [this] { cancel(); });
    setContent(ui::beside(
        {ui::under(QStringLiteral("&Lines of the file (-) and of the recovered text (+):"), txtDifference).stretched(),
         ui::buttons({cmdClose})}));
    window()->resize(window()->sizeHint().expandedTo({640, 360}));
    setDefaultButton(cmdClose);
    setCancelButton(cmdClose);
}
