// Between the settings and the controls of the Options.
#include "common/document.h"
#include "common/mainWindow.h"
#include "document/modDocument.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"
#include "shell/frmOptions.h"
#include "shell/optionRows.h"
#include "widgets/colourSwatch.h"
#include "widgets/listView.h"
#include "widgets/numberField.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>

using settings::isOn;
using settings::write;
using settings::writeBoolean;

QString frmOptions::stored(const settings::Key &key) const
{
    return settings::read(services().settings, key);
}

void frmOptions::store(const settings::Key &key, const QString &value)
{
    write(services().settings, key, value);
}

void frmOptions::store(const settings::Key &key, bool on)
{
    writeBoolean(services().settings, key, on);
}

void frmOptions::showSettings()
{
    SettingsStore &settings = services().settings;
    for (int row = 0; row < lstOptions->rowCount(); ++row) {
        // Each of them counts as on where nothing is stored, whatever other readers of the key make of that.
        const settings::Key &key = *optionRows()[static_cast<std::size_t>(row)].key;
        const QString value = settings.GetSetting(QLatin1String(key.app), QLatin1String(key.section),
                                                  QLatin1String(key.name), QStringLiteral("true"));
        ListRow shown = lstOptions->rowAt(row);
        shown.checked = value.toLower() == u"true";
        lstOptions->setRow(row, shown);
    }
    chkAddressBar->setChecked(isOn(settings, settings::AddrBarVisible));
    chkRecAddress->setChecked(stored(settings::AddrBarRec) != u"0");
    showNewDocuments();
    chkAutoSave->setChecked(isOn(settings, settings::AutoSaveUse));
    txtAutoSave->setText(stored(settings::AutoSaveTime));
    chkAutoSaveUnsavedNotification->setChecked(isOn(settings, settings::AutoSaveUnsavedNotification));
    txtMyPages->setText(stored(settings::WorkingDir));
    txtDocTemplates->setText(stored(settings::Templates));
    txtCodeLibrary->setText(stored(settings::CodeLibDir));
    txtFTPUpload->setText(stored(settings::FTPTransfer));
    (settings::previewsByCopy(settings) ? optPreviewTempFile : optPreviewAutoSave)->setChecked(true);
    chkAskHowToProceed->setChecked(stored(settings::DontShowPreviewUnsavedFile) == u"0");
    showColours();
}

void frmOptions::showNewDocuments()
{
    const QString code = stored(settings::BlankDocCode);
    chkNoCode->setChecked(code != u"0");
    (code == u"2" ? optTemplate : optDefCode)->setChecked(true);
    txtNewDocTplFile->setText(stored(settings::BlankDFile));
    chkNoCode_Click();
}

void frmOptions::showColours()
{
    SettingsStore &settings = services().settings;
    const auto show = [&](const ColourOption &option) {
        shape(option).setBackColor(static_cast<ColourValue>(settings::read(settings, *option.key).toLongLong()));
    };
    for (const ColourOption &option : syntaxColours())
        show(option);
    for (const ColourOption &option : siteMapColours())
        show(option);
    show(addressColour());
    chkUseColourCode->setChecked(isOn(settings, settings::ColourCodeSyntax));
    chkUseAddressColouring->setChecked(isOn(settings, settings::ColourCodeHyperlink));
    txtClrUpdateTime->setText(stored(settings::ColourCodeUpdateTime));
    chkCodeSelPopups->setChecked(isOn(settings, settings::CodeSelPopups));
    chkLinkRandomColours->setChecked(isOn(settings, settings::LayoutLocatedColour));
    chkUseColourCode_Click();
    chkUseAddressColouring_Click();
}

