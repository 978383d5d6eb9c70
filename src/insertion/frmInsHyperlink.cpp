#include "insertion/frmInsHyperlink.h"

#include "common/programState.h"
#include "insertion/attributeText.h"
#include "insertion/imageFilter.h"
#include "project/modProjectFileCtrl.h"
#include "services/settings.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

namespace
{
struct LinkKind {
    const char *name;
    const char *prefix; // none: the one that the user typed last
    bool isFile;        // its address can be browsed for
};

constexpr LinkKind linkKinds[] = {
    {"Anchor", "", false},      {"Email", "mailto:", false},    {"External link", "http://", true},
    {"File", "file://", true},  {"FTP (file)", "ftp://", true}, {"Internal link", "#", false},
    {"(other)", nullptr, true},
};

constexpr int CharactersOfAPrefix = 12;
const QString InternalLink = QStringLiteral("Internal link");
const QString Other = QStringLiteral("(other)");

QStringList kindNames()
{
    QStringList names;
    for (const LinkKind &kind : linkKinds)
        names.append(QLatin1String(kind.name));
    return names;
}

QString faceMarkup(const HyperlinkFields &fields)
{
    if (!fields.fromImage)
        return fields.text;
    return QStringLiteral("<img") + attributeText(QStringLiteral("src"), fields.imagePath) +
           attributeText(QStringLiteral("alt"), fields.text) + u'>';
}
} // namespace

QString hyperlinkMarkup(const HyperlinkFields &fields)
{
    const QString name = fields.kind == InternalLink ? QStringLiteral("name") : QStringLiteral("href");
    return QStringLiteral("<a") + attributeText(name, fields.prefix + fields.url) +
           attributeUnlessEmpty(QStringLiteral("target"), fields.target) + u'>' + faceMarkup(fields) +
           QStringLiteral("</a>");
}

frmInsHyperlink::frmInsHyperlink(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsHyperlink"),
                              .caption = QStringLiteral("Insert Hyperlink"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Hyperlink.htm")}),
      m_pathRules(context, settings::DialogNetPathNaming)
{
}

void frmInsHyperlink::Form_Load()
{
    setContent(ui::beside({ui::column({addressRows(), face()}), dialogButtons()}));
    okButton()->setEnabled(false);
    Label3 = window()->findChild<QLabel *>(QStringLiteral("Label3"));
    Label4 = window()->findChild<QLabel *>(QStringLiteral("Label4"));
    cdlGeneralFile = BrowseDialog(QStringLiteral("All Files (*.*)|*.*"));
    cdlImageFile = BrowseDialog(imageFilter(context(), QStringLiteral("All Supported Images")));
    cboLinkType->setCurrentText(Other);
    setFromImage(false);
    FillProjectFileList(context(), ProjectFiles::Pages, *cboUrl);
}

ui::Node frmInsHyperlink::addressRows()
{
    cboLinkType = ui::dropList(QStringLiteral("cboLinkType"), kindNames(), [this] { cboLinkType_Click(); });
    txtPre = ui::text(QStringLiteral("txtPre"));
    txtPre->setAccessibleName(QStringLiteral("Prefix"));
    txtPre->setMinimumWidth(txtPre->fontMetrics().averageCharWidth() * CharactersOfAPrefix);
    ui::onLostFocus(txtPre, [this] { m_rememberedPrefix = txtPre->text(); });
    cboUrl = ui::combo(
        QStringLiteral("cboUrl"), {}, [this] { cboUrl_Change(); }, [this] { cboUrl_Change(); });
    takesPath(cboUrl);
    cmdFilePath =
        ui::button(QStringLiteral("cmdFilePath"), QStringLiteral("Browse..."), [this] { cmdFilePath_Click(); });
    txtTarget = ui::text(QStringLiteral("txtTarget"));
    return ui::rows({
        ui::row(QStringLiteral("Hyperlink &Type:"), cboLinkType),
        ui::row(QStringLiteral("URL:"), ui::line({ui::Node(txtPre, 1), ui::Node(cboUrl, 3)}), {cmdFilePath}),
        ui::row({}, m_pathRules.boxes()),
        ui::row(QStringLiteral("Target Frame:"), txtTarget),
    });
}

ui::Node frmInsHyperlink::face()
{
    Option1 = ui::option(QStringLiteral("Option1"), QStringLiteral("&Text"), [this] { Option1_Click(); });
    Option2 = ui::option(QStringLiteral("Option2"), QStringLiteral("&Image"), [this] { Option2_Click(); });
    Option1->setChecked(true);
    txtText = ui::text(QStringLiteral("txtText"));
    txtImagePath = ui::text(QStringLiteral("txtImagePath"));
    takesPath(txtImagePath);
    Command3 = ui::button(QStringLiteral("Command3"), QStringLiteral("Browse..."), [this] { Command3_Click(); });
    return ui::group(QStringLiteral("Link From:"),
                     ui::column({
                         ui::options({Option1, Option2}, Qt::Horizontal),
                         ui::rows({
                             ui::row(QStringLiteral("Text:"), txtText, {}, QStringLiteral("Label4")),
                             ui::row(QStringLiteral("Image Path:"), txtImagePath, {Command3}, QStringLiteral("Label3")),
                         }),
                     }));
}

void frmInsHyperlink::cboLinkType_Click()
{
    const LinkKind &kind = linkKinds[cboLinkType->currentIndex()];
    const bool isOther = kind.prefix == nullptr;
    txtPre->setEnabled(false); // whoever is typing there leaves it, before the remembered prefix is used
    txtPre->setText(isOther ? m_rememberedPrefix : QString::fromLatin1(kind.prefix));
    txtPre->setEnabled(isOther);
    cmdFilePath->setEnabled(kind.isFile);
    focusOn(isOther ? static_cast<QWidget *>(txtPre) : cboUrl);
}

void frmInsHyperlink::cboUrl_Change()
{
    okButton()->setEnabled(!cboUrl->currentText().isEmpty());
}

void frmInsHyperlink::Option1_Click()
{
    setFromImage(false);
}

void frmInsHyperlink::Option2_Click()
{
    setFromImage(true);
}

void frmInsHyperlink::setFromImage(bool fromImage)
{
    for (QWidget *control :
         {static_cast<QWidget *>(Label3), static_cast<QWidget *>(txtImagePath), static_cast<QWidget *>(Command3)})
        control->setEnabled(fromImage);
    ui::relabel(Label4, fromImage ? QStringLiteral("Alternative Text:") : QStringLiteral("Text:"));
}

void frmInsHyperlink::cmdFilePath_Click()
{
    if (const std::optional<QString> chosen = cdlGeneralFile.browse(context()))
        cboUrl->setEditText(*chosen);
}

void frmInsHyperlink::Command3_Click()
{
    if (const std::optional<QString> chosen = cdlImageFile.browse(context()))
        txtImagePath->setText(*chosen);
}

std::optional<QString> frmInsHyperlink::markup()
{
    if (Option2->isChecked() && lacksSource(txtImagePath->text()))
        return refused(QStringLiteral("No image path has been specified"), txtImagePath);
    cboUrl->setEditText(m_pathRules.applied(cboUrl->currentText()));
    return hyperlinkMarkup({.kind = cboLinkType->currentText(),
                            .prefix = txtPre->text(),
                            .url = cboUrl->currentText(),
                            .target = txtTarget->text(),
                            .fromImage = Option2->isChecked(),
                            .text = txtText->text(),
                            .imagePath = txtImagePath->text()});
}
