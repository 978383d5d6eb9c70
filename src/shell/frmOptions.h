#pragma once

#include "common/colour.h"
#include "forms/dialogForm.h"

#include <optional>

class ColourSwatch;
class ListView;
class NumberField;
class QCheckBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabBar;
struct ColourOption;
namespace settings
{
struct Key;
}
namespace ui
{
class Node;
struct Row;
} // namespace ui

/// The dialog in which the user edits the settings.
class frmOptions final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmOptions(ProgramContext &context);

    /// Asks for the program that uploads files, on the page where it is set.
    void ExternalSearchForFTP();

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    // The pages, in frmOptionsPages.cpp.
    ui::Node generalPage();
    ui::Node addressBarGroup();
    ui::Node newDocumentsGroup();
    ui::Node autoSaveGroup();
    ui::Node filesPage();
    ui::Node previewGroup();
    ui::Node syntaxPage();
    ui::Node siteMapPage();
    ui::Node advancedPage();
    ui::Row colourRow(const ColourOption &option);
    ui::Node folderRow(QLineEdit *&field, const char *name, const char *browse, const QString &title);
    ui::Node dialogButtons();

    // What the controls do, in frmOptions.cpp.
    void chkNoCode_Click();
    void enableColour(const ColourOption &option, bool enabled);
    void chkUseColourCode_Click();
    void chkUseAddressColouring_Click();
    void chkAutoSave_Click();
    void txtAutoSave_LostFocus();
    bool refusesAutoSaveTime() const;
    void tellAutoSaveTime();
    void limitUpdateTime();
    void cmdClearHistory_Click();
    void cmdBrowserFTPProgram_Click();
    void Command10_Click();
    void browseFolder(QLineEdit &field, const QString &title);
    void cmdOK_Click();

    // Between the settings and the controls, in frmOptionsStore.cpp.
    void showSettings();
    void showNewDocuments();
    void showColours();
    void storeSettings();
    void storeList();
    void storeBars();
    void storeNewDocuments();
    void storeColouring();
    void takeColouring();
    void storeAutoSave();
    void applyToWindows();
    QString stored(const settings::Key &key) const;
    void store(const settings::Key &key, const QString &value);
    void store(const settings::Key &key, bool on);

    ColourSwatch &shape(const ColourOption &option) const;

    QTabBar *tabOptions = nullptr;
    ListView *lstOptions = nullptr;
    QCheckBox *chkAddressBar = nullptr;
    QCheckBox *chkRecAddress = nullptr;
    QCheckBox *chkNoCode = nullptr;
    QRadioButton *optDefCode = nullptr;
    QRadioButton *optTemplate = nullptr;
    QLineEdit *txtNewDocTplFile = nullptr;
    QPushButton *Command10 = nullptr;
    QCheckBox *chkAutoSave = nullptr;
    NumberField *txtAutoSave = nullptr;
    QCheckBox *chkAutoSaveUnsavedNotification = nullptr;
    QLineEdit *txtMyPages = nullptr;
    QLineEdit *txtDocTemplates = nullptr;
    QLineEdit *txtCodeLibrary = nullptr;
    QLineEdit *txtFTPUpload = nullptr;
    QRadioButton *optPreviewAutoSave = nullptr;
    QRadioButton *optPreviewTempFile = nullptr;
    QCheckBox *chkAskHowToProceed = nullptr;
    QCheckBox *chkUseColourCode = nullptr;
    QCheckBox *chkUseAddressColouring = nullptr;
    NumberField *txtClrUpdateTime = nullptr;
    QCheckBox *chkCodeSelPopups = nullptr;
    QCheckBox *chkLinkRandomColours = nullptr;
    bool m_leaving = false;     ///< the form goes: what loses the focus by that is looked at no more
    QString m_startupFile;      ///< the file dialog's name of this load
    bool m_refusalTold = false; ///< the user was told just now, on the way to the button that is being pressed
};
