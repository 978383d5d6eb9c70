#include "insertion/frmInsObject.h"

#include "forms/formRuntime.h"
#include "insertion/embeddedElement.h"
#include "insertion/frmAddObjectParam.h"
#include "widgets/numberField.h"

#include <QComboBox>
#include <QLineEdit>

namespace
{
QStringList contentTypes()
{
    return {QStringLiteral("audio/basic"), QStringLiteral("image/gif"),     QStringLiteral("image/jpeg"),
            QStringLiteral("image/png"),   QStringLiteral("text/css"),      QStringLiteral("text/html"),
            QStringLiteral("text/plain"),  QStringLiteral("text/richtext"), QStringLiteral("video/mpeg")};
}
} // namespace

frmInsObject::frmInsObject(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsObject"),
                              .caption = QStringLiteral("Insert Object"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Object.htm")})
{
}

void frmInsObject::Form_Load()
{
    setContent(ui::beside({
        ui::column({
            sourceRows(),
            placeRows(),
            m_parameters
                .build(QStringLiteral("Object Parameters:"),
                       [this] { return context().forms.get<frmAddObjectParam>().askForParameter(); })
                .stretched(),
        }),
        dialogButtons(),
    }));
    readTag();
}

ui::Node frmInsObject::sourceRows()
{
    txtObject = ui::text(QStringLiteral("txtObject"));
    txtCodeBase = ui::text(QStringLiteral("txtCodeBase"));
    cboClassIDContentType = ui::combo(QStringLiteral("cboClassIDContentType"), contentTypes());
    txtData = ui::text(QStringLiteral("txtData"));
    cboDataContentType = ui::combo(QStringLiteral("cboDataContentType"), contentTypes());
    cboClassIDContentType->setAccessibleName(QStringLiteral("Content type of the object's program"));
    cboDataContentType->setAccessibleName(QStringLiteral("Content type of the data"));
    txtArchive = ui::text(QStringLiteral("txtArchive"));
    txtName = ui::text(QStringLiteral("txtName"));
    return ui::rows({
        ui::row(QStringLiteral("Object Classid:"), txtObject),
        ui::row(QStringLiteral("Base Path:"), txtCodeBase),
        ui::row(QStringLiteral("Content Type:"), cboClassIDContentType),
        ui::row(QStringLiteral("Data Location:"), txtData),
        ui::row(QStringLiteral("Content Type:"), cboDataContentType),
        ui::row(QStringLiteral("Archive:"), txtArchive),
        ui::row(QStringLiteral("Name:"), txtName),
    });
}

ui::Node frmInsObject::placeRows()
{
    cboAlignment = embedded::alignmentBox();
    txtWidth = embedded::sizeField(QStringLiteral("txtWidth"));
    txtHeight = embedded::sizeField(QStringLiteral("txtHeight"));
    txtBorder = embedded::sizeField(QStringLiteral("txtBorder"));
    txtHSpace = embedded::sizeField(QStringLiteral("txtHSpace"));
    txtVSpace = embedded::sizeField(QStringLiteral("txtVSpace"));
    return ui::line({
        ui::rows({
            ui::row(QStringLiteral("Alignment:"), cboAlignment),
            ui::row(QStringLiteral("Width:"), ui::counted(txtWidth)),
            ui::row(QStringLiteral("Height:"), ui::counted(txtHeight)),
        }),
        ui::rows({
            ui::row(QStringLiteral("Border:"), ui::counted(txtBorder)),
            ui::row(QStringLiteral("Horizontal Spacing:"), ui::counted(txtHSpace)),
            ui::row(QStringLiteral("Vertical Spacing:"), ui::counted(txtVSpace)),
        }),
    });
}

void frmInsObject::forgetLastUse()
{
    LeftoverAttributes.clear();
    m_edited = false;
}

void frmInsObject::readTag()
{
    const std::optional<TagUnderCaret> tag = takeTag(readObjectTag);
    if (!tag)
        return;
    LeftoverAttributes = tag->leftoverAttributes;
    m_edited = true;
    showFields(objectFields(*tag));
}

void frmInsObject::showFields(const ObjectFields &fields)
{
    txtObject->setText(fields.classId);
    txtCodeBase->setText(fields.codeBase);
    cboClassIDContentType->setEditText(fields.codeType);
    txtData->setText(fields.data);
    cboDataContentType->setEditText(fields.type);
    txtArchive->setText(fields.archive);
    txtName->setText(fields.name);
    cboAlignment->setEditText(fields.align);
    txtWidth->setText(fields.width);
    txtHeight->setText(fields.height);
    txtBorder->setText(fields.border);
    txtHSpace->setText(fields.hSpace);
    txtVSpace->setText(fields.vSpace);
}

ObjectFields frmInsObject::fields() const
{
    return {.classId = txtObject->text(),
            .codeBase = txtCodeBase->text(),
            .codeType = cboClassIDContentType->currentText(),
            .data = txtData->text(),
            .type = cboDataContentType->currentText(),
            .archive = txtArchive->text(),
            .name = txtName->text(),
            .align = cboAlignment->currentText(),
            .width = txtWidth->text(),
            .height = txtHeight->text(),
            .border = txtBorder->text(),
            .hSpace = txtHSpace->text(),
            .vSpace = txtVSpace->text(),
            .leftoverAttributes = LeftoverAttributes,
            .parameters = m_parameters.parameters(),
            .edited = m_edited};
}

std::optional<QString> frmInsObject::markup()
{
    return objectMarkup(fields());
}
