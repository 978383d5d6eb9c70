#pragma once

#include "forms/form.h"

class QListWidget;

/// The list of unsaved documents at the exit, while two or more documents are open. It has charge of the exit for as
/// long as it is on show: its buttons end the program or call the exit off.
class frmMsgSaveChanges final : public Form
{
    Q_OBJECT
public:
    explicit frmMsgSaveChanges(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdYes_Click();
    void cmdNo_Click();
    bool saveSelected();
    void callOffExit();
    void leave();

    QListWidget *lstUnsavedFiles = nullptr;
    bool m_answered = false; ///< the exit goes on; any other end of the form calls it off
};
