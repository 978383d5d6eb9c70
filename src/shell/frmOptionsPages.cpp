// The pages of the Options.
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/services.h"
#include "shell/frmMoreOptions.h"
#include "shell/frmOptions.h"
#include "shell/optionRows.h"
#include "widgets/colourSwatch.h"
#include "widgets/layout.h"
#include "widgets/listView.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace
{
constexpr int LongestNumber = 4; ///< digits
constexpr int LongestAutoSaveTime = 20;
constexpr int LongestUpdateTime = 60;
constexpr int PathWidth = 320; ///< logical pixels

QCheckBox *check(const char *name, const char *caption, const ui::Handler &click = {})
{
    return ui::check(QLatin1String(name), QLatin1String(caption), click);
}

QRadioButton *option(const char *name, const char *caption)
{
    return ui::option(QLatin1String(name), QLatin1String(caption));
}

QPushButton *browseButton(const char *name, const ui::Handler &click)
{
    return ui::button(QLatin1String(name), QStringLiteral("Browse..."), click);
}

/// A check box, a number field behind it and what is counted, in a line that reads as one sentence.
ui::Node sentence(QCheckBox *check, NumberField *field, SpinButton *arrows, const QString &unit)
{
    field->setAccessibleName(check->text() + u' ' + unit);
    QLabel *behind = ui::label({}, unit);
    return ui::line({check, ui::counted(field, arrows), behind, ui::space()});
}
} // namespace

ui::Node frmOptions::dialogButtons()
{
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [this] { cmdOK_Click(); });
    QPushButton *Command4 = ui::button(QStringLiteral("Command4"), QStringLiteral("Cancel"), [this] { Unload(); });
    QPushButton *cmdMore = ui::button(QStringLiteral("cmdMore"), QStringLiteral("More..."),
                                      [this] { context().forms.showModal<frmMoreOptions>(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Options.htm"));
    });
    setDefaultButton(cmdOK);
    setCancelButton(Command4);
    return ui::line({ui::space(), cmdOK, Command4, cmdMore, cmdHelp});
}

ui::Node frmOptions::generalPage()
{
    return ui::column({addressBarGroup(), newDocumentsGroup(), autoSaveGroup(), ui::space()});
}

ui::Node frmOptions::addressBarGroup()
{
    chkAddressBar = check("chkAddressBar", "Show &Address Bar");
    chkRecAddress = check("chkRecAddress", "Record Address Bar Entries");
    QPushButton *cmdClearHistory = ui::button(QStringLiteral("cmdClearHistory"), QStringLiteral("Clear History"),
                                              [this] { cmdClearHistory_Click(); });
    return ui::group(QStringLiteral("Address Bar"),
                     ui::column({chkAddressBar, ui::line({chkRecAddress, ui::space(), cmdClearHistory})}));
}

ui::Node frmOptions::newDocumentsGroup()
{
    chkNoCode = check("chkNoCode", "Automatically add code to new documents", [this] { chkNoCode_Click(); });
    optDefCode = option("optDefCode", "Basic HTML Code");
    optTemplate = option("optTemplate", "From Template/File:");
    txtNewDocTplFile = ui::text(QStringLiteral("txtNewDocTplFile"));
    txtNewDocTplFile->setAccessibleName(QStringLiteral("Template or file for new documents"));
    Command10 = browseButton("Command10", [this] { Command10_Click(); });
    Command10->setAccessibleDescription(QStringLiteral("Template or file for new documents"));
    return ui::group(QStringLiteral("New Documents"), ui::column({
                                                          chkNoCode,
                                                          ui::options({optDefCode, optTemplate}),
                                                          ui::line({ui::Node(txtNewDocTplFile).stretched(), Command10}),
                                                      }));
}

ui::Node frmOptions::autoSaveGroup()
{
    chkAutoSave = check("chkAutoSave", "Automatically save open documents every", [this] { chkAutoSave_Click(); });
    txtAutoSave = ui::number(QStringLiteral("txtAutoSave"), LongestNumber);
    ui::onLostFocus(txtAutoSave, [this] { txtAutoSave_LostFocus(); });
    // Any key is past the press that a refusal was told for.
    ui::onKeyDown(txtAutoSave, [this](const QKeyEvent &) {
        m_refusalTold = false;
        return false;
    });
    chkAutoSaveUnsavedNotification =
        check("chkAutoSaveUnsavedNotification", "Notify me if a file to be saved does not yet exist");
    SpinButton *updAutoSave = ui::spin(QStringLiteral("updAutoSave"), txtAutoSave, 1, LongestAutoSaveTime);
    return ui::group(QStringLiteral("Automatic Save"),
                     ui::column({
                         sentence(chkAutoSave, txtAutoSave, updAutoSave, QStringLiteral("minutes.")),
                         chkAutoSaveUnsavedNotification,
                     }));
}

ui::Node frmOptions::folderRow(QLineEdit *&field, const char *name, const char *browse, const QString &title)
{
    field = ui::text(QLatin1String(name));
    field->setMinimumWidth(PathWidth);
    QPushButton *button = browseButton(browse, [this, &field, title] { browseFolder(*field, title); });
    return ui::line({ui::Node(field).stretched(), button});
}

