#pragma once

#include "forms/form.h"

class Timer;

/// The splash form: prepares the machine and the settings, then hands over to the main window.
class frmSplash final : public Form
{
    Q_OBJECT
public:
    frmSplash(ProgramContext &context, Form &mainForm);

protected:
    void Form_Load() override;
    void Form_Unload() override;
    QWidget *createWindow() override;

private:
    void prepareSettings();
    void Timer1_Timer();

    Form &m_mainForm;
    Timer *Timer1 = nullptr;
};
