#pragma once

#include "insertion/browseDialog.h"
#include "insertion/insertionForm.h"
#include "insertion/pathRules.h"

class QLineEdit;

/// One `bgsound` element.
QString backgroundSoundMarkup(const QString &path);

/// Inserts a sound that plays while the page is on show.
class frmInsBgSound final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsBgSound(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    void txtBgSound_Change();
    void Command4_Click();

    PathRules m_pathRules;
    BrowseDialog cdlSound;
    QLineEdit *txtBgSound = nullptr;
};