ui::Node frmOptions::filesPage()
{
    txtFTPUpload = ui::text(QStringLiteral("txtFTPUpload"));
    QPushButton *cmdBrowserFTPProgram = browseButton("cmdBrowserFTPProgram", [this] { cmdBrowserFTPProgram_Click(); });
    return ui::column({
        ui::group(
            QStringLiteral("File Locations"),
            ui::rows({
                ui::row(QStringLiteral("My Webpages Folder:"),
                        folderRow(txtMyPages, "txtMyPages", "cmdBrowseMyPages", QStringLiteral("My Webpages Folder"))),
                ui::row(QStringLiteral("Templates Folder:"),
                        folderRow(txtDocTemplates, "txtDocTemplates", "cmdBrowseTemplates",
                                  QStringLiteral("Templates Folder"))),
                ui::row(QStringLiteral("Code Library Folder:"),
                        folderRow(txtCodeLibrary, "txtCodeLibrary", "cmdBrowseCodeLib",
                                  QStringLiteral("Code Library Folder"))),
                ui::row(QStringLiteral("File Upload Program:"),
                        ui::line({ui::Node(txtFTPUpload).stretched(), cmdBrowserFTPProgram})),
            })),
        previewGroup(),
        ui::space(),
    });
}

ui::Node frmOptions::previewGroup()
{
    optPreviewAutoSave = option("optPreviewAutoSave", "&Automatically Save the file");
    optPreviewTempFile = option("optPreviewTempFile", "Create a &temporary file named:");
    QLabel *lblTempFile = ui::label(QStringLiteral("lblTempFile"), QStringLiteral("tmp_eprv.html"));
    chkAskHowToProceed = check("chkAskHowToProceed", "Ask me how I would like to proceed");
    return ui::group(QStringLiteral("Preview of Documents with Unsaved Changes"),
                     ui::column({
                         ui::options({optPreviewAutoSave, optPreviewTempFile}),
                         lblTempFile,
                         chkAskHowToProceed,
                     }));
}

ui::Row frmOptions::colourRow(const ColourOption &option)
{
    ColourSwatch *shape = ui::swatch(QLatin1String(option.shape));
    QPushButton *button = ui::button(QLatin1String(option.button), QStringLiteral("Change..."), [this, shape] {
        const std::optional<ColourValue> cdlChangeColour = services().commonDialogs.showColour(shape->BackColor());
        if (cdlChangeColour)
            shape->setBackColor(*cdlChangeColour);
    });
    return ui::row(QLatin1String(option.caption), ui::line({shape, button, ui::space()}), {},
                   QLatin1String(option.label));
}

ui::Node frmOptions::syntaxPage()
{
    chkUseColourCode = check("chkUseColourCode", "Use &Syntax Colouring:", [this] { chkUseColourCode_Click(); });
    chkUseAddressColouring =
        check("chkUseAddressColouring", "Use &Internet Address Colouring:", [this] { chkUseAddressColouring_Click(); });
    QList<ui::Row> colours;
    for (const ColourOption &option : syntaxColours())
        colours.append(colourRow(option));
    txtClrUpdateTime = ui::number(QStringLiteral("txtClrUpdateTime"), LongestNumber);
    ui::onLostFocus(txtClrUpdateTime, [this] { limitUpdateTime(); });
    SpinButton *updClrUpdateTime = ui::spin(QStringLiteral("updClrUpdateTime"), txtClrUpdateTime, 1, LongestUpdateTime);
    chkCodeSelPopups = check("chkCodeSelPopups", "Show Syntax Assistants when writing code manually");
    const ui::Node ofCode = ui::rows(colours);
    const ui::Node ofAddresses = ui::rows({colourRow(addressColour())});
    ui::alignRows({ofCode, ofAddresses});
    return ui::column({
        ui::group(
            QStringLiteral("Colouring"),
            ui::column({
                chkUseColourCode,
                ofCode,
                chkUseAddressColouring,
                ofAddresses,
                ui::rows({ui::row(QStringLiteral("Update syntax colour coding every"),
                                  ui::counted(txtClrUpdateTime, updClrUpdateTime),
                                  {ui::label({}, QStringLiteral("seconds (maximum of 60 seconds).")), ui::space()})}),
            })),
        chkCodeSelPopups,
        ui::space(),
    });
}

ui::Node frmOptions::siteMapPage()
{
    chkLinkRandomColours = check("chkLinkRandomColours", "Draw linking lines using random colours");
    QList<ui::Row> colours;
    for (const ColourOption &option : siteMapColours())
        colours.append(colourRow(option));
    return ui::column({
        ui::group(QStringLiteral("Site Project Map"), ui::column({chkLinkRandomColours, ui::rows(colours)})),
        ui::space(),
    });
}

ui::Node frmOptions::advancedPage()
{
    lstOptions = ui::listView(QStringLiteral("lstOptions"), {QStringLiteral("Option")});
    lstOptions->setCheckBoxes(true);
    lstOptions->header()->hide();
    for (const OptionRow &row : optionRows())
        lstOptions->addRow({.key = QLatin1String(row.key->name), .text = QLatin1String(row.text), .subItems = {}});
    QLabel *lblOptions =
        ui::label(QStringLiteral("lblOptions"),
                  QStringLiteral("The settings below allow you to change the way Tagwrighter looks and operates."));
    lstOptions->setAccessibleName(lblOptions->text());
    return ui::column({lblOptions, ui::Node(lstOptions).stretched()});
}
