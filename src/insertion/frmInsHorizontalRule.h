#pragma once

#include "insertion/insertionForm.h"
#include "widgets/layout.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QRadioButton;

/// The fields of a horizontal rule.
struct RuleFields {
    QString align = QStringLiteral("(none)");
    bool noShade = false;
    bool specifySize = true;
    QString size = {};
    QString width = {};
    bool widthInPercent = false;
    QString colour = {}; ///< "#RRGGBB"; empty for none
};

QString ruleMarkup(const RuleFields &fields);

class frmInsHorizontalRule final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsHorizontalRule(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;
    void forgetLastUse() override { m_colourPicked = false; }

private:
    ui::Node sizeGroup();
    void chkSpecifySize_Click();
    RuleFields fields() const;

    QComboBox *cboAlign = nullptr;
    QCheckBox *chkNoShade = nullptr;
    QCheckBox *chkSpecifySize = nullptr;
    NumberField *txtSize = nullptr;
    NumberField *txtWidth = nullptr;
    QRadioButton *optSizePixels = nullptr;
    QRadioButton *optSizePercent = nullptr;
    ColourSelection *clrColourSelection = nullptr;
    bool m_colourPicked = false; ///< outlives the dialog: once a colour was picked, later rules have one, too
};
