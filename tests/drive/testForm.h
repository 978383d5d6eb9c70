#pragma once

#include "forms/form.h"

class PictureBox;
class QListWidget;
class QPlainTextEdit;
class QTabBar;
class QWidget;
class Timer;
namespace ui
{
class Node;
}

/// A small form that is shown modally.
class frmTestModal final : public Form
{
    Q_OBJECT
public:
    explicit frmTestModal(ProgramContext &context);
    QString answer; ///< the text that OK left with; empty after Cancel

protected:
    void Form_Load() override;

private:
    void cmdOK_Click();
};

/// One control of each kind, so that the way forms are made, laid out and driven is proven on all of them. What the
/// handlers see is written into `txtEvents`, a line an event: "txtText Change".
class frmTestControls final : public Form
{
    Q_OBJECT
public:
    explicit frmTestControls(ProgramContext &context);
    ~frmTestControls() override;

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Activate() override { record(QStringLiteral("Form"), QStringLiteral("Activate")); }
    void Form_Deactivate() override { record(QStringLiteral("Form"), QStringLiteral("Deactivate")); }

private:
    void record(const QString &control, const QString &event);
    /// A handler that records the event.
    std::function<void()> recorder(const QString &control, const QString &event);
    std::function<void(int)> indexRecorder(const QString &control, const QString &event);

    ui::Node textPage();
    ui::Node listPage();
    ui::Node treePage();
    ui::Node choicePage();
    ui::Node picturePage();
    QWidget *surface();
    QWidget *rowsList();
    QWidget *nodeTree();
    QWidget *keyedTabs();
    QWidget *drawing();
    PictureBox *bullet(const QString &name, int index);
    void watchFocus();
    void cmdModal_Click();
    void tmrTick_Timer();

    frmTestModal m_modal;
    QPlainTextEdit *txtEvents = nullptr;
    Timer *tmrTick = nullptr;
};
