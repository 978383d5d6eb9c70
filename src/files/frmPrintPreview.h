#pragma once

#include "forms/dialogForm.h"
#include "services/printing.h"

class PrintedSheet;
class QCheckBox;
class QLabel;
class QPushButton;

/// Shows the pages of the active document as they would be printed, with the choice of what is printed besides the
/// plain source.
class frmPrintPreview final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmPrintPreview(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void choice_Click();
    void layOut();
    void showPage(int page);
    void cmdPrint_Click();

    int m_pages = 0;
    PrintedSheet *picPage = nullptr;
    QLabel *lblPage = nullptr;
    QPushButton *cmdPrevious = nullptr;
    QPushButton *cmdNext = nullptr;
    QCheckBox *chkLineNumbers = nullptr;
    QCheckBox *chkColours = nullptr;
};
