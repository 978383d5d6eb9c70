#include "files/frmMsgSaveTemplate.h"

#include "files/templateMessages.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace
{
QLabel *paragraph(const QString &name, const QString &text)
{
    QLabel *label = ui::label(name, text);
    label->setWordWrap(true);
    return label;
}
} // namespace

frmMsgSaveTemplate::frmMsgSaveTemplate(ProgramContext &context) : Form(context, QStringLiteral("frmMsgSaveTemplate"))
{
    setCaption(QStringLiteral("Combined Template Saved"));
}

void frmMsgSaveTemplate::setResult(const QString &templateName, const QStringList &files)
{
    m_templateName = templateName;
    m_files = files;
}

void frmMsgSaveTemplate::Form_Load()
{
    const SavedTemplateTexts texts = savedTemplateTexts(m_templateName, m_files.size());
    QLabel *lblMessage2 = paragraph(QStringLiteral("lblMessage2"), texts.aboutList);
    QListWidget *lstAccompanyingFiles = ui::list(QStringLiteral("lstAccompanyingFiles"));
    lstAccompanyingFiles->addItems(m_files);
    lstAccompanyingFiles->setAccessibleName(QStringLiteral("Accompanying files"));
    QPushButton *cmdClose = ui::button(QStringLiteral("cmdClose"), QStringLiteral("Close"), [this] { Unload(); });
    setContent(ui::beside({
        ui::column({paragraph(QStringLiteral("lblMessage"), texts.message), lblMessage2,
                    ui::Node(lstAccompanyingFiles).stretched()}),
        ui::buttons({cmdClose}),
    }));
    lblMessage2->setVisible(!m_files.isEmpty());
    lstAccompanyingFiles->setVisible(!m_files.isEmpty());
    window()->setMinimumWidth(480);
    setDefaultButton(cmdClose);
    setCancelButton(cmdClose);
}
