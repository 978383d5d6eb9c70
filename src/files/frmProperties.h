#pragma once

#include "files/filePropertiesPage.h"
#include "forms/dialogForm.h"
#include "widgets/layout.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

/// Shows the active document's file and what the page says of itself. It changes nothing.
class frmProperties final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmProperties(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void buildControls();
    ui::Node filePage();
    ui::Node summaryPage();
    void showSummary(const Document &document);

    FilePropertiesPage m_file;
    QLabel *lblSaved = nullptr;
    QLineEdit *txtAuthor = nullptr;
    QLineEdit *txtKeywords = nullptr;
    QPlainTextEdit *txtDescription = nullptr;
};
