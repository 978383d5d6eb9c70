#pragma once

#include "insertion/browseDialog.h"
#include "insertion/insertionForm.h"
#include "insertion/pathRules.h"
#include "widgets/layout.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// What the hyperlink dialog holds when it is confirmed.
struct HyperlinkFields {
    QString kind;   ///< the kind of link by its name in the list
    QString prefix; ///< what stands before the address, such as "http://"
    QString url;    ///< the address without the prefix
    QString target;
    bool fromImage = false; ///< the link's face is an image instead of a text
    QString text;           ///< the face, or the image's alternative text
    QString imagePath;
};

/// One `a` element. An "Internal link" becomes the place that is linked to: it writes `name` where all others write
/// `href`.
QString hyperlinkMarkup(const HyperlinkFields &fields);

/// Inserts a hyperlink of one of several kinds, from a text or an image.
class frmInsHyperlink final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsHyperlink(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    ui::Node addressRows();
    ui::Node face();
    void cboLinkType_Click();
    void cboUrl_Change();
    void Option1_Click();
    void Option2_Click();
    void setFromImage(bool fromImage);
    void cmdFilePath_Click();
    void Command3_Click();

    QString m_rememberedPrefix; ///< what was last typed for the kind "(other)"; it outlives the dialog
    PathRules m_pathRules;
    BrowseDialog cdlGeneralFile;
    BrowseDialog cdlImageFile;
    QComboBox *cboLinkType = nullptr;
    QLineEdit *txtPre = nullptr;
    QComboBox *cboUrl = nullptr;
    QPushButton *cmdFilePath = nullptr;
    QLineEdit *txtTarget = nullptr;
    QRadioButton *Option1 = nullptr;
    QRadioButton *Option2 = nullptr;
    QLabel *Label4 = nullptr;
    QLineEdit *txtText = nullptr;
    QLabel *Label3 = nullptr;
    QLineEdit *txtImagePath = nullptr;
    QPushButton *Command3 = nullptr;
};