void frmOptions::storeSettings()
{
    storeList();
    storeBars();
    store(settings::Templates, txtDocTemplates->text());
    store(settings::WorkingDir, txtMyPages->text());
    store(settings::FTPTransfer, txtFTPUpload->text());
    store(settings::CodeLibDir, txtCodeLibrary->text());
    storeNewDocuments();
    storeColouring();
    takeColouring();
    store(settings::CodeSelPopups, chkCodeSelPopups->isChecked());
    store(settings::LayoutLocatedColour, chkLinkRandomColours->isChecked());
    for (const ColourOption &option : siteMapColours())
        store(*option.key, QString::number(shape(option).BackColor()));
    storeAutoSave();
    store(settings::DontShowPreviewUnsavedFile, !chkAskHowToProceed->isChecked());
    store(settings::PagePreview, optPreviewTempFile->isChecked() ? QStringLiteral("1") : QStringLiteral("2"));
    applyToWindows();
}

void frmOptions::storeList()
{
    for (int row = 0; row < lstOptions->rowCount(); ++row)
        store(*optionRows()[static_cast<std::size_t>(row)].key, lstOptions->rowAt(row).checked);
}

void frmOptions::storeBars()
{
    SettingsStore &settings = services().settings;
    frmMdi().showBar(QStringLiteral("mnuShowPrjWindow"), isOn(settings, settings::CodeWinVis));
    frmMdi().showBar(QStringLiteral("mnuShowCodeBar"), isOn(settings, settings::CodeBarVis));
    ApplyWordWrapSetting(context(), isOn(settings, settings::WordWrap));
    store(settings::AddrBarRec, chkRecAddress->isChecked());
    frmMdi().showBar(QStringLiteral("mnuShowbar"), chkAddressBar->isChecked()); // and stores it
}

void frmOptions::storeNewDocuments()
{
    if (!chkNoCode->isChecked()) {
        store(settings::BlankDocCode, QStringLiteral("0"));
        return;
    }
    store(settings::BlankDocCode, optDefCode->isChecked() ? QStringLiteral("1") : QStringLiteral("2"));
    if (optTemplate->isChecked())
        store(settings::BlankDFile, txtNewDocTplFile->text());
}

void frmOptions::storeColouring()
{
    store(settings::ColourCodeUpdateTime, txtClrUpdateTime->text());
    store(settings::ColourCodeSyntax, chkUseColourCode->isChecked());
    if (chkUseColourCode->isChecked()) // the colours of a colouring that is switched off stay as they are
        for (const ColourOption &option : syntaxColours())
            store(*option.key, QString::number(shape(option).BackColor()));
    store(settings::ColourCodeURL, QString::number(shape(addressColour()).BackColor()));
    store(settings::ColourCodeHyperlink, chkUseAddressColouring->isChecked());
}

void frmOptions::takeColouring()
{
    const auto colour = [this](std::size_t option) { return shape(syntaxColours()[option]).BackColor(); };
    frmMdi().colouring = {.ColourCodeSyntax = chkUseColourCode->isChecked(),
                          .ColourCodeHyperlink = chkUseAddressColouring->isChecked(),
                          .ColourCodeUpdateTime = txtClrUpdateTime->text().toShort(),
                          .ColourCodeTag = colour(0),
                          .ColourCodeAttribute = colour(1),
                          .ColourCodeValue = colour(2),
                          .ColourCodeComment = colour(3),
                          .ColourASPCode = colour(4),
                          .ColourCodeURL = shape(addressColour()).BackColor()};
}

void frmOptions::storeAutoSave()
{
    store(settings::AutoSaveUse, chkAutoSave->isChecked());
    if (chkAutoSave->isChecked())
        store(settings::AutoSaveTime, txtAutoSave->text());
    store(settings::AutoSaveUnsavedNotification, chkAutoSaveUnsavedNotification->isChecked());
}

void frmOptions::applyToWindows()
{
    frmMdi().placePane();
    frmMdi().setSplitEditingChecked(isOn(services().settings, settings::SplitEditPreview));
    if (Document *document = frmMdi().activeDocument()) {
        document->SplitEditingPreviewWindows();
        document->RepositionEditingandPreviewWindows();
    }
}
