#pragma once

#include "forms/form.h"

#include <QList>

class FileList;
class ListView;
class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTabBar;
class Timer;
namespace ui
{
class Node;
}

/// The Welcome screen over the main window at the start of a session: four ways to begin, and a tip.
class frmWelcome final : public Form
{
    Q_OBJECT
public:
    explicit frmWelcome(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void offerFirstHelp();
    void buildControls();
    ui::Node quickStartPage();
    ui::Node newPage();
    ui::Node recentPage();
    ui::Node tipLine();
    ui::Node buttonColumn();
    void bindKeys();
    void buildTimers();
    void countStart();
    void ShowNextTip();
    void tmrAnimation_Timer();
    void cmdOK_Click();
    void beginQuickly();
    void openRecent();
    void showPage(int page, ListView &list);
    void openMakerSite();

    bool m_shown = false; ///< this time, it stays
    int m_lit = -1;       ///< the start option in another colour; -1 for none
    QTabBar *tabWelcomeSelection = nullptr;
    QRadioButton *optNew = nullptr;
    QRadioButton *optTemplate = nullptr;
    QRadioButton *optOpen = nullptr;
    QRadioButton *optRecent = nullptr;
    ListView *lstNew = nullptr;
    ListView *lstRecent = nullptr;
    FileList *dirTemplates = nullptr;
    QCheckBox *chkShowOnStartup = nullptr;
    QLabel *lblTipOfTheDay = nullptr;
    QPushButton *cmdOK = nullptr;
    Timer *tmrBegin = nullptr;
    Timer *tmrAnimation = nullptr;
};
