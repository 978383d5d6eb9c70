#pragma once

#include "insertion/browseDialog.h"
#include "insertion/insertionForm.h"
#include "insertion/pathRules.h"
#include "widgets/layout.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;
class SpinButton;

/// What the video dialog holds when it is confirmed. Numbers are the texts of their boxes.
struct VideoFields {
    QString path;
    QString altText;
    QString align; ///< "bottom" and "(none)" count as the default and are not written
    QString width;
    QString height;
    bool inPercent = false; ///< the unit of the size
    QString thickness;
    QString horizontalSpacing;
    QString verticalSpacing;
    bool startsOnOpen = true;
    bool startsOnMouseOver = false;
    bool closesStart = false; ///< whether the value that starts it under the mouse alone is closed
    bool controls = false;
    bool repeatsForever = false;
    QString loop = QStringLiteral("1");
    QString loopDelay = QStringLiteral("1");
};

/// One `img` element with a `dynsrc`.
QString videoMarkup(const VideoFields &fields);

/// Inserts a video.
class frmInsVideo final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsVideo(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    ui::Node pathRows();
    ui::Node sizeGroup();
    ui::Node frameGroup();
    ui::Node playbackGroup();
    void chkRptEver_Click();
    void Command4_Click();

    PathRules m_pathRules;
    BrowseDialog cdlVideo;
    QLineEdit *txtPath = nullptr;
    QLineEdit *txtAltText = nullptr;
    QComboBox *cboAlign = nullptr;
    NumberField *txtWidth = nullptr;
    NumberField *txtHeight = nullptr;
    QRadioButton *optPixels = nullptr;
    QRadioButton *optPercent = nullptr;
    NumberField *txtThickness = nullptr;
    NumberField *txtHozSpace = nullptr;
    NumberField *txtVrtSpace = nullptr;
    QCheckBox *chkFileOpen = nullptr;
    QCheckBox *chkMouseOver = nullptr;
    QCheckBox *chkControls = nullptr;
    QCheckBox *chkRptEver = nullptr;
    QLabel *Label2 = nullptr;
    NumberField *txtLoop = nullptr;
    NumberField *txtLoopDelay = nullptr;
};
