#pragma once

#include "forms/form.h"
#include "widgets/layout.h"

class QCheckBox;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QToolBar;
class Timer;

namespace drive
{
/// A form that asks the desktop for everything a program can ask of it, and notes in `txtLog` what came of it.
class frmTestDesk final : public Form
{
    Q_OBJECT
public:
    explicit frmTestDesk(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildMenuAndBar();
    void addTool(QToolBar &bar, const QString &key, const QString &caption);
    QList<ui::Node> boxButtons();
    QList<ui::Node> deskButtons();
    void note(const QString &what);
    void cmdBox_Click();
    void cmdOpen_Click();
    void cmdSave_Click();
    void cmdColour_Click();
    void cmdFolder_Click();
    void cmdFont_Click();
    void cmdPrint_Click();
    void cmdLaunch_Click();
    void cmdRead_Click();
    void cmdWrite_Click();
    void cmdModal_Click();
    void cmdPass_Click();

    QLineEdit *txtName = nullptr;
    QCheckBox *chkOn = nullptr;
    QPlainTextEdit *txtLog = nullptr;
    QMenu *mnuPop = nullptr;
    Timer *tmrBeat = nullptr;
    bool m_stopPass = false;
};

/// A small form to be shown as a modal box.
class frmTestBox final : public Form
{
    Q_OBJECT
public:
    explicit frmTestBox(ProgramContext &context) : Form(context, QStringLiteral("frmTestBox")) {}

    QString chosen; ///< name of the button that it was left by; empty for its close box

protected:
    void Form_Load() override;
};
} // namespace drive
