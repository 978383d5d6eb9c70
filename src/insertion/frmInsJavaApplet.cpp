#include "insertion/frmInsJavaApplet.h"

#include "forms/formRuntime.h"
#include "insertion/embeddedElement.h"
#include "insertion/frmAddJavaParam.h"
#include "widgets/numberField.h"

#include <QComboBox>
#include <QLineEdit>

frmInsJavaApplet::frmInsJavaApplet(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsJavaApplet"),
                              .caption = QStringLiteral("Insert Java Applet"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_JavaApplet.htm")})
{
}

void frmInsJavaApplet::Form_Load()
{
    setContent(ui::beside({
        ui::column({
            sourceRows(),
            placeRows(),
            m_parameters
                .build(QStringLiteral("Applet Parameters:"),
                       [this] { return context().forms.get<frmAddJavaParam>().askForParameter(); })
                .stretched(),
        }),
        dialogButtons(),
    }));
    readTag();
}

ui::Node frmInsJavaApplet::sourceRows()
{
    txtBase = ui::text(QStringLiteral("txtBase"));
    txtSource = ui::text(QStringLiteral("txtSource"));
    txtName = ui::text(QStringLiteral("txtName"));
    txtArchive = ui::text(QStringLiteral("txtArchive"));
    txtObject = ui::text(QStringLiteral("txtObject"));
    txtAlternative = ui::text(QStringLiteral("txtAlternative"));
    return ui::rows({
        ui::row(QStringLiteral("Base URL:"), txtBase),
        ui::row(QStringLiteral("Source:"), txtSource),
        ui::row(QStringLiteral("Name:"), txtName),
        ui::row(QStringLiteral("Archive:"), txtArchive),
        ui::row(QStringLiteral("Object:"), txtObject),
        ui::row(QStringLiteral("Alternative Text:"), txtAlternative),
    });
}

ui::Node frmInsJavaApplet::placeRows()
{
    txtWidth = embedded::sizeField(QStringLiteral("txtWidth"));
    txtHeight = embedded::sizeField(QStringLiteral("txtHeight"));
    cboAlignment = embedded::alignmentBox();
    txtVert = embedded::sizeField(QStringLiteral("txtVert"));
    txtHoz = embedded::sizeField(QStringLiteral("txtHoz"));
    return ui::line({
        ui::rows({
            ui::row(QStringLiteral("Width:"), ui::counted(txtWidth)),
            ui::row(QStringLiteral("Height:"), ui::counted(txtHeight)),
            ui::row(QStringLiteral("Alignment:"), cboAlignment),
        }),
        ui::rows({
            ui::row(QStringLiteral("Vertical Spacing:"), ui::counted(txtVert)),
            ui::row(QStringLiteral("Horizontal Spacing:"), ui::counted(txtHoz)),
        }),
    });
}

void frmInsJavaApplet::forgetLastUse()
{
    LeftoverAttributes.clear();
    m_edited = false;
}

void frmInsJavaApplet::readTag()
{
    const std::optional<TagUnderCaret> tag = takeTag(readAppletTag);
    if (!tag)
        return;
    LeftoverAttributes = tag->leftoverAttributes;
    m_edited = true;
    showFields(appletFields(*tag));
}

void frmInsJavaApplet::showFields(const AppletFields &fields)
{
    txtBase->setText(fields.codeBase);
    txtSource->setText(fields.code);
    txtName->setText(fields.name);
    txtArchive->setText(fields.archive);
    txtObject->setText(fields.object);
    txtWidth->setText(fields.width);
    txtHeight->setText(fields.height);
    cboAlignment->setEditText(fields.align);
    txtAlternative->setText(fields.alt);
    txtVert->setText(fields.vSpace);
    txtHoz->setText(fields.hSpace);
}

AppletFields frmInsJavaApplet::fields() const
{
    return {.codeBase = txtBase->text(),
            .code = txtSource->text(),
            .name = txtName->text(),
            .archive = txtArchive->text(),
            .object = txtObject->text(),
            .width = txtWidth->text(),
            .height = txtHeight->text(),
            .align = cboAlignment->currentText(),
            .alt = txtAlternative->text(),
            .vSpace = txtVert->text(),
            .hSpace = txtHoz->text(),
            .leftoverAttributes = LeftoverAttributes,
            .parameters = m_parameters.parameters(),
            .edited = m_edited};
}

std::optional<QString> frmInsJavaApplet::markup()
{
    return appletMarkup(fields());
}
