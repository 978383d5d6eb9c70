#pragma once

#include "forms/dialogForm.h"
#include "services/fileSystem.h"
#include "widgets/layout.h"

class QCheckBox;
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
    void showFile(const QString &path);
    void showDetails(const QString &path, const FileDetails &details);
    void showSummary(const Document &document);

    QLabel *lblFileName = nullptr;
    QLabel *lblType = nullptr;
    QLabel *lblMsDosName = nullptr;
    QLabel *lblLocation = nullptr;
    QLabel *lblSize = nullptr;
    QLabel *lblCreated = nullptr;
    QLabel *lblLastModified = nullptr;
    QLabel *lblLastAccessed = nullptr;
    QLabel *lblSaved = nullptr;
    QCheckBox *chkReadOnly = nullptr;
    QCheckBox *chkArchive = nullptr;
    QCheckBox *chkHidden = nullptr;
    QCheckBox *chkSystem = nullptr;
    QLineEdit *txtAuthor = nullptr;
    QLineEdit *txtKeywords = nullptr;
    QPlainTextEdit *txtDescription = nullptr;
};
