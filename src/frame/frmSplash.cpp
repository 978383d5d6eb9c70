#include "frame/frmSplash.h"

#include "common/programState.h"
#include "services/doEvents.h"
#include "services/fileClasses.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "services/workingFolder.h"
#include "widgets/layout.h"
#include "widgets/screenPointer.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace
{
constexpr int SplashMilliseconds = 850;

QLabel *titleLabel()
{
    QLabel *title = ui::label(QStringLiteral("lblTitle"), QStringLiteral("Tagwrighter"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 2.4);
    font.setBold(true);
    title->setFont(font);
    return title;
}
} // namespace

frmSplash::frmSplash(ProgramContext &context, Form &mainForm)
    : Form(context, QStringLiteral("frmSplash")), m_mainForm(mainForm)
{
}

QWidget *frmSplash::createWindow()
{
    auto *window = new QFrame(nullptr, Qt::SplashScreen);
    window->setFrameStyle(QFrame::Panel | QFrame::Raised);
    window->setWindowTitle(QStringLiteral("Tagwrighter"));
    return window;
}

void frmSplash::Form_Load()
{
    QLabel *lblVersion = ui::label(QStringLiteral("lblVersion"), QString());
    setContent(ui::column({ui::space(), titleLabel(), lblVersion, ui::space()}));
    window()->setMinimumSize(420, 200);
    window()->layout()->setContentsMargins(36, 28, 36, 28);
    Timer1 = new Timer(
        services().timers, QStringLiteral("Timer1"), [this] { Timer1_Timer(); }, window());
    Timer1->setInterval(SplashMilliseconds);

    lblVersion->setText(QStringLiteral("Release Version: ") + context().version);
    context().screenPointer.setMousePointer(PointerShape::Hourglass);
    presentWindow();
    DoEvents();                       // the splash paints before the slow work
    if (context().state.ProgramEnded) // a signal among those events, and the window is gone
        return;

    if (!context().state.habits.HabitDesktop) // there, the user asks for it in the options
        services().fileClasses.registerAll();
    prepareSettings();
    context().screenPointer.setMousePointer(PointerShape::Default);
    Timer1->setEnabled(true);
}

void frmSplash::prepareSettings()
{
    SettingsStore &store = services().settings;
    settings::write(store, settings::HotTrackingFiles, QStringLiteral("False"));
    settings::write(store, settings::MainAppDir, services().appPath);
    settings::writeFirstRunDefaults(store, services().appPath);
    makeOwnWorkingFolder(services());
    settings::write(store, settings::CurrentVersion, context().version);
}

void frmSplash::Timer1_Timer()
{
    Timer1->setEnabled(false); // the one tick: what follows may pump events
    m_mainForm.Load();
    Unload();
    // A second main window takes itself away in its load; one that is on show has put a window in front of itself.
    if (m_mainForm.isLoaded() && !m_mainForm.Visible())
        m_mainForm.Show();
}

void frmSplash::Form_Unload()
{
    context().screenPointer.setMousePointer(PointerShape::Default);
}
