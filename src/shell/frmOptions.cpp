#include "shell/frmOptions.h"

#include "common/mainWindow.h"
#include "files/modRecentFiles.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "shell/optionRows.h"
#include "widgets/colourSwatch.h"
#include "widgets/layout.h"
#include "widgets/numberField.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>
#include <utility>

namespace
{
constexpr int FilesPage = 1;
constexpr int RefusedAutoSaveTime = 21; ///< minutes; the message tells one minute less than is taken
constexpr int ShortestUpdateTime = 1;   ///< seconds
constexpr int LongestUpdateTime = 60;

QString startupFilter()
{
    return QStringLiteral("All Files (*.*)|*.*|HTML Files (*.htm; *.html; *.shtml; *.asp)|*.htm;*.html;*.shtml;*.asp|"
                          "Tagwrighter Templates (*.tpl)|*.tpl|Cascading Style Sheets (*.css)|*.css|"
                          "Text Files (*.txt; *.bat; *.log; *.ini)|*.txt;*.bat;*.log;*.ini");
}
} // namespace

frmOptions::frmOptions(ProgramContext &context) : DialogForm(context, QStringLiteral("frmOptions"))
{
    setCaption(QStringLiteral("Options"));
}

void frmOptions::Form_Load()
{
    m_startupFile.clear();
    m_refusalTold = false;
    m_leaving = false;
    tabOptions = ui::tabStrip(QStringLiteral("tabOptions"),
                              {QStringLiteral("General"), QStringLiteral("Files"), QStringLiteral("Syntax"),
                               QStringLiteral("Site Project Mapping"), QStringLiteral("Advanced")});
    tabOptions->setAccessibleName(QStringLiteral("Pages of options"));
    setContent(ui::column({
        ui::Node(ui::pages(tabOptions, QStringLiteral("picContainer"),
                           {generalPage(), filesPage(), syntaxPage(), siteMapPage(), advancedPage()}))
            .stretched(),
        dialogButtons(),
    }));
    showSettings();
}

void frmOptions::chkNoCode_Click()
{
    for (QWidget *control : std::initializer_list<QWidget *>{optDefCode, optTemplate, txtNewDocTplFile, Command10})
        control->setEnabled(chkNoCode->isChecked());
}

void frmOptions::enableColour(const ColourOption &option, bool enabled)
{
    for (const char *name : {option.label, option.button})
        qobject_cast<QWidget *>(control(QLatin1String(name)))->setEnabled(enabled);
}

void frmOptions::chkUseColourCode_Click()
{
    for (const ColourOption &option : syntaxColours())
        enableColour(option, chkUseColourCode->isChecked());
}

void frmOptions::chkUseAddressColouring_Click()
{
    enableColour(addressColour(), chkUseAddressColouring->isChecked());
}

void frmOptions::chkAutoSave_Click()
{
    if (!chkAutoSave->isChecked()) {
        txtAutoSave->clear();
        return;
    }
    if (txtAutoSave->text().isEmpty())
        txtAutoSave->setText(QStringLiteral("5"));
    txtAutoSave->setFocus();
}

bool frmOptions::refusesAutoSaveTime() const
{
    return chkAutoSave->isChecked() && !txtAutoSave->text().isEmpty() &&
           txtAutoSave->text().toDouble() >= RefusedAutoSaveTime;
}

void frmOptions::tellAutoSaveTime()
{
    services().messageBoxes.show({.title = QStringLiteral("Invalid number"),
                                  .text = QStringLiteral("The time set for automatic saving must be below 20 minutes."),
                                  .icon = MessageIcon::Exclamation,
                                  .buttons = MessageButtons::OK});
    tabOptions->setCurrentIndex(0);
    txtAutoSave->setFocus();
    // The field may be in the middle of losing the focus, which takes its selection away at the end.
    QTimer::singleShot(0, txtAutoSave, [this] { txtAutoSave->selectAll(); });
}

void frmOptions::txtAutoSave_LostFocus()
{
    if (m_leaving || !refusesAutoSaveTime())
        return;
    m_refusalTold = true; // a press of OK on the way out of the field is to be refused, but not told once more
    tellAutoSaveTime();
}

void frmOptions::limitUpdateTime()
{
    const double seconds = txtClrUpdateTime->text().toDouble();
    if (seconds > LongestUpdateTime)
        txtClrUpdateTime->setText(QString::number(LongestUpdateTime));
    else if (seconds < ShortestUpdateTime)
        txtClrUpdateTime->setText(QString::number(ShortestUpdateTime));
}

void frmOptions::cmdClearHistory_Click()
{
    const MessageBox question{.title = QStringLiteral("Clear History?"),
                              .text = QStringLiteral("This will clear all items in the Address Bar history.\r\n\r\n"
                                                     "Do you wish to continue?"),
                              .icon = MessageIcon::Question,
                              .buttons = MessageButtons::YesNo};
    if (services().messageBoxes.show(question) != MessageAnswer::Yes)
        return;
    if (ClearAddressHistory(context()))
        frmMdi().clearAddresses();
}

void frmOptions::browseFolder(QLineEdit &field, const QString &title)
{
    const std::optional<QString> folder = services().commonDialogs.showFolder(title, field.text());
    if (folder && !folder->isEmpty())
        field.setText(*folder);
}

void frmOptions::cmdBrowserFTPProgram_Click()
{
    const std::optional<FileDialogResult> cdlWebPublishingApp =
        services().commonDialogs.showOpen({.DialogTitle = {},
                                           .Filter = QStringLiteral("Program Files (*.exe)|*.exe"),
                                           .FilterIndex = 1,
                                           .InitDir = {},
                                           .FileName = {}});
    if (cdlWebPublishingApp)
        txtFTPUpload->setText(cdlWebPublishingApp->fileName);
}

void frmOptions::Command10_Click()
{
    const std::optional<FileDialogResult> cdlStartupFileTpl = services().commonDialogs.showOpen(
        {.DialogTitle = {},
         .Filter = startupFilter(),
         .FilterIndex = 2,
         .InitDir = m_startupFile.isEmpty() ? stored(settings::WorkingDir) : QString(),
         .FileName = m_startupFile});
    if (!cdlStartupFileTpl)
        return;
    m_startupFile = cdlStartupFileTpl->fileName;
    txtNewDocTplFile->setText(m_startupFile);
}

void frmOptions::ExternalSearchForFTP()
{
    tabOptions->setCurrentIndex(FilesPage);
    txtFTPUpload->setFocus();
    cmdBrowserFTPProgram_Click();
}

void frmOptions::cmdOK_Click()
{
    if (refusesAutoSaveTime()) {
        if (!std::exchange(m_refusalTold, false))
            tellAutoSaveTime();
        return;
    }
    limitUpdateTime();
    storeSettings();
    Unload();
}

void frmOptions::Form_Unload()
{
    m_leaving = true;
    DialogForm::Form_Unload();
}

ColourSwatch &frmOptions::shape(const ColourOption &option) const
{
    return *qobject_cast<ColourSwatch *>(control(QLatin1String(option.shape)));
}
