#pragma once

#include "forms/form.h"

class QCheckBox;

/// Tells that a document cannot be saved automatically because it has no file yet.
class frmMsgNoFileForAutoSave final : public Form
{
    Q_OBJECT
public:
    explicit frmMsgNoFileForAutoSave(ProgramContext &context);

    /// The document that it is about; it stays open for as long as the form is on show.
    void setDocument(Document &document) { m_document = &document; }

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdIgnore_Click();

    Document *m_document = nullptr;
    QCheckBox *chkDontReshow = nullptr;
};
