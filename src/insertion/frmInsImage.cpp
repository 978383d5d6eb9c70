#include "insertion/frmInsImage.h"

#include "common/mainWindow.h"
#include "insertion/imageFilter.h"
#include "insertion/tagValues.h"
#include "project/modProjectFileCtrl.h"
#include "services/settings.h"
#include "widgets/controlWatch.h"
#include "widgets/numberField.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

namespace
{
constexpr int MostMaps = 20;

QStringList alignments()
{
    return {QStringLiteral("bottom"), QStringLiteral("middle"), QStringLiteral("top"), QStringLiteral("left"),
            QStringLiteral("right")};
}
} // namespace

frmInsImage::frmInsImage(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsImage"),
                              .caption = QStringLiteral("Insert Image"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Image.htm")}),
      m_pathRules(context, settings::NetPathNaming)
{
}

void frmInsImage::Form_Load()
{
    setContent(ui::beside({
        ui::column({imageRows(), ui::line({sizeGroup(), spaceGroup()})}),
        previewGroup(),
        dialogButtons(),
    }));
    m_knownSrc.clear();
    cdlImageFile = BrowseDialog(imageFilter(context(), QStringLiteral("All Supported Image Files")));
    showNoPicture();
    FillProjectFileList(context(), ProjectFiles::Images, *cboSrc);
    readTag();
}

ui::Node frmInsImage::imageRows()
{
    cboSrc = ui::combo(QStringLiteral("cboSrc"));
    takesPath(cboSrc);
    ui::onLostFocus(cboSrc, [this] { cboSrc_LostFocus(); });
    QPushButton *cmdBrowseSrc =
        ui::button(QStringLiteral("cmdBrowseSrc"), QStringLiteral("Browse..."), [this] { cmdBrowseSrc_Click(); });
    txtImgName = ui::text(QStringLiteral("txtImgName"));
    txtAlt = ui::text(QStringLiteral("txtAlt"));
    cboImgMapName = ui::combo(QStringLiteral("cboImgMapName"));
    cboAlignment = ui::combo(QStringLiteral("cboAlignment"), alignments());
    return ui::rows({
        ui::row(QStringLiteral("Image Path:"), cboSrc, {cmdBrowseSrc}),
        ui::row({}, m_pathRules.boxes()),
        ui::row(QStringLiteral("Name:"), txtImgName),
        ui::row(QStringLiteral("Alternative Text:"), txtAlt),
        ui::row(QStringLiteral("Use Image Map:"), cboImgMapName),
        ui::row(QStringLiteral("Alignment:"), cboAlignment),
    });
}

ui::Node frmInsImage::sizeGroup()
{
    txtWidth = ui::number(QStringLiteral("txtWidth"), 10, [this] { resizePreview(); });
    txtHeight = ui::number(QStringLiteral("txtHeight"), 10, [this] { resizePreview(); });
    for (NumberField *field : {txtWidth, txtHeight})
        ui::onLostFocus(field, [this, field] { leaveSize(field); });
    Option7 = ui::option(QStringLiteral("Option7"), QStringLiteral("Set in &Pixels"), [this] { resizePreview(); });
    Option6 = ui::option(QStringLiteral("Option6"), QStringLiteral("Set in Per&cent"), [this] { resizePreview(); });
    Option7->setChecked(true);
    cmdUseActual = ui::button(QStringLiteral("cmdUseActual"), QStringLiteral("Use &Actual Size"),
                              [this] { cmdUseActual_Click(); });
    return ui::group(QStringLiteral("Size"), ui::column({
                                                 ui::rows({
                                                     ui::row(QStringLiteral("Width:"), ui::counted(txtWidth)),
                                                     ui::row(QStringLiteral("Height:"), ui::counted(txtHeight)),
                                                 }),
                                                 ui::options({Option7, Option6}),
                                                 cmdUseActual,
                                             }));
}

ui::Node frmInsImage::spaceGroup()
{
    txtBorder = ui::number(QStringLiteral("txtBorder"), 2);
    txtHSpace = ui::number(QStringLiteral("txtHSpace"), 10);
    txtVSpace = ui::number(QStringLiteral("txtVSpace"), 10);
    const ui::Node space = ui::rows({
        ui::row(QStringLiteral("Horizontal:"), ui::counted(txtHSpace)),
        ui::row(QStringLiteral("Vertical:"), ui::counted(txtVSpace)),
    });
    return ui::column({
        ui::rows({ui::row(QStringLiteral("Border Thickness:"), ui::counted(txtBorder))}),
        ui::group(QStringLiteral("White Space:"), space),
    });
}

ui::Node frmInsImage::previewGroup()
{
    chkNoPreview = ui::check(QStringLiteral("chkNoPreview"), QStringLiteral("&Disable Image Preview"));
    return ui::group(QStringLiteral("Preview"), ui::column({m_preview.build().stretched(), chkNoPreview})).stretched();
}

void frmInsImage::readTag()
{
    const Document *document = frmMdi().activeDocument();
    if (document) {
        const QString text = document->txtEdit().Text();
        ui::addRows(*cboImgMapName, tagValues(text, QStringLiteral("<map "), QStringLiteral("name"), MostMaps));
    }
    const std::optional<TagUnderCaret> tag = takeTag(readImageTag);
    if (!tag)
        return;
    const ImageFields fields = book().imageFields(*tag);
    LeftoverAttributes = fields.leftoverAttributes;
    showFields(fields);
    m_knownSrc = cboSrc->currentText();
    previewOnceShown();
}

void frmInsImage::showFields(const ImageFields &fields)
{
    cboSrc->setEditText(fields.src);
    txtImgName->setText(fields.name);
    txtAlt->setText(fields.alt);
    cboImgMapName->setEditText(fields.useMap);
    cboAlignment->setEditText(fields.align);
    (fields.inPercent ? Option6 : Option7)->setChecked(true);
    txtWidth->setText(fields.width);
    txtHeight->setText(fields.height);
    txtHSpace->setText(fields.hSpace);
    txtVSpace->setText(fields.vSpace);
    txtBorder->setText(fields.border);
}

ImageFields frmInsImage::fields() const
{
    return {.src = cboSrc->currentText(),
            .name = txtImgName->text(),
            .alt = txtAlt->text(),
            .useMap = cboImgMapName->currentText(),
            .align = cboAlignment->currentText(),
            .width = txtWidth->text(),
            .height = txtHeight->text(),
            .inPercent = Option6->isChecked(),
            .border = txtBorder->text(),
            .hSpace = txtHSpace->text(),
            .vSpace = txtVSpace->text(),
            .leftoverAttributes = LeftoverAttributes};
}

std::optional<QString> frmInsImage::markup()
{
    if (lacksSource(cboSrc->currentText()))
        return refused(QStringLiteral("No image path has been specified"), cboSrc);
    cboSrc->setEditText(m_pathRules.applied(cboSrc->currentText()));
    return imageMarkup(fields());
}

void frmInsImage::cboSrc_LostFocus()
{
    if (isLoaded() && cboSrc->currentText() != m_knownSrc) // closing the dialog leaves the box, too
        preview();
}

void frmInsImage::cmdBrowseSrc_Click()
{
    const std::optional<QString> chosen = cdlImageFile.browse(context());
    if (!chosen)
        return;
    cboSrc->setEditText(*chosen);
    preview();
}

void frmInsImage::cmdUseActual_Click()
{
    const QSize actual = m_preview.actualSize();
    txtWidth->setText(QString::number(actual.width()));
    txtHeight->setText(QString::number(actual.height()));
}

void frmInsImage::leaveSize(NumberField *field)
{
    field->setText(book().sizeLeft(field->text()));
}

/// A relative path starts at the document's folder, as a browser takes it.
QString frmInsImage::pictureFile() const
{
    const QString path = cboSrc->currentText();
    const QString folder = path.startsWith(u'/') ? QString() : documentFolder();
    return path.startsWith(u'/') || !folder.isEmpty() ? folder + path : QString();
}

void frmInsImage::preview()
{
    if (cboSrc->currentText().isEmpty())
        return;
    showBusy(true);
    if (chkNoPreview->isChecked() || showPicture()) {
        resizePreview();
        fillSize();
    } else {
        showNoPicture();
        txtWidth->clear();
        txtHeight->clear();
    }
    showBusy(false);
}

/// False, and nothing changed, where the path names no image.
bool frmInsImage::showPicture()
{
    m_knownSrc = cboSrc->currentText();
    const bool shown = m_preview.show(pictureFile());
    cmdUseActual->setEnabled(shown || cmdUseActual->isEnabled());
    return shown;
}

void frmInsImage::showNoPicture()
{
    m_preview.clear();
    cmdUseActual->setEnabled(false);
}

/// Without a measured picture, pixels are the user's own to say.
void frmInsImage::fillSize()
{
    if (Option6->isChecked()) {
        txtWidth->setText(QStringLiteral("100"));
        txtHeight->setText(QStringLiteral("100"));
    } else if (!chkNoPreview->isChecked()) {
        cmdUseActual_Click();
    }
}

/// The image that is edited is shown as soon as the dialog itself is, which does not wait for it. Its fields stay.
void frmInsImage::previewOnceShown()
{
    const auto due = std::make_shared<bool>(true);
    new ControlWatch(window(), QEvent::Paint, [this, due](const QEvent &) {
        const auto show = [this] {
            if (isLoaded() && cboSrc->currentText() == m_knownSrc && showPicture())
                resizePreview();
        };
        if (std::exchange(*due, false))
            QMetaObject::invokeMethod(window(), show, Qt::QueuedConnection);
        return false;
    });
}

void frmInsImage::resizePreview()
{
    m_preview.resize(txtWidth->text(), txtHeight->text(), Option6->isChecked());
}
