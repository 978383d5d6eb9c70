#include "insertion/frmInsBgSound.h"

#include "insertion/attributeText.h"
#include "services/settings.h"
#include "widgets/layout.h"

#include <QLineEdit>
#include <QPushButton>

namespace
{
// The stray bracket cuts the second row's patterns short. The row stands as it always did.
const QString Filter = QStringLiteral(
    "All Files (*.*)|*.*|All Sound Files|*.wav;*.mp3;*.aif;*.aifc;*.aiff;*.au;*.snd;*.mid;*.rmi;*.rm; *.ra; *.ram)"
    "|*.rm;*.ra;*.ram|Wave Sound (*.wav)|*.wav|Mp3 Files (*.mp3)|*.mp3"
    "|AIFF Sound (*.aif; *.aifc; *.aiff)|*.aif;*.aifc;*.aiff|AU Sound (*.au; *.snd)|*.au;*.snd"
    "|Midi Sequence (*.mid; *.rmi)|*.mid;*.rmi|RealAudio/RealVideo (*.rm; *.ra; *.ram)|*.rm;*.ra;*.ram");
} // namespace

QString backgroundSoundMarkup(const QString &path)
{
    return QStringLiteral("<bgsound") + attributeText(QStringLiteral("src"), path) + u'>';
}

frmInsBgSound::frmInsBgSound(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmInsBgSound"),
                              .caption = QStringLiteral("Insert Background Sound"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_BgSound.htm"),
                              .okName = QStringLiteral("Command1"),
                              .cancelName = QStringLiteral("Command2")}),
      m_pathRules(context, settings::DialogNetPathNaming)
{
}

void frmInsBgSound::Form_Load()
{
    txtBgSound = ui::text(QStringLiteral("txtBgSound"), [this] { txtBgSound_Change(); });
    takesPath(txtBgSound);
    txtBgSound->setToolTip(QStringLiteral("Sound File Path"));
    QPushButton *Command4 =
        ui::button(QStringLiteral("Command4"), QStringLiteral("&Browse..."), [this] { Command4_Click(); });
    Command4->setToolTip(QStringLiteral("Browse For File"));
    setContent(ui::beside(
        {ui::rows({ui::row(QStringLiteral("Sound File:"), txtBgSound, {Command4}), ui::row({}, m_pathRules.boxes())}),
         dialogButtons()}));
    okButton()->setEnabled(false);
    cdlSound = BrowseDialog(Filter);
}

void frmInsBgSound::txtBgSound_Change()
{
    okButton()->setEnabled(!txtBgSound->text().isEmpty());
}

void frmInsBgSound::Command4_Click()
{
    if (const std::optional<QString> chosen = cdlSound.browse(context()))
        txtBgSound->setText(*chosen);
}

std::optional<QString> frmInsBgSound::markup()
{
    if (txtBgSound->text().isEmpty())
        return refused(QStringLiteral("No sound file path has been specified"), txtBgSound);
    txtBgSound->setText(m_pathRules.applied(txtBgSound->text()));
    return backgroundSoundMarkup(txtBgSound->text());
}
