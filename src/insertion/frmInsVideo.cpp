#include "insertion/frmInsVideo.h"

#include "common/programState.h"
#include "insertion/attributeText.h"
#include "insertion/sizeAttribute.h"
#include "services/settings.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace
{
constexpr int LongestPath = 500;
const QString NoAlignment = QStringLiteral("(none)");

const QString Filter =
    QStringLiteral("All Files (*.*)|*.*|All Video Files|*.mpg;*.mpeg;*.mov;*.qt;*.avi;*.rm; *.ra; *.ram"
                   "|MPEG Video (*.mpg; *.mpeg)|*.mpg;*.mpeg|QuickTime Video (*.mov; *.qt)|*.mov;*.qt"
                   "|Audio/Video Interleave (*.avi)|*.avi|RealAudio/RealVideo (*.rm; *.ra; *.ram)|*.rm;*.ra;*.ram");

QString alignAttribute(const QString &align)
{
    const bool isDefault = align == u"bottom" || align == NoAlignment;
    return isDefault ? QString() : attributeText(QStringLiteral("align"), align);
}

QString startAttribute(const VideoFields &fields)
{
    const QString name = QStringLiteral("start");
    if (fields.startsOnOpen && fields.startsOnMouseOver)
        return attributeText(name, QStringLiteral("fileopen, mouseover"));
    if (fields.startsOnOpen)
        return attributeText(name, QStringLiteral("fileopen"));
    if (fields.startsOnMouseOver && fields.closesStart)
        return attributeText(name, QStringLiteral("mouseover"));
    // Long written like this, the value is never closed: what takes pages apart again knows it by these words.
    return fields.startsOnMouseOver ? QStringLiteral(" start=\"mouseover & Chr(34)") : QString();
}

NumberField *numberWith(const QString &name, int maxLength, const QString &value)
{
    NumberField *field = ui::number(name, maxLength);
    field->setText(value);
    return field;
}
} // namespace

QString videoMarkup(const VideoFields &fields)
{
    return QStringLiteral("<img") + attributeText(QStringLiteral("dynsrc"), fields.path) +
           attributeUnlessEmpty(QStringLiteral("alt"), fields.altText) + alignAttribute(fields.align) +
           sizeAttribute(QStringLiteral("width"), fields.width, fields.inPercent) +
           sizeAttribute(QStringLiteral("height"), fields.height, fields.inPercent) +
           attributeUnlessEmpty(QStringLiteral("border"), fields.thickness) +
           attributeUnlessEmpty(QStringLiteral("hspace"), fields.horizontalSpacing) +
           attributeUnlessEmpty(QStringLiteral("vspace"), fields.verticalSpacing) + startAttribute(fields) +
           (fields.controls ? QStringLiteral(" controls") : QString()) +
           attributeText(QStringLiteral("loop"), fields.repeatsForever ? QStringLiteral("infinite") : fields.loop) +
           attributeUnlessEmpty(QStringLiteral("loopdelay"), fields.loopDelay) + u'>';
}

frmInsVideo::frmInsVideo(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsVideo"),
                              .caption = QStringLiteral("Insert Video"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Video.htm"),
                              .okName = QStringLiteral("Command1"),
                              .cancelName = QStringLiteral("Command2")}),
      m_pathRules(context, settings::DialogNetPathNaming)
{
}

void frmInsVideo::Form_Load()
{
    setContent(ui::beside({
        ui::column({pathRows(), ui::line({sizeGroup(), frameGroup()}), playbackGroup()}),
        dialogButtons(),
    }));
    Label2 = window()->findChild<QLabel *>(QStringLiteral("Label2"));
    cdlVideo = BrowseDialog(Filter);
    cboAlign->setEditText(NoAlignment);
}

ui::Node frmInsVideo::pathRows()
{
    txtPath = ui::text(QStringLiteral("txtPath"));
    txtPath->setMaxLength(LongestPath);
    takesPath(txtPath);
    QPushButton *Command4 =
        ui::button(QStringLiteral("Command4"), QStringLiteral("Browse..."), [this] { Command4_Click(); });
    txtAltText = ui::text(QStringLiteral("txtAltText"));
    cboAlign =
        ui::combo(QStringLiteral("cboAlign"), {NoAlignment, QStringLiteral("bottom"), QStringLiteral("middle"),
                                               QStringLiteral("top"), QStringLiteral("left"), QStringLiteral("right")});
    return ui::rows({
        ui::row(QStringLiteral("Video Path:"), txtPath, {Command4}),
        ui::row({}, m_pathRules.boxes()),
        ui::row(QStringLiteral("Alternative Text:"), txtAltText),
        ui::row(QStringLiteral("Alignment:"), cboAlign),
    });
}

