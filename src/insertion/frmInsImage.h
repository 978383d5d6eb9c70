#pragma once

#include "insertion/browseDialog.h"
#include "insertion/imageElement.h"
#include "insertion/imagePreview.h"
#include "insertion/insertionForm.h"
#include "insertion/pathRules.h"
#include "widgets/layout.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;

/// Inserts an image, or edits the one under the caret, and previews it.
class frmInsImage final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsImage(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;
    void forgetLastUse() override { LeftoverAttributes.clear(); }

private:
    ui::Node imageRows();
    ui::Node sizeGroup();
    ui::Node spaceGroup();
    ui::Node previewGroup();
    void readTag();
    void showFields(const ImageFields &fields);
    ImageFields fields() const;

    void cboSrc_LostFocus();
    void cmdBrowseSrc_Click();
    void cmdUseActual_Click();
    void leaveSize(NumberField *field);

    QString pictureFile() const;
    bool showPicture();
    void showNoPicture();
    void preview();
    void previewOnceShown();
    void fillSize();
    void resizePreview();

    QString LeftoverAttributes; ///< of the tag read last; it outlives the dialog and goes into the next new image, too
    PathRules m_pathRules;
    QString m_knownSrc; ///< the path that was loaded or read back last: leaving the box with it does nothing
    BrowseDialog cdlImageFile;
    ImagePreview m_preview;
    QComboBox *cboSrc = nullptr;
    QLineEdit *txtImgName = nullptr;
    QLineEdit *txtAlt = nullptr;
    QComboBox *cboImgMapName = nullptr;
    QComboBox *cboAlignment = nullptr;
    NumberField *txtWidth = nullptr;
    NumberField *txtHeight = nullptr;
    QRadioButton *Option7 = nullptr;
    QRadioButton *Option6 = nullptr;
    QPushButton *cmdUseActual = nullptr;
    NumberField *txtBorder = nullptr;
    NumberField *txtHSpace = nullptr;
    NumberField *txtVSpace = nullptr;
    QCheckBox *chkNoPreview = nullptr;
};