ui::Node frmInsVideo::sizeGroup()
{
    optPixels = ui::option(QStringLiteral("optPixels"), QStringLiteral("Pixels"));
    optPixels->setToolTip(QStringLiteral("Units in pixels"));
    optPixels->setChecked(true);
    optPercent = ui::option(QStringLiteral("optPercent"), QStringLiteral("Percent"));
    optPercent->setToolTip(QStringLiteral("Units in percent"));
    return ui::group(
        QStringLiteral("Size"),
        ui::column({
            ui::rows({
                ui::row(QStringLiteral("Width:"), ui::counted(txtWidth = ui::number(QStringLiteral("txtWidth"), 10))),
                ui::row(QStringLiteral("Height:"),
                        ui::counted(txtHeight = ui::number(QStringLiteral("txtHeight"), 10))),
            }),
            ui::options({optPixels, optPercent}, Qt::Horizontal),
        }));
}

ui::Node frmInsVideo::frameGroup()
{
    txtThickness = ui::number(QStringLiteral("txtThickness"), 2);
    txtHozSpace = ui::number(QStringLiteral("txtHozSpace"), 4);
    txtVrtSpace = ui::number(QStringLiteral("txtVrtSpace"), 4);
    return ui::group(QStringLiteral("Border and Spacing"),
                     ui::rows({
                         ui::row(QStringLiteral("Border Tickness:"), ui::counted(txtThickness)),
                         ui::row(QStringLiteral("Horizontal Spacing:"), ui::counted(txtHozSpace)),
                         ui::row(QStringLiteral("Vertical Spacing:"), ui::counted(txtVrtSpace)),
                     }));
}

ui::Node frmInsVideo::playbackGroup()
{
    chkFileOpen = ui::check(QStringLiteral("chkFileOpen"), QStringLiteral("Start on page open"));
    chkFileOpen->setChecked(true);
    chkMouseOver = ui::check(QStringLiteral("chkMouseOver"), QStringLiteral("Start on mouse over"));
    chkControls = ui::check(QStringLiteral("chkControls"), QStringLiteral("Show controls in browser"));
    chkRptEver =
        ui::check(QStringLiteral("chkRptEver"), QStringLiteral("Repeat Forever"), [this] { chkRptEver_Click(); });
    txtLoop = numberWith(QStringLiteral("txtLoop"), 3, QStringLiteral("1"));
    txtLoopDelay = numberWith(QStringLiteral("txtLoopDelay"), 3, QStringLiteral("1"));
    return ui::group(QStringLiteral("Playback"),
                     ui::line({
                         ui::column({chkFileOpen, chkMouseOver, chkControls}),
                         ui::column({
                             chkRptEver,
                             ui::rows({
                                 ui::row(QStringLiteral("Loop:"), ui::counted(txtLoop), {}, QStringLiteral("Label2")),
                                 ui::row(QStringLiteral("Loop Delay:"), ui::counted(txtLoopDelay)),
                             }),
                         }),
                     }));
}

void frmInsVideo::chkRptEver_Click()
{
    const bool counts = !chkRptEver->isChecked();
    txtLoop->setEnabled(counts);
    Label2->setEnabled(counts);
    window()->findChild<SpinButton *>(QStringLiteral("spnLoop"))->setEnabled(counts);
}

void frmInsVideo::Command4_Click()
{
    if (const std::optional<QString> chosen = cdlVideo.browse(context()))
        txtPath->setText(*chosen);
}

std::optional<QString> frmInsVideo::markup()
{
    if (txtPath->text().isEmpty())
        return refused(QStringLiteral("No video path has been specified"), txtPath);
    txtPath->setText(m_pathRules.applied(txtPath->text()));
    return videoMarkup({.path = txtPath->text(),
                        .altText = txtAltText->text(),
                        .align = cboAlign->currentText(),
                        .width = txtWidth->text(),
                        .height = txtHeight->text(),
                        .inPercent = optPercent->isChecked(),
                        .thickness = txtThickness->text(),
                        .horizontalSpacing = txtHozSpace->text(),
                        .verticalSpacing = txtVrtSpace->text(),
                        .startsOnOpen = chkFileOpen->isChecked(),
                        .startsOnMouseOver = chkMouseOver->isChecked(),
                        .closesStart = book().closesVideoStart(),
                        .controls = chkControls->isChecked(),
                        .repeatsForever = chkRptEver->isChecked(),
                        .loop = txtLoop->text(),
                        .loopDelay = txtLoopDelay->text()});
}
